// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "JobSummary.h"

#include "ArrangementText.h"
#include "DialogSession.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QLocale>

namespace printdialog {

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(JobSummary)
};

} // namespace

SummaryEntries jobSummary(DialogSession &session, int copies, const QList<PlacementChoice> &placements,
                          const SheetLayout &layout, const PageChoice &pages)
{
    SummaryEntries entries;
    const OptionSource &options = session.options();
    if (const auto paper = options.pageSize(session.chosen(options.pageSizeKey()).value_or(QString())))
        entries.append({Text::tr("Paper size"), paper->text});
    entries.append({Text::tr("Copies"), QLocale().toString(copies)});
    if (!session.printer().isRaw && !placements.isEmpty())
        entries.append({Text::tr("Placement"), placementText(placements)});
    if (!session.printer().isRaw && layout.kind != SheetLayout::Kind::Single)
        entries.append({Text::tr("Layout"), layoutText(layout)});
    if (const QString text = pagesText(pages); !text.isEmpty())
        entries.append({Text::tr("Pages"), text});
    return entries + session.summary();
}

} // namespace printdialog
