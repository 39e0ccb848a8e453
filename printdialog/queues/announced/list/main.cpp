// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0
//
// corvel-printer-list: writes a line of JSON to its standard output for each printer that announces itself on
// the network, comes, changes or goes, until its standard input is closed (see Announcement.h). A separate
// program, since a system bus that hangs blocks its caller.

#include "ServiceBrowser.h"

#include <QtCore/QCoreApplication>
#include <QtDBus/QDBusConnection>

#include <cstdio>
#include <thread>
#include <unistd.h>

namespace {

/// Ends the process with its standard input, also when the main thread is blocked.
void endWithInput()
{
    std::thread([] {
        char byte = 0;
        while (read(STDIN_FILENO, &byte, 1) > 0) {
        }
        _exit(0);
    }).detach();
}

} // namespace

int main(int argc, char *argv[])
{
    endWithInput();
    const QCoreApplication application(argc, argv);
    const QDBusConnection bus = QDBusConnection::systemBus();
    if (!bus.isConnected()) {
        std::puts(R"({"event":"unavailable"})");
        std::fflush(stdout);
        pause(); // ending would be taken for a crash
    }
    printdialog::ServiceBrowser browser(bus);
    browser.start();
    return QCoreApplication::exec();
}
