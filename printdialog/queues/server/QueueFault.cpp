// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "QueueFault.h"

#include "Destination.h"
#include "PlainText.h"

#include <QtCore/QCoreApplication>

namespace printdialog {

namespace {

struct FaultText
{
    Q_DECLARE_TR_FUNCTIONS(QueueFault)
};

/// The reason to show when the server gave none.
QString ownReason(QueueFault fault)
{
    switch (fault) {
    case QueueFault::NotFound:
        return FaultText::tr("the print server does not know it");
    case QueueFault::NoServer:
        return FaultText::tr("nothing answers at its address");
    case QueueFault::NoPpd:
        return FaultText::tr("the print server keeps none for it");
    case QueueFault::NotAccepting:
        return FaultText::tr("it is set to reject them");
    case QueueFault::Refused:
        return FaultText::tr("no permission");
    case QueueFault::TimedOut:
        return FaultText::tr("time limit reached");
    case QueueFault::Changed:
        return FaultText::tr("its PPD file is a new one");
    case QueueFault::Absent:
        return FaultText::tr("time limit reached");
    case QueueFault::Unknown:
        return FaultText::tr("no answer came");
    case QueueFault::Canceled:
        return FaultText::tr("nothing is printed");
    case QueueFault::Failed:
        break;
    }
    return FaultText::tr("the print server gave no reason");
}

QString sentence(QueueFault fault)
{
    switch (fault) {
    case QueueFault::NotFound:
        return FaultText::tr(
            "The printer \"%1\" does not exist (%2). Choose another one, or add it in the printer settings.");
    case QueueFault::NoServer:
        return FaultText::tr("The printer \"%1\" cannot be reached, because no print server is running (%2). "
                             "Start CUPS or check the server's name.");
    case QueueFault::NoPpd:
        return FaultText::tr("The printer \"%1\" has no PPD file (%2). Set it up again with its driver.");
    case QueueFault::NotAccepting:
        return FaultText::tr("The printer \"%1\" does not accept jobs (%2). Allow them in the printer "
                             "settings, or choose another printer.");
    case QueueFault::Refused:
        return FaultText::tr(
            "The print server refused the request for the printer \"%1\" (%2). Ask its administrator.");
    case QueueFault::TimedOut:
        return FaultText::tr("The print server did not answer about the printer \"%1\" in time (%2). Try "
                             "again, or restart CUPS.");
    case QueueFault::Changed:
        return FaultText::tr("The options of the printer \"%1\" have changed since they were chosen (%2). "
                             "Look at them and print again.");
    case QueueFault::Absent:
        return FaultText::tr(
            "The printer \"%1\" on the network does not answer (%2). Switch it on and choose it "
            "again in a minute, or choose another printer.");
    case QueueFault::Unknown:
        return FaultText::tr(
            "It is not known whether the printer \"%1\" has got the job (%2). Look at its jobs "
            "before you print again.");
    case QueueFault::Canceled:
        return FaultText::tr("The job for the printer \"%1\" was canceled (%2).");
    case QueueFault::Failed:
        break;
    }
    return FaultText::tr(
        "The print server could not serve the printer \"%1\" (%2). Try again, or check its log.");
}

/// About a printer that is asked directly; empty where the usual sentence holds.
QString printerSentence(QueueFault fault)
{
    switch (fault) {
    case QueueFault::NotFound:
        return FaultText::tr("There is no printer at \"%1\" (%2). Check the address.");
    case QueueFault::NoServer:
        return FaultText::tr("The printer \"%1\" cannot be reached (%2). Check its address, and that it is "
                             "switched on.");
    case QueueFault::NotAccepting:
        return FaultText::tr("The printer \"%1\" does not accept jobs (%2). Look at the printer, or choose "
                             "another one.");
    case QueueFault::Refused:
        return FaultText::tr("The printer \"%1\" refused the request (%2). Check its settings.");
    case QueueFault::TimedOut:
        return FaultText::tr("The printer \"%1\" did not answer in time (%2). Check that it is switched on, "
                             "and try again.");
    case QueueFault::Failed:
        return FaultText::tr("The printer \"%1\" could not do what it was asked for (%2). Try again, or look "
                             "at the printer.");
    default:
        return {};
    }
}

QString serverSentence(QueueFault fault)
{
    switch (fault) {
    case QueueFault::NoServer:
        return FaultText::tr("No print server is running (%1). Start CUPS or check the server's name.");
    case QueueFault::Refused:
        return FaultText::tr("The print server refused to list its printers (%1). Ask its administrator.");
    case QueueFault::TimedOut:
        return FaultText::tr("The print server did not answer in time (%1). Try again, or restart CUPS.");
    default:
        return FaultText::tr(
            "The print server could not list its printers (%1). Try again, or check its log.");
    }
}

} // namespace

Failure<QueueFault> queueFailure(QueueFault fault, const QString &queue, const QString &words)
{
    QString reason = plainText(words.simplified(), shownTextLimit);
    while (reason.endsWith(u'.'))
        reason.chop(1);
    const QString detail = reason;
    const bool isAddress = Destination(queue).isAddress();
    if (reason.isEmpty())
        reason = isAddress && fault == QueueFault::Failed ? FaultText::tr("no reason was given")
                                                          : ownReason(fault);
    const QString ofPrinter = isAddress ? printerSentence(fault) : QString();
    const QString ofQueue = ofPrinter.isEmpty() ? sentence(fault) : ofPrinter;
    const QString text =
        queue.isEmpty() ? serverSentence(fault).arg(reason) : ofQueue.arg(plainText(queue, 128), reason);
    return {fault, text, detail};
}

} // namespace printdialog
