// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0
//
// corvel-ppd-check: tries out the PPD on its standard input, so that one over which libcups crashes takes
// down this process and not the dialog. Exit status: 0, libcups survives it; 2, there is no sandbox. Run by
// checkPpd().

#include "PpdTrial.h"
#include "Sandbox.h"

#include <cups/cups.h>

#include <clocale>
#include <unistd.h>

int main()
{
    // What libcups reads for itself, and only once.
    std::setlocale(LC_ALL, "");
    cupsLangDefault();
    cupsServer();
    if (!printdialog::enterSandbox())
        _exit(2);
    printdialog::tryPpd(STDIN_FILENO);
    _exit(0); // nothing is left to do, and the sandbox would not let it
}
