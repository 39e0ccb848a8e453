// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "IppMedia.h"

#include "IppNames.h"
#include "PlainText.h"

#include <cups/cups.h>
#include <cups/pwg.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace printdialog {

namespace {

constexpr double hundredthsPerPoint = 2540.0 / 72;
constexpr int leastSide = 100;         // hundredths of a millimeter
constexpr int mostSide = 2'540'000;    // 1,000 inches, beyond every sheet and roll
constexpr int sameSize = 50;           // names are rounded differently from dimensions
constexpr qsizetype longestName = 255; // bytes of a keyword

bool isSide(int hundredths)
{
    return hundredths >= leastSide && hundredths <= mostSide;
}

QString attributeOf(const char *side)
{
    return QStringLiteral("media-%1-margin").arg(QLatin1String(side));
}

const QString leftMargin = attributeOf("left");
const QString topMargin = attributeOf("top");
const QString rightMargin = attributeOf("right");
const QString bottomMargin = attributeOf("bottom");
const QString xDimension = QStringLiteral("x-dimension");
const QString yDimension = QStringLiteral("y-dimension");
const QString twinSuffix = QStringLiteral(".borderless");

bool isName(const QString &name)
{
    return !name.isEmpty() && name.toUtf8().size() <= longestName && plainText(name) == name &&
           !name.contains(u' ') && !name.contains(u',');
}

IppSize::Margins marginsOf(const IppAttributes &entry)
{
    const auto side = [&entry](const QString &name) {
        return std::clamp(entry.number(name).value_or(0), 0, mostSide);
    };
    return {side(leftMargin), side(topMargin), side(rightMargin), side(bottomMargin)};
}

const IppAttributes *sizeOf(const IppAttributes &entry)
{
    const QList<IppValue> values = entry.values(ippnames::mediaSize);
    return values.isEmpty() ? nullptr : values.constFirst().members.get();
}

/// A number counts as a range of one.
std::optional<std::pair<int, int>> rangeOf(const IppAttributes &size, const QString &name)
{
    const QList<IppValue> values = size.values(name);
    if (values.isEmpty())
        return std::nullopt;
    const IppValue &value = values.constFirst();
    if (value.kind == IppValue::Kind::Range)
        return std::pair(value.number, value.upper);
    return value.isNumber() ? std::optional(std::pair(value.number, value.number)) : std::nullopt;
}

std::optional<std::pair<int, int>> dimensionsOf(const QString &name)
{
    const pwg_media_t *media = pwgMediaForPWG(name.toUtf8().constData());
    if (!media || !isSide(media->width) || !isSide(media->length))
        return std::nullopt;
    return std::pair(media->width, media->length);
}

QString nameOf(int width, int length)
{
    const pwg_media_t *media = pwgMediaForSize(width, length);
    return media && media->pwg ? QString::fromLatin1(media->pwg) : QString();
}

int widest(const IppSize::Margins &margins)
{
    return margins.left + margins.top + margins.right + margins.bottom;
}

} // namespace

// A size

QSizeF IppSize::points() const
{
    return QSizeF(width, length) / hundredthsPerPoint;
}

QRectF IppSize::imageable() const
{
    const QRectF sheet(QPointF(), points());
    const QRectF area =
        sheet.adjusted(margins.left / hundredthsPerPoint, margins.top / hundredthsPerPoint,
                       -margins.right / hundredthsPerPoint, -margins.bottom / hundredthsPerPoint);
    return area.isValid() ? area : sheet;
}

IppAttributes IppSize::mediaCol(const QString &source, const QString &type) const
{
    const auto integer = [](int number) {
        return QList<IppValue>{{IppValue::Kind::Integer, number, 0, {}, {}}};
    };
    const auto keyword = [](const QString &text) {
        return QList<IppValue>{{IppValue::Kind::Keyword, 0, 0, text, {}}};
    };
    IppAttributes size;
    size.insert(xDimension, integer(width));
    size.insert(yDimension, integer(length));
    IppAttributes media;
    media.insert(ippnames::mediaSize,
                 {{IppValue::Kind::Collection, 0, 0, {}, std::make_shared<const IppAttributes>(size)}});
    media.insert(leftMargin, integer(margins.left));
    media.insert(topMargin, integer(margins.top));
    media.insert(rightMargin, integer(margins.right));
    media.insert(bottomMargin, integer(margins.bottom));
    if (!source.isEmpty())
        media.insert(ippnames::mediaSource, keyword(source));
    if (!type.isEmpty())
        media.insert(ippnames::mediaType, keyword(type));
    return media;
}

