// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "SessionJob.h"

#include "DialogSession.h"
#include "IppOptions.h"
#include "PpdDocument.h"
#include "PpdFilters.h"
#include "PrintPositions.h"

#include <QtCore/QCoreApplication>

namespace printdialog {

Result<SessionJob, SessionJobFault> jobOf(DialogSession &session, int copies)
{
    const auto options = session.jobOptions();
    if (!options)
        return Failure<SessionJobFault>{SessionJobFault::Conflict, options.failure().text, {}};
    const OptionSource &source = session.options();
    const auto size = source.pageSize(options->options.value(source.pageSizeKey()));
    if (!size)
        return Failure<SessionJobFault>{
            SessionJobFault::NoPaper,
            QCoreApplication::translate("SessionJob", "No paper size is chosen. Choose one."),
            {}};
    const PrinterDescription &printer = session.printer();
    PrintJob job;
    job.destination = printer.destination;
    job.page = {size->points, size->imageable};
    constexpr double tenthsPerMillimeter = 10;
    job.offset = QPointF(PrintPositions::load(printer.destination.queue, size->keyword)) /
                 tenthsPerMillimeter * pointsPerMillimeter;
    for (const auto &[option, choice] : session.summary())
        job.summary.insert(option, choice);
    job.copies = copies;
    if (printer.isAnnounced)
        job.announcedUri = printer.deviceUri;
    job.ppd = QByteArray();
    job.options = options->options;
    job.secrets = options->secrets;
    if (printer.isRaw)
        job.options.remove(source.pageSizeKey()); // of a page that stands for the one set at the printer
    if (const PpdDocument *ppd = session.ppd()) {
        job.ppd = ppd->data();
        job.directTypes = typesPassedThrough(*ppd);
    }
    if (const IppOptions *ipp = session.ipp()) {
        job.ipp = ipp->ticket(options->options);
        for (const QString &format : std::as_const(job.ipp->formats))
            job.directTypes += format.toLatin1().toLower();
    }
    return SessionJob{job, options->dropped, options->missing};
}

} // namespace printdialog
