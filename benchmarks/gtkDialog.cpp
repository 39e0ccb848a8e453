// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0
//
// GTK's print dialog on one queue: prints the monotonic times of its construction and of its first paint with
// the queue's options, and ends. With a second argument, the paint is that of its page with that name.

#include <gtk/gtkunixprint.h>

#include <cstdio>
#include <ctime>
#include <unistd.h>

namespace {

void printTime()
{
    timespec now = {};
    clock_gettime(CLOCK_MONOTONIC, &now);
    std::printf("%.3f\n", static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6);
    std::fflush(stdout);
}

const char *wantedPage = nullptr;

gboolean end(GtkWidget * /*page*/, cairo_t * /*cairo*/, gpointer /*unused*/)
{
    printTime();
    _exit(0);
}

/// Turns to the page once the dialog shows it.
void turnToPage(GtkWidget *widget, gpointer /*unused*/)
{
    if (!GTK_IS_NOTEBOOK(widget)) {
        if (GTK_IS_CONTAINER(widget))
            gtk_container_forall(GTK_CONTAINER(widget), turnToPage, nullptr);
        return;
    }
    GtkNotebook *pages = GTK_NOTEBOOK(widget);
    for (int i = 0; i < gtk_notebook_get_n_pages(pages); ++i) {
        GtkWidget *page = gtk_notebook_get_nth_page(pages, i);
        if (!gtk_widget_get_visible(page) ||
            g_strcmp0(gtk_notebook_get_tab_label_text(pages, page), wantedPage) != 0)
            continue;
        g_signal_connect_after(page, "draw", G_CALLBACK(end), nullptr);
        gtk_notebook_set_current_page(pages, i);
        wantedPage = nullptr;
    }
}

gboolean lookForPage(gpointer dialog)
{
    turnToPage(static_cast<GtkWidget *>(dialog), nullptr);
    return wantedPage ? TRUE : FALSE;
}

gboolean endWhenPainted(GtkWidget *dialog, cairo_t * /*cairo*/, gpointer queue)
{
    GtkPrinter *printer = gtk_print_unix_dialog_get_selected_printer(GTK_PRINT_UNIX_DIALOG(dialog));
    if (!printer || !gtk_printer_has_details(printer) ||
        g_strcmp0(gtk_printer_get_name(printer), static_cast<const char *>(queue)) != 0)
        return FALSE;
    printTime();
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
    if (argc < 2)
        return 1;
    printTime();
    GtkWidget *dialog = gtk_print_unix_dialog_new("Print", nullptr);
    GtkPrintSettings *settings = gtk_print_settings_new();
    gtk_print_settings_set_printer(settings, argv[1]);
    gtk_print_unix_dialog_set_settings(GTK_PRINT_UNIX_DIALOG(dialog), settings);
    if (argc > 2) {
        wantedPage = argv[2];
        g_timeout_add(1, lookForPage, dialog);
    } else {
        g_signal_connect_after(dialog, "draw", G_CALLBACK(endWhenPainted), argv[1]);
    }
    g_timeout_add(15000, giveUp, nullptr);
    gtk_widget_show(dialog);
    gtk_main();
    return 1;
}