// All sizes

IppMedia::IppMedia(const IppAttributes &printer)
{
    readDatabase(printer);
    if (found_.isEmpty())
        readNames(printer);
    if (!range_)
        readCustomNames(printer.texts(ippnames::mediaSupported));
    list();
}

void IppMedia::readDatabase(const IppAttributes &printer)
{
    QHash<std::pair<int, int>, QString> names;
    const QStringList known = printer.texts(ippnames::mediaSupported);
    for (const QString &name : known) {
        if (const auto dimensions = isName(name) ? dimensionsOf(name) : std::nullopt;
            dimensions && !names.contains(*dimensions))
            names.insert(*dimensions, name);
    }
    const QList<IppValue> entries = printer.values(QStringLiteral("media-col-database"));
    for (const IppValue &value : entries) {
        const IppAttributes *size = value.members ? sizeOf(*value.members) : nullptr;
        const auto width = size ? rangeOf(*size, xDimension) : std::nullopt;
        const auto length = size ? rangeOf(*size, yDimension) : std::nullopt;
        if (!width || !length || !isSide(width->first) || !isSide(width->second) || !isSide(length->first) ||
            !isSide(length->second) || width->first > width->second || length->first > length->second) {
            ++unusable_;
            continue;
        }
        const IppSize::Margins margins = marginsOf(*value.members);
        if (width->first != width->second || length->first != length->second) {
            offer({width->first, length->first, width->second, length->second}, margins);
            continue;
        }
        const QString own = value.members->text(ippnames::mediaSizeName).value_or(QString());
        QString name = isName(own) && dimensionsOf(own) ? own : names.value({width->first, length->first});
        add({name.isEmpty() ? nameOf(width->first, length->first) : name, width->first, length->first,
             margins});
    }
}

void IppMedia::readNames(const IppAttributes &printer)
{
    const auto margins = [&printer](const char *side) {
        QList<int> numbers;
        const QList<IppValue> values = printer.values(attributeOf(side) + QLatin1String("-supported"));
        for (const IppValue &value : values) {
            if (value.isNumber() && value.number >= 0)
                numbers += value.number;
        }
        return numbers.isEmpty() ? QList<int>{0} : numbers;
    };
    const std::array all = {margins("left"), margins("top"), margins("right"), margins("bottom")};
    const auto most = [&all](size_t side) {
        return *std::ranges::max_element(all.at(side));
    };
    const IppSize::Margins bordered{most(0), most(1), most(2), most(3)};
    const bool hasBorderless =
        std::ranges::all_of(all, [](const QList<int> &side) { return side.contains(0); });
    const QStringList names = printer.texts(ippnames::mediaSupported);
    for (const QString &name : names) {
        if (name.startsWith(QLatin1String("custom_")) || name.startsWith(QLatin1String("roll_")))
            continue;
        const auto dimensions = isName(name) ? dimensionsOf(name) : std::nullopt;
        if (!dimensions) {
            ++unusable_;
            continue;
        }
        add({name, dimensions->first, dimensions->second, bordered});
        if (hasBorderless)
            add({name, dimensions->first, dimensions->second, {}});
    }
    rangeMargins_ = bordered;
}

void IppMedia::readCustomNames(const QStringList &names)
{
    std::optional<std::pair<int, int>> least;
    std::optional<std::pair<int, int>> most;
    for (const QString &name : names) {
        if (name.startsWith(QLatin1String("custom_min_")))
            least = dimensionsOf(name);
        else if (name.startsWith(QLatin1String("custom_max_")))
            most = dimensionsOf(name);
    }
    if (!least || !most)
        return;
    if (least->first <= most->first && least->second <= most->second)
        offer({least->first, least->second, most->first, most->second}, rangeMargins_);
    else
        ++unusable_;
}

