// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "Arrangement.h"

#include "PlainText.h"

#include <QtCore/QFileInfo>
#include <QtCore/QLocale>
#include <QtCore/QSet>

#include <algorithm>

namespace printdialog {

namespace {

/// The first one's name, and how many photos and documents there are beside it.
QString nameOf(const Arrangement &arrangement, const QList<LaidSheet> &sheets)
{
    QSet<qsizetype> items;
    QSet<FileIdentity> documents;
    for (const LaidSheet &sheet : sheets) {
        for (const LaidPhoto &laid : sheet.photos) {
            const Photo &photo = arrangement.photos.at(laid.item).photo;
            if (photo.document())
                documents.insert(photo.identity());
            else
                items.insert(laid.item);
        }
    }
    const qsizetype first = sheets.constFirst().photos.constFirst().item;
    const QString name = arrangement.photos.at(first).photo.fileName();
    const qsizetype others = items.size() + documents.size() - 1;
    return others > 0 ? Arrangement::tr("%1 and %2 more", "the name of a sheet with several photos")
                            .arg(name, QString::number(others))
                      : name;
}

} // namespace

SheetPlan Arrangement::plan(const PageGeometry &page) const
{
    QList<LayoutItem> items;
    QList<qsizetype> indexes;
    const auto add = [&](PageChoice::Which which) {
        for (qsizetype i = 0; i < photos.size(); ++i) {
            const PlacedPhoto &placed = photos.at(i);
            if (placed.photo.document() && which != PageChoice::Which::All &&
                !pages.contains(placed.photo.page() + 1))
                continue;
            items += LayoutItem::of(placed.photo, placed.placement, placed.copies);
            indexes += i;
        }
    };
    items.reserve(photos.size());
    add(PageChoice::Which::Ranges);
    std::optional<Failure<LayoutFault>> failure;
    if (items.isEmpty() && !photos.isEmpty()) {
        const QString text =
            photos.size() == 1 ? tr("The only page is not among those to be printed. Choose other pages.")
                               : tr("None of the %1 pages is among those to be printed. Choose other pages.")
                                     .arg(QLocale().toString(photos.size()));
        failure = {{LayoutFault::Kind::NoPages, 0}, text, {}};
        add(PageChoice::Which::All);
    }
    SheetPlan plan = SheetPlan::make(items, layout, page);
    plan.renumber(indexes, failure);
    if (pages.isReversed)
        plan.reverse();
    return plan;
}

QList<Arrangement::SheetRange> Arrangement::jobs(const SheetPlan &plan) const
{
    QList<SheetRange> jobs;
    bool wasOfPages = false;
    for (qsizetype i = 0; i < plan.sheets().size(); ++i) {
        const LaidSheet &sheet = plan.sheets().at(i);
        const bool isOfPages = std::ranges::any_of(
            sheet.photos, [this](const LaidPhoto &laid) { return photos.at(laid.item).photo.document(); });
        if (isOfPages && wasOfPages && plan.sheets().at(i - 1).copies == sheet.copies)
            ++jobs.last().count;
        else
            jobs += SheetRange{i, 1};
        wasOfPages = isOfPages;
    }
    return jobs;
}

JobSheets Arrangement::jobSheets(const SheetPlan &plan, const SheetRange &range) const
{
    JobSheets job;
    const QList<LaidSheet> sheets = plan.sheets().mid(range.first, range.count);
    for (const LaidSheet &laid : sheets)
        job.sheets += sheet(laid);
    job.name = nameOf(*this, sheets);
    job.copies = job.sheets.constFirst().copies;
    job.isReversed = pages.isReversed;
    return job;
}

qsizetype Arrangement::pageCount() const
{
    return std::ranges::count_if(photos, [](const PlacedPhoto &placed) { return placed.photo.document(); });
}

PrintSheet Arrangement::sheet(const LaidSheet &laid) const
{
    PrintSheet sheet;
    sheet.cutMarks = laid.cutMarks;
    sheet.copies = laid.copies;
    for (const LaidPhoto &photo : laid.photos) {
        const PlacedPhoto &placed = photos.at(photo.item);
        sheet.photos += SheetPhoto{placed.photo, photo.placement, placed.isAccepted, {}, photo.caption};
        if (!photo.caption.isEmpty())
            sheet.photos.last().caption = captionOf(placed.photo, layout.caption);
    }
    sheet.name = nameOf(*this, {laid});
    return sheet;
}

void Arrangement::setStyle(const ArrangementStyle &style)
{
    layout = style.layout;
    for (PlacedPhoto &placed : photos)
        placed.placement = style.placement;
}

QStringList Arrangement::paths() const
{
    QStringList paths;
    for (const PlacedPhoto &placed : photos)
        paths += QFileInfo(placed.photo.path()).absoluteFilePath();
    return paths;
}

QList<PlacementChoice> Arrangement::placements() const
{
    QList<PlacementChoice> placements;
    for (const PlacedPhoto &placed : photos)
        placements += placed.placement;
    return placements;
}

Arrangement Arrangement::unplaced() const
{
    Arrangement plain{photos, {}, pages};
    for (PlacedPhoto &placed : plain.photos)
        placed.placement = {};
    return plain;
}

QStringList Arrangement::captionOf(const Photo &photo, Caption caption)
{
    QStringList lines;
    if (caption == Caption::FileName || caption == Caption::Both)
        lines += plainText(photo.fileName());
    if (caption == Caption::Date || caption == Caption::Both)
        lines += QLocale().toString(photo.taken().value_or(photo.modified().toLocalTime()).date(),
                                    QLocale::ShortFormat);
    return lines;
}

} // namespace printdialog
