// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "IppAttributes.h"

#include <cups/cups.h>

#include <algorithm>
#include <array>

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

IppValue::Kind kindOfText(ipp_tag_t tag)
{
    switch (tag) {
    case IPP_TAG_KEYWORD:
        return IppValue::Kind::Keyword;
    case IPP_TAG_NAME:
    case IPP_TAG_NAMELANG:
        return IppValue::Kind::Name;
    default:
        return IppValue::Kind::Text;
    }
}

ipp_tag_t tagOf(IppValue::Kind kind)
{
    switch (kind) {
    case IppValue::Kind::Enum:
        return IPP_TAG_ENUM;
    case IppValue::Kind::Keyword:
        return IPP_TAG_KEYWORD;
    case IppValue::Kind::Name:
        return IPP_TAG_NAME;
    case IppValue::Kind::Text:
        return IPP_TAG_TEXT;
    default:
        return IPP_TAG_INTEGER;
    }
}

/// Adds one attribute whose values are all of the first one's kind.
void addAttribute(ipp_t *message, ipp_tag_t group, const QByteArray &name, const QList<IppValue> &values)
{
    using Kind = IppValue::Kind;
    const char *key = name.constData();
    ipp_attribute_t *attribute = nullptr;
    const auto next = [&attribute] {
        return ippGetCount(attribute);
    };
    for (const IppValue &value : values) {
        const ipp_tag_t tag = tagOf(value.kind);
        const QByteArray text = value.text.toUtf8();
        switch (value.kind) {
        case Kind::Integer:
        case Kind::Enum:
            if (attribute)
                ippSetInteger(message, &attribute, next(), value.number);
            else
                attribute = ippAddInteger(message, group, tag, key, value.number);
            break;
        case Kind::Boolean:
            if (attribute)
                ippSetBoolean(message, &attribute, next(), static_cast<char>(value.number));
            else
                attribute = ippAddBoolean(message, group, key, static_cast<char>(value.number));
            break;
        case Kind::Range:
            if (attribute)
                ippSetRange(message, &attribute, next(), value.number, value.upper);
            else
                attribute = ippAddRange(message, group, key, value.number, value.upper);
            break;
        case Kind::Resolution:
            if (attribute)
                ippSetResolution(message, &attribute, next(), IPP_RES_PER_INCH, value.number, value.upper);
            else
                attribute =
                    ippAddResolution(message, group, key, IPP_RES_PER_INCH, value.number, value.upper);
            break;
        case Kind::Keyword:
        case Kind::Name:
        case Kind::Text:
            if (attribute)
                ippSetString(message, &attribute, next(), text.constData());
            else
                attribute = ippAddString(message, group, tag, key, nullptr, text.constData());
            break;
        case Kind::Collection: {
            ipp_t *members = ippNew();
            if (value.members)
                value.members->addTo(members, IPP_TAG_ZERO);
            if (attribute)
                ippSetCollection(message, &attribute, next(), members);
            else
                attribute = ippAddCollection(message, group, key, members);
            ippDelete(members); // the attribute has its own reference
            break;
        }
        case Kind::None:
            break;
        }
    }
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
                value.kind = kindOfText(ippGetValueTag(attribute));
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

void IppAttributes::addToJob(ipp_t *request) const
{
    addTo(request, IPP_TAG_JOB);
}

void IppAttributes::addTo(ipp_t *message, int group) const
{
    QStringList sorted = names();
    sorted.sort();
    for (const QString &name : std::as_const(sorted))
        addAttribute(message, static_cast<ipp_tag_t>(group), name.toLatin1(), values(name));
}

QMap<QString, QString> IppAttributes::spelled() const
{
    constexpr size_t longest = 8192;
    const std::unique_ptr<ipp_t, decltype(&ippDelete)> message(ippNew(), ippDelete);
    addToJob(message.get());
    QMap<QString, QString> all;
    for (ipp_attribute_t *attribute = ippFirstAttribute(message.get()); attribute;
         attribute = ippNextAttribute(message.get())) {
        std::array<char, longest> text = {};
        ippAttributeString(attribute, text.data(), text.size());
        all.insert(QString::fromLatin1(ippGetName(attribute)), QString::fromUtf8(text.data()));
    }
    return all;
}

QStringList IppAttributes::texts(const QString &name) const
{
    QStringList texts;
    const QList<IppValue> all = values(name);
    for (const IppValue &value : all) {
        if (value.isText())
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
