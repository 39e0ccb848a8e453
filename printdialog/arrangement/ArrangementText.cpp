// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ArrangementText.h"

#include "PlainText.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QLocale>
#include <QtCore/QSet>
#include <QtCore/QStringList>

#include <algorithm>

namespace printdialog {

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(ArrangementText)
};

const QString separator = QStringLiteral(", ");

bool areAlike(const PlacementChoice &one, PlacementChoice other)
{
    other.crop = one.crop;
    return one == other;
}

} // namespace

QString scalingText(Scaling scaling, bool hasSize)
{
    switch (scaling) {
    case Scaling::Fit:
        return hasSize ? Text::tr("fitted", "a photo into its print size") : Text::tr("Fit on the page");
    case Scaling::Fill:
        return hasSize ? Text::tr("filled", "a print size by its photo") : Text::tr("Fill the page");
    case Scaling::ActualSize:
        break;
    }
    return hasSize ? Text::tr("actual size", "of a photo within its print size") : Text::tr("Actual size");
}

QString placementText(const PlacementChoice &choice)
{
    constexpr int quarter = 90;
    QStringList parts;
    if (choice.size)
        parts += choice.size->localText();
    parts += scalingText(choice.scaling, choice.size.has_value());
    if (choice.scale != 1)
        parts += Text::tr("%1 %", "a scale").arg(QLocale().toString(choice.scale * 100, 'g', 4));
    if (choice.border.isThere())
        parts += Text::tr("border %1").arg(localLengthText(choice.border.width));
    const QString text = parts.join(separator);
    return choice.turns == 0 ? text : Text::tr("%1, turned by %2°").arg(text).arg(choice.turns * quarter);
}

QString placementText(const QList<PlacementChoice> &placements)
{
    const PlacementChoice &first = placements.constFirst();
    const bool isOne = std::ranges::all_of(
        placements, [&first](const PlacementChoice &each) { return areAlike(each, first); });
    return isOne ? placementText(first) : Text::tr("Differs by photo");
}

QString layoutText(const SheetLayout &layout)
{
    QStringList parts;
    switch (layout.kind) {
    case SheetLayout::Kind::Single:
        parts += Text::tr("One photo on each sheet");
        break;
    case SheetLayout::Kind::Grid:
        parts += Text::tr("%1 rows, %2 columns").arg(layout.rows).arg(layout.columns);
        break;
    case SheetLayout::Kind::ManyOfSize:
        parts += Text::tr("As many as fit");
        break;
    case SheetLayout::Kind::Contact:
        parts += Text::tr("Contact sheet, %1 rows, %2 columns").arg(layout.rows).arg(layout.columns);
        break;
    case SheetLayout::Kind::Strips:
        parts += Text::tr("Two strips of %1 photos").arg(layout.stripPhotos);
        break;
    case SheetLayout::Kind::Pages:
        parts += Text::tr("%1 pages on each side").arg(layout.pagesPerSheet);
        break;
    case SheetLayout::Kind::Booklet:
        parts += Text::tr("Booklet");
        break;
    }
    if (layout.isRepeated != SheetLayout::usual(layout.kind).isRepeated)
        parts +=
            layout.isRepeated ? Text::tr("the same photo repeated") : Text::tr("the next photos following");
    return parts.join(separator);
}

QString pagesText(const PageChoice &pages)
{
    QStringList parts;
    if (pages.which == PageChoice::Which::Selected)
        parts += Text::tr("Selection", "of a document");
    else if (pages.which != PageChoice::Which::All)
        parts += pages.ranges.isEmpty() ? Text::tr("Current page") : pages.ranges.toText();
    if (pages.set != PageChoice::Set::All)
        parts += pages.set == PageChoice::Set::Odd ? Text::tr("odd only", "pages")
                                                   : Text::tr("even only", "pages");
    if (pages.isReversed)
        parts += Text::tr("last one first", "pages");
    return parts.join(separator);
}

QString pagesBeyondText(const Arrangement &arrangement)
{
    if (arrangement.pages.which != PageChoice::Which::Ranges || arrangement.pages.ranges.isEmpty())
        return {};
    int last = 0; // of the longest document
    QSet<FileIdentity> printed;
    for (const PlacedPhoto &placed : arrangement.photos) {
        const Document *document = placed.photo.document();
        last = std::max(last, document ? document->pageCount() : 0);
        if (document && arrangement.pages.contains(placed.photo.page() + 1))
            printed.insert(placed.photo.identity());
    }
    if (printed.isEmpty())
        return {};
    const PageRanges::Range wanted = arrangement.pages.ranges.ranges().constLast();
    const int end = wanted.last == PageRanges::largestNumber ? wanted.first : wanted.last;
    QStringList sentences;
    if (end > last)
        sentences += Text::tr("There are no pages after page %1.").arg(QLocale().toString(last));
    for (const PlacedPhoto &placed : arrangement.photos) {
        if (!placed.photo.document() || printed.contains(placed.photo.identity()))
            continue;
        printed.insert(placed.photo.identity()); // is named once
        sentences +=
            Text::tr("No page of \"%1\" is printed.").arg(plainText(placed.photo.fileName(), shownTextLimit));
    }
    constexpr qsizetype most = 3; // lines of a narrow window
    return sentences.first(qMin(most, sentences.size())).join(u' ');
}

QString contentText(const Arrangement &arrangement)
{
    const auto pages = static_cast<int>(arrangement.pageCount());
    const auto photos = static_cast<int>(arrangement.photos.size()) - pages;
    const QString photosText = Text::tr("%n photo(s)", nullptr, photos);
    const QString pagesText = Text::tr("%n page(s)", nullptr, pages);
    return pages == 0    ? photosText
           : photos == 0 ? pagesText
                         : Text::tr("%1 and %2", "photos and pages").arg(photosText, pagesText);
}

} // namespace printdialog
