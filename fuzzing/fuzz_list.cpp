// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

// Print lists with their sheets, and the texts of layouts and placements. The first byte says which.

#include "ArrangementStyle.h"
#include "Fuzzing.h"
#include "PrintList.h"
#include "SheetPlan.h"

using namespace printdialog;

namespace {

/// Lengths are rounded when they are written, so the texts are compared from then on.
template <class Value, class Read>
void comesBack(const Value &value, Read read)
{
    const auto once = read(value.toText());
    fuzzing::require(once.has_value(), "what was written can be read");
    const auto again = read(once->toText());
    fuzzing::require(again && again->toText() == once->toText(), "it comes back as it was written");
}

void texts(const QString &text)
{
    if (const auto layout = SheetLayout::fromText(text))
        comesBack(*layout, SheetLayout::fromText);
    if (const auto placement = PlacementChoice::fromText(text))
        comesBack(*placement, PlacementChoice::fromText);
    if (const auto size = PrintSize::fromText(text)) {
        fuzzing::require(size->points.width() > 0 && size->points.height() > 0, "a print size has an area");
        comesBack(*size, PrintSize::fromText);
    }
    if (const auto border = PhotoBorder::fromText(text))
        comesBack(*border, PhotoBorder::fromText);
    QMap<QString, QString> options = {{QStringLiteral("corvel-placement"), text},
                                      {QStringLiteral("corvel-layout"), text}};
    fuzzing::require(ArrangementStyle::takeFrom(options).has_value() && options.isEmpty(),
                     "any stored style can be read");
}

/// Photos of different shapes, on a page with margins.
void plan(const PrintList &list)
{
    QList<LayoutItem> items;
    qsizetype prints = 0;
    for (const PrintList::Entry &entry : list.photos) {
        constexpr int narrowest = 100;
        const int width = narrowest * static_cast<int>(1 + items.size() % 5);
        items += {{width, 2 * narrowest}, 300, entry.placement, entry.copies};
        prints += entry.copies;
    }
    constexpr qsizetype mostPrints = 3000; // more take long and show no more
    if (prints > mostPrints)
        return;
    const PageGeometry page = {{288, 432}, {6, 12, 274, 408}};
    const SheetPlan sheets = SheetPlan::make(items, list.layout, page);
    fuzzing::require(!sheets.sheets().isEmpty(), "a preview has a sheet");
    for (const LaidSheet &sheet : sheets.sheets()) {
        fuzzing::require(!sheet.photos.isEmpty() && sheet.copies >= 1, "a sheet has photos");
        for (const LaidPhoto &photo : sheet.photos) {
            fuzzing::require(photo.item >= 0 && photo.item < items.size(), "a photo is one of the list's");
            fuzzing::require(photo.placement.target.isValid(), "a photo takes a part of its page");
        }
    }
}

void printList(const QByteArray &content)
{
    const QString path = fuzzing::write(fuzzing::folder() + QLatin1String("/list.json"), content);
    const auto list = PrintList::load(path);
    if (!list) {
        fuzzing::require(!list.failure().text.isEmpty(), "a refusal says why");
        return;
    }
    fuzzing::require(!list->save(path), "a list that was read can be saved");
    const auto again = PrintList::load(path);
    fuzzing::require(again && again->photos.size() == list->photos.size(), "a saved list can be read");
    for (qsizetype i = 0; i < list->photos.size(); ++i) {
        const PrintList::Entry &one = list->photos.at(i);
        const PrintList::Entry &other = again->photos.at(i);
        fuzzing::require(one.path == other.path && one.copies == other.copies, "photos come back");
    }
    plan(*list);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size == 0)
        return 0;
    const QByteArray content = fuzzing::input(data + 1, size - 1);
    if (data[0] == 'l')
        printList(content);
    else if (data[0] == 't')
        texts(QString::fromUtf8(content));
    return 0;
}
