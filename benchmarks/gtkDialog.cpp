// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0
//
// GTK's print dialog on one queue: prints the monotonic time of its first paint with the queue's options, and
// ends.

#include <gtk/gtkunixprint.h>

#include <cstdio>
#include <ctime>
#include <unistd.h>

namespace {

gboolean endWhenPainted(GtkWidget *dialog, cairo_t * /*cairo*/, gpointer queue)
{
    GtkPrinter *printer = gtk_print_unix_dialog_get_selected_printer(GTK_PRINT_UNIX_DIALOG(dialog));
    if (!printer || !gtk_printer_has_details(printer) ||
        g_strcmp0(gtk_printer_get_name(printer), static_cast<const char *>(queue)) != 0)
        return FALSE;
    timespec now = {};
    clock_gettime(CLOCK_MONOTONIC, &now);
    std::printf("%.3f\n", static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6);
    std::fflush(stdout);
    _exit(0);
}

gboolean giveUp(gpointer /*unused*/)
{
    _exit(1);
}

} // namespace

int main(int argc, char *argv[])
{
    gtk_init(&argc, &argv);
    if (argc != 2)
        return 1;
    GtkWidget *dialog = gtk_print_unix_dialog_new("Print", nullptr);
    GtkPrintSettings *settings = gtk_print_settings_new();
    gtk_print_settings_set_printer(settings, argv[1]);
    gtk_print_unix_dialog_set_settings(GTK_PRINT_UNIX_DIALOG(dialog), settings);
    g_signal_connect_after(dialog, "draw", G_CALLBACK(endWhenPainted), argv[1]);
    g_timeout_add(15000, giveUp, nullptr);
    gtk_widget_show(dialog);
    gtk_main();
    return 1;
}