void IppMedia::add(const IppSize &size)
{
    if (size.name.isEmpty()) {
        ++unusable_;
        return;
    }
    // Margins that leave nothing to print on are not the printer's.
    if (size.margins.left + size.margins.right >= size.width ||
        size.margins.top + size.margins.bottom >= size.length) {
        add({size.name, size.width, size.length, {}});
        return;
    }
    const std::pair dimensions(size.width, size.length);
    const auto known = foundAt_.constFind(dimensions);
    if (known == foundAt_.cend()) {
        foundAt_.insert(dimensions, found_.size());
        found_.append({size});
        return;
    }
    QList<IppSize> &variants = found_[*known];
    const auto alike = std::ranges::find_if(variants, [&size](const IppSize &variant) {
        return variant.margins.areNone() == size.margins.areNone();
    });
    if (alike == variants.end())
        variants.append(size);
    else if (widest(size.margins) > widest(alike->margins))
        alike->margins = size.margins; // what is placed inside them is printed from every tray
}

void IppMedia::offer(const Range &range, const IppSize::Margins &margins)
{
    if (range_)
        return;
    range_ = range;
    rangeMargins_ = margins;
}

void IppMedia::list()
{
    for (QList<IppSize> &variants : found_) {
        // With its margins first, in whatever order the printer has them.
        std::ranges::stable_sort(variants, {}, [](const IppSize &size) { return size.margins.areNone(); });
        for (const IppSize &size : std::as_const(variants)) {
            const bool isTwin = size.margins.areNone() && variants.size() > 1;
            const QString keyword = isTwin ? size.name + twinSuffix : size.name;
            if (indexOf_.contains(keyword)) {
                ++unusable_;
                continue;
            }
            indexOf_.insert(keyword, sizes_.size());
            sizes_.append({keyword, size, isTwin});
        }
    }
}

QStringList IppMedia::keywordsOf(const IppAttributes &mediaCol) const
{
    const IppAttributes *size = sizeOf(mediaCol);
    const auto width = size ? rangeOf(*size, xDimension) : std::nullopt;
    const auto length = size ? rangeOf(*size, yDimension) : std::nullopt;
    const auto name = mediaCol.text(ippnames::mediaSizeName);
    const auto isWithin = [](int number, const std::optional<std::pair<int, int>> &range) {
        return !range || (number >= range->first - sameSize && number <= range->second + sameSize);
    };
    const auto hasMargin = [&mediaCol](const QString &side, int margin) {
        const auto wanted = mediaCol.number(side);
        return !wanted || (*wanted == 0) == (margin == 0);
    };
    QStringList keywords;
    for (const Listed &listed : sizes_) {
        const IppSize &each = listed.size;
        if (isWithin(each.width, width) && isWithin(each.length, length) && (!name || *name == each.name) &&
            hasMargin(leftMargin, each.margins.left) && hasMargin(topMargin, each.margins.top) &&
            hasMargin(rightMargin, each.margins.right) && hasMargin(bottomMargin, each.margins.bottom))
            keywords += listed.keyword;
    }
    return keywords;
}

QStringList IppMedia::keywordsOf(const QString &name) const
{
    QStringList keywords;
    for (const Listed &listed : sizes_) {
        if (listed.size.name == name)
            keywords += listed.keyword;
    }
    return keywords;
}

std::optional<CustomPageRange> IppMedia::customRange() const
{
    if (!range_)
        return std::nullopt;
    return CustomPageRange{QSizeF(range_->leastWidth, range_->leastLength) / hundredthsPerPoint,
                           QSizeF(range_->mostWidth, range_->mostLength) / hundredthsPerPoint};
}

std::optional<IppSize> IppMedia::customSize(const QSizeF &points) const
{
    constexpr int rounding = 4; // hundredths of a millimeter
    const QSizeF wanted = points * hundredthsPerPoint;
    if (!range_ || !(wanted.width() < mostSide && wanted.height() < mostSide))
        return std::nullopt;
    const int width = static_cast<int>(std::lround(wanted.width()));
    const int length = static_cast<int>(std::lround(wanted.height()));
    const bool isInside = width >= range_->leastWidth - rounding && width <= range_->mostWidth + rounding &&
                          length >= range_->leastLength - rounding && length <= range_->mostLength + rounding;
    if (!isInside)
        return std::nullopt;
    return IppSize{QString(), std::clamp(width, range_->leastWidth, range_->mostWidth),
                   std::clamp(length, range_->leastLength, range_->mostLength), rangeMargins_};
}

} // namespace printdialog
