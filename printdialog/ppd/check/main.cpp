// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0
//
// corvel-ppd-check: opens the PPD on its standard input with libcups, so that a PPD that crashes libcups ends
// this process and not the dialog. Exit status: 0, libcups survives; 2, no sandbox is available. Run by
// checkPpd().

#include "PpdTrial.h"
#include "Sandbox.h"

#include <cups/cups.h>

#include <clocale>
#include <unistd.h>

int main()
{
    // Before the sandbox: libcups reads these once and keeps them.
    std::setlocale(LC_ALL, "");
    cupsLangDefault();
    cupsServer();
    constexpr std::uint64_t memory = std::uint64_t(1) << 30; // a PPD at the limits takes less than a third
    constexpr unsigned processorTime = 5;
    // The C library opens files with character sets.
    if (!printdialog::enterSandbox({.memory = memory, .processorTime = processorTime, .canOpenFiles = true}))
        _exit(2);
    printdialog::tryPpd(STDIN_FILENO);
    _exit(0); // skips exit handlers, which the sandbox would not allow to run
}
