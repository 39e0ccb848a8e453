// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "JobSummary.h"

#include "DialogSession.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QLocale>

#include <algorithm>

namespace printdialog {

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(JobSummary)
};

bool areAlike(const PlacementChoice &one, const PlacementChoice &other)
{
    return one.scaling == other.scaling && one.turns == other.turns;
}

QString placementText(const QList<PlacementChoice> &placements)
{
    const PlacementChoice &first = placements.constFirst();
    const bool isOne = std::ranges::all_of(
        placements, [&first](const PlacementChoice &each) { return areAlike(each, first); });
    if (!isOne)
        return Text::tr("Differs by photo");
    const QString scaling = scalingText(first.scaling);
    constexpr int quarter = 90;
    return first.turns == 0 ? scaling : Text::tr("%1, turned by %2°").arg(scaling).arg(first.turns * quarter);
}

} // namespace

QString scalingText(Scaling scaling)
{
    switch (scaling) {
    case Scaling::Fit:
        return Text::tr("Fit on the page");
    case Scaling::Fill:
        return Text::tr("Fill the page");
    case Scaling::ActualSize:
        break;
    }
    return Text::tr("Actual size");
}

SummaryEntries jobSummary(DialogSession &session, int copies, const QList<PlacementChoice> &placements)
{
    SummaryEntries entries;
    const OptionSource &options = session.options();
    if (const auto paper = options.pageSize(session.chosen(options.pageSizeKey()).value_or(QString())))
        entries.append({Text::tr("Paper size"), paper->text});
    entries.append({Text::tr("Copies"), QLocale().toString(copies)});
    if (!session.printer().isRaw && !placements.isEmpty())
        entries.append({Text::tr("Placement"), placementText(placements)});
    return entries + session.summary();
}

} // namespace printdialog
