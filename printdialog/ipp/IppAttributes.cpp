// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "IppAttributes.h"

#include <cups/cups.h>

#include <algorithm>

namespace printdialog {

namespace {

constexpr int mostRead = 10'000;
constexpr int deepest = 8; // of nested collections; media-col-database needs 2

/// Dots per inch; a resolution may be given per centimeter.
int perInch(int resolution, ipp_res_t units)
{
    constexpr double centimetersPerInch = 2.54;
    return units == IPP_RES_PER_CM ? static_cast<int>(resolution * centimetersPerInch + 0.5) : resolution;
}

} // namespace

struct IppReader
{
    static IppValue value(ipp_attribute_t *attribute, int index, int depth)
    {
        using Kind = IppValue::Kind;
        IppValue value;
        switch (ippGetValueTag(attribute)) {
        case IPP_TAG_INTEGER:
        case IPP_TAG_ENUM:
            value.kind = ippGetValueTag(attribute) == IPP_TAG_ENUM ? Kind::Enum : Kind::Integer;
            value.number = ippGetInteger(attribute, index);
            break;
        case IPP_TAG_BOOLEAN:
            value.kind = Kind::Boolean;
            value.number = ippGetBoolean(attribute, index) != 0 ? 1 : 0;
            break;
        case IPP_TAG_RANGE:
            value.kind = Kind::Range;
            value.number = ippGetRange(attribute, index, &value.upper);
            break;
        case IPP_TAG_RESOLUTION: {
            ipp_res_t units = IPP_RES_PER_INCH;
            int down = 0;
            const int across = ippGetResolution(attribute, index, &down, &units);
            value.kind = Kind::Resolution;
            value.number = perInch(across, units);
            value.upper = perInch(down, units);
            break;
        }
        case IPP_TAG_BEGIN_COLLECTION:
            if (depth < deepest) {
                value.kind = Kind::Collection;
                value.members = std::make_shared<const IppAttributes>(
                    all(ippGetCollection(attribute, index), depth + 1, IPP_TAG_ZERO));
            }
            break;
        default:
            if (const char *text = ippGetString(attribute, index, nullptr)) {
                value.kind = ippGetValueTag(attribute) == IPP_TAG_KEYWORD ? Kind::Keyword : Kind::Text;
                value.text = QString::fromUtf8(text);
            }
            break;
        }
        return value;
    }

    /// @param group IPP_TAG_ZERO: all
    static IppAttributes all(ipp_t *message, int depth, ipp_tag_t group)
    {
        IppAttributes attributes;
        for (ipp_attribute_t *attribute = ippFirstAttribute(message); attribute;
             attribute = ippNextAttribute(message)) {
            const QString name = QString::fromLatin1(ippGetName(attribute));
            if (name.isEmpty() || attributes.contains(name) ||
                (group != IPP_TAG_ZERO && ippGetGroupTag(attribute) != group))
                continue;
            QList<IppValue> values;
            const int count = std::min(ippGetCount(attribute), mostRead);
            values.reserve(count);
            for (int i = 0; i < count; ++i)
                values += value(attribute, i, depth);
            attributes.insert(name, values);
        }
        return attributes;
    }
};

IppAttributes IppAttributes::ofPrinter(ipp_t *answer)
{
    return answer ? IppReader::all(answer, 0, IPP_TAG_PRINTER) : IppAttributes();
}

QStringList IppAttributes::texts(const QString &name) const
{
    QStringList texts;
    const QList<IppValue> all = values(name);
    for (const IppValue &value : all) {
        if (value.kind == IppValue::Kind::Keyword || value.kind == IppValue::Kind::Text)
            texts += value.text;
    }
    return texts;
}

std::optional<QString> IppAttributes::text(const QString &name) const
{
    const QStringList all = texts(name);
    return all.isEmpty() ? std::nullopt : std::optional(all.constFirst());
}

std::optional<int> IppAttributes::number(const QString &name) const
{
    const QList<IppValue> all = values(name);
    return all.isEmpty() || !all.constFirst().isNumber() ? std::nullopt
                                                         : std::optional(all.constFirst().number);
}

} // namespace printdialog
