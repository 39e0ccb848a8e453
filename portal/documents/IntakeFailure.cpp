// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "IntakeFailure.h"

#include <QtCore/QLocale>

namespace printdialog {

namespace {

struct IntakeText
{
    Q_DECLARE_TR_FUNCTIONS(IntakeText)
};

} // namespace

Failure<IntakeFault> intakeFailure(IntakeFault fault, const QString &name, const IntakeLimits &limits)
{
    switch (fault) {
    case IntakeFault::Stuck:
        return {fault,
                IntakeText::tr("The program has stopped sending \"%1\". Nothing was printed; print again.")
                    .arg(name),
                {}};
    case IntakeFault::Empty:
        return {fault,
                IntakeText::tr("The program sent nothing of \"%1\", so nothing was printed.").arg(name),
                {}};
    case IntakeFault::TooLarge:
        return {fault,
                IntakeText::tr(
                    "\"%1\" is too large to be printed: a document may have %2. Print fewer pages at a "
                    "time.")
                    .arg(name, QLocale().formattedDataSize(limits.largest)),
                {}};
    case IntakeFault::NotADocument:
        return {fault,
                IntakeText::tr(
                    "The program sent \"%1\" in a format that cannot be printed: only PDF and PostScript "
                    "can.")
                    .arg(name),
                {}};
    case IntakeFault::NoConverter:
        return {fault,
                IntakeText::tr(
                    "The program sent \"%1\" as PostScript, which needs Ghostscript. Install the package "
                    "ghostscript and print again.")
                    .arg(name),
                {}};
    case IntakeFault::Unconverted:
        return {fault,
                IntakeText::tr(
                    "The program sent \"%1\" as PostScript that Ghostscript cannot convert, so nothing "
                    "was printed.")
                    .arg(name),
                {}};
    case IntakeFault::NoMemory:
        return {fault,
                IntakeText::tr("There is not enough memory for \"%1\". Close other programs and print again.")
                    .arg(name),
                {}};
    case IntakeFault::NotReadable:
    case IntakeFault::Canceled:
        break;
    }
    return {fault,
            IntakeText::tr("\"%1\" cannot be read from the program, so nothing was printed.").arg(name),
            {}};
}

} // namespace printdialog
