// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "CustomChoice.h"
#include "IppNames.h"
#include "IppOptions.h"
#include "PlainText.h"
#include "StandardLabels.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QSet>

#include <algorithm>
#include <array>

namespace printdialog {

namespace {

using Kind = IppValue::Kind;

constexpr qsizetype longestKeyword = 255;   // bytes, of what a job can carry
constexpr qsizetype longestAttribute = 255; // characters of its name
constexpr qsizetype shownText = 200;        // UTF-16 units, of an option's or a choice's text
constexpr qsizetype mostOptions = 500;
constexpr qsizetype mostNamed = 10; // in a note
constexpr int longestText = 255;    // characters, of a text that is typed

struct OpeningText
{
    Q_DECLARE_TR_FUNCTIONS(IppOptions)
};

const QString supportedSuffix = QStringLiteral("-supported");
const QString defaultSuffix = QStringLiteral("-default");

const std::array paperKeys = {"media", "media-source", "media-type"};
const std::array qualityKeys = {"print-quality",          "print-color-mode",       "printer-resolution",
                                "print-content-optimize", "print-rendering-intent", "print-scaling"};
const std::array finishingKeys = {"sides", "finishings", "finishing-template", "output-bin"};

template <class Keys>
QStringList texts(const Keys &keys)
{
    QStringList all;
    for (const char *key : keys)
        all += QString::fromLatin1(key);
    return all;
}

/// Attributes of jobs that are not the printer's to offer: the dialog sets them, or they mean nothing for one
/// photo on one page; and names that only look like options.
bool isOwn(const QString &key)
{
    static const QStringList names = texts(std::array{"copies",
                                                      "number-up",
                                                      "number-up-layout",
                                                      "orientation-requested",
                                                      "page-ranges",
                                                      "page-delivery",
                                                      "page-order-received",
                                                      "sheet-collate",
                                                      "separator-sheets",
                                                      "cover-back",
                                                      "cover-front",
                                                      "insert-sheet",
                                                      "force-front-side",
                                                      "presentation-direction-number-up",
                                                      "ipp-attribute-fidelity",
                                                      "overrides",
                                                      "feed-orientation",
                                                      "imposition-template",
                                                      "output-device",
                                                      "confirmation-sheet-print",
                                                      "charset",
                                                      "generated-natural-language",
                                                      "compression",
                                                      "finishings-col",
                                                      "x-image-position",
                                                      "y-image-position",
                                                      "print-accuracy",
                                                      "print-base",
                                                      "print-supports",
                                                      "which-jobs",
                                                      "operations",
                                                      "uri-authentication"});
    static const QStringList prefixes = texts(std::array{
        "job-",      "document-", "multiple-", "media",  "notify-",     "printer-", "pdl-",   "pwg-",
        "pdf-",      "urf",       "pclm-",     "jpeg-",  "ipp-",        "uri-",     "xri-",   "fetch-",
        "identify-", "x-side",    "y-side",    "proof-", "accounting-", "retry-",   "power-", "oauth-"});
    return names.contains(key) ||
           std::ranges::any_of(prefixes, [&key](const QString &prefix) { return key.startsWith(prefix); });
}

bool isAttributeName(const QString &name)
{
    return !name.isEmpty() && name.size() <= longestAttribute && std::ranges::all_of(name, [](QChar c) {
        return c.unicode() < 128 && (c.isLetterOrNumber() || c == u'-' || c == u'.' || c == u'_');
    });
}

/// How a value is stored, compared and shown to programs; empty when it cannot be.
QString keywordOf(const IppValue &value)
{
    switch (value.kind) {
    case Kind::Integer:
    case Kind::Enum:
        return QString::number(value.number);
    case Kind::Boolean:
        return value.number != 0 ? QStringLiteral("True") : QStringLiteral("False");
    case Kind::Resolution:
        if (value.number < 1 || value.upper < 1)
            return {};
        return value.number == value.upper ? QStringLiteral("%1dpi").arg(value.number)
                                           : QStringLiteral("%1x%2dpi").arg(value.number).arg(value.upper);
    case Kind::Keyword:
    case Kind::Name:
    case Kind::Text: {
        const bool isFit = value.text.toUtf8().size() <= longestKeyword &&
                           plainText(value.text) == value.text && !isCustomChoice(value.text) &&
                           !value.text.startsWith(u'{');
        return isFit ? value.text : QString();
    }
    default:
        return {};
    }
}

QStringList keywordsOfAll(const QList<IppValue> &values)
{
    QStringList keywords;
    for (const IppValue &value : values)
        keywords += keywordOf(value);
    return keywords;
}

QString textOf(const QString &key, const QString &keyword, const IppValue &value)
{
    const QString label = StandardLabels::choice(key, keyword);
    if (!label.isEmpty())
        return label;
    if (value.kind == Kind::Boolean)
        return value.number != 0 ? OpeningText::tr("Yes") : OpeningText::tr("No");
    if (value.kind != Kind::Resolution)
        return plainText(keyword, shownText);
    return value.number == value.upper ? OpeningText::tr("%1 dpi").arg(value.number)
                                       : OpeningText::tr("%1 × %2 dpi").arg(value.number).arg(value.upper);
}

Kind kindOf(const QList<IppValue> &values)
{
    return values.isEmpty() ? Kind::None : values.constFirst().kind;
}

bool isRange(const QList<IppValue> &values)
{
    return kindOf(values) == Kind::Range;
}

bool isText(Kind kind)
{
    return kind == Kind::Name || kind == Kind::Text;
}

} // namespace

std::optional<IppOptions> IppOptions::of(const IppAttributes &printer)
{
    IppOptions options(printer);
    if (options.pageSizes_.isEmpty())
        return std::nullopt;
    return options;
}

IppOptions::IppOptions(const IppAttributes &printer)
    : media_(printer)
{
    LeftOut leftOut;
    indexMedia(printer, leftOut);
    if (pageSizes_.isEmpty())
        return;
    indexKnown(printer, leftOut);
    indexOthers(printer, leftOut);
    group();
    ticket_.formats = printer.texts(QStringLiteral("document-format-supported"));
    ticket_.scalings = printer.texts(QStringLiteral("print-scaling-supported"));
    const QList<IppValue> copies = printer.values(QStringLiteral("copies-supported"));
    if (isRange(copies))
        ticket_.mostCopies = std::max(copies.constFirst().upper, 0);
    readConstraints(printer, leftOut);
    note(leftOut);
}

void IppOptions::indexMedia(const IppAttributes &printer, LeftOut &leftOut)
{
    Option media;
    media.text = StandardLabels::option(ippnames::media);
    for (const IppMedia::Listed &listed : media_.sizes()) {
        const IppSize &size = listed.size;
        const QString text = StandardLabels::pageSize(size.name, size.points(), listed.isTwin);
        media.indexOf.insert(listed.keyword, media.choices.size());
        media.choices += {listed.keyword, text};
        pageSizes_ += {listed.keyword, text, size.points(), size.imageable()};
    }
    if (pageSizes_.isEmpty())
        return;
    const QList<IppValue> mediaCol = printer.values(QStringLiteral("media-col-default"));
    QStringList preset;
    if (!mediaCol.isEmpty() && mediaCol.constFirst().members)
        preset = media_.keywordsOf(*mediaCol.constFirst().members);
    const auto name = printer.text(QStringLiteral("media-default"));
    if (preset.isEmpty() && name)
        preset = media_.keywordsOf(*name);
    if (!preset.isEmpty())
        setPreset(media, ippnames::media, {preset.constFirst()}, leftOut);
    else if (!mediaCol.isEmpty() || name)
        leftOut.defaults += ippnames::media;
    if (!media.marked)
        media.marked = media.choices.constFirst().keyword;
    file(ippnames::media, media);
}

void IppOptions::indexKnown(const IppAttributes &printer, LeftOut &leftOut)
{
    const QList<IppValue> mediaCol = printer.values(QStringLiteral("media-col-default"));
    for (const QString &key : {ippnames::mediaSource, ippnames::mediaType}) {
        const IppAttributes *members = mediaCol.isEmpty() ? nullptr : mediaCol.constFirst().members.get();
        const QList<IppValue> preset =
            members && members->contains(key) ? members->values(key) : printer.values(key + defaultSuffix);
        indexOption(key, printer.values(key + supportedSuffix), preset, leftOut);
    }
    for (const QString &key : texts(qualityKeys) + texts(finishingKeys))
        indexValues(printer, key, leftOut);
}

/// Those that a job may have, where the printer says so; else those with a default.
void IppOptions::indexOthers(const IppAttributes &printer, LeftOut &leftOut)
{
    const QStringList accepted = printer.texts(QStringLiteral("job-creation-attributes-supported"));
    const QSet<QString> acceptedSet(accepted.cbegin(), accepted.cend());
    QStringList names = printer.names();
    names.sort();
    for (const QString &name : std::as_const(names)) {
        if (!name.endsWith(supportedSuffix))
            continue;
        const QString key = name.chopped(supportedSuffix.size());
        const bool isAccepted =
            acceptedSet.contains(key) || (acceptedSet.isEmpty() && printer.contains(key + defaultSuffix));
        if (isAccepted && !isOwn(key) && !hasOption(key) && isAttributeName(key))
            indexValues(printer, key, leftOut);
    }
}

void IppOptions::indexValues(const IppAttributes &printer, const QString &key, LeftOut &leftOut)
{
    indexOption(key, printer.values(key + supportedSuffix), printer.values(key + defaultSuffix), leftOut);
}

void IppOptions::indexOption(const QString &key, const QList<IppValue> &supported,
                             const QList<IppValue> &preset, LeftOut &leftOut)
{
    if (supported.isEmpty())
        return;
    if (keywords_.size() >= mostOptions) {
        leftOut.options += key;
        return;
    }
    Option option;
    const QString label = StandardLabels::option(key);
    option.text = label.isEmpty() ? plainText(key, shownText) : label;
    if (key == QLatin1String("finishings"))
        option.kind = OptionKind::PickMany;
    else if (kindOf(supported) == Kind::Boolean && !isText(kindOf(preset)))
        option.kind = OptionKind::Boolean;
    option.syntax = kindOf(supported);
    addCustom(option, key, supported, preset);
    QList<IppValue> listed = option.custom.isEmpty() ? supported : preset.mid(0, 1);
    // "true" alone means that it can be had, and left.
    if (option.kind == OptionKind::Boolean && listed.size() == 1 && listed.constFirst().number != 0)
        listed += {Kind::Boolean, 0, 0, {}, {}};
    int unusable = 0;
    for (const IppValue &value : listed) {
        const QString keyword = value.kind == option.syntax ? keywordOf(value) : QString();
        if (keyword.isEmpty() || option.indexOf.contains(keyword)) {
            ++unusable;
            continue;
        }
        option.indexOf.insert(keyword, option.choices.size());
        option.choices += {keyword, textOf(key, keyword, value)};
    }
    if (option.choices.isEmpty() && option.custom.isEmpty()) {
        leftOut.options += key;
        return;
    }
    leftOut.values += option.custom.isEmpty() ? unusable : 0;
    setPreset(option, key, keywordsOfAll(preset), leftOut);
    file(key, option);
}

/// A number from a range, or a text, is typed: its only listed choice is the printer's default.
void IppOptions::addCustom(Option &option, const QString &key, const QList<IppValue> &supported,
                           const QList<IppValue> &preset)
{
    CustomParameter parameter;
    parameter.name = key;
    parameter.text = option.text;
    const Kind wanted = kindOf(preset);
    if (isText(wanted) && (kindOf(supported) == Kind::Boolean || kindOf(supported) == Kind::Integer)) {
        const bool isLength = kindOf(supported) == Kind::Integer;
        const int most = isLength ? std::min(supported.constFirst().number, longestText) : longestText;
        if (most < 1)
            return;
        parameter.kind = CustomParameter::Kind::Text;
        parameter.maximum = most;
        option.syntax = wanted;
        option.custom += parameter;
        return;
    }
    const bool isMost = kindOf(supported) == Kind::Integer && supported.size() == 1 &&
                        (wanted == Kind::Integer || wanted == Kind::None);
    if (!isRange(supported) && !isMost)
        return;
    parameter.kind = CustomParameter::Kind::Integer;
    parameter.minimum = isMost ? 0 : supported.constFirst().number;
    parameter.maximum = isMost ? supported.constFirst().number : supported.constFirst().upper;
    option.syntax = Kind::Integer;
    if (parameter.minimum <= parameter.maximum)
        option.custom += parameter;
}

/// Without a usable default nothing is marked, and the printer decides.
void IppOptions::setPreset(Option &option, const QString &key, const QStringList &preset, LeftOut &leftOut)
{
    if (preset.isEmpty())
        return;
    const QStringList wanted = option.kind == OptionKind::PickMany ? preset : preset.mid(0, 1);
    QStringList found;
    for (const Choice &choice : std::as_const(option.choices)) {
        if (wanted.contains(choice.keyword))
            found += choice.keyword;
    }
    // A listed default is within the range, too.
    const bool isOutside = !option.custom.isEmpty() && option.custom.constFirst().isNumber() &&
                           std::ranges::any_of(wanted, [&option](const QString &keyword) {
                               return !customValue(option.custom.constFirst(), keyword);
                           });
    if (found.isEmpty() || isOutside) {
        leftOut.defaults += key;
        if (isOutside) {
            option.choices.clear();
            option.indexOf.clear();
        }
        return;
    }
    option.preset = found.join(u',');
    option.marked = option.preset;
}

void IppOptions::file(const QString &key, const Option &option)
{
    keywords_ += key;
    options_.insert(key, option);
}

void IppOptions::group()
{
    QStringList rest = keywords_;
    const auto take = [&](const QString &text, const QStringList &keys) {
        OptionGroup made{text, {}, false};
        for (const QString &key : keys) {
            if (rest.removeOne(key))
                made.options += key;
        }
        if (!made.options.isEmpty())
            groups_ += made;
    };
    take(OpeningText::tr("Paper"), texts(paperKeys));
    take(OpeningText::tr("Quality"), texts(qualityKeys));
    take(OpeningText::tr("Finishing"), texts(finishingKeys));
    take(OpeningText::tr("Further options"), QStringList(rest));
    keywords_.clear();
    for (const OptionGroup &group : std::as_const(groups_))
        keywords_ += group.options;
}

void IppOptions::note(const LeftOut &leftOut)
{
    const auto named = [](const QStringList &keys) {
        const qsizetype more = keys.size() - mostNamed;
        const QString list = keys.mid(0, mostNamed).join(QStringLiteral(", "));
        return more > 0 ? list + QStringLiteral(", …") : list;
    };
    if (media_.unusable() > 0)
        notes_ += OpeningText::tr("Page sizes of the printer left out because they cannot be used: %1.")
                      .arg(media_.unusable());
    if (!leftOut.options.isEmpty())
        notes_ += OpeningText::tr("Options left out because they have no usable values: %1.")
                      .arg(named(leftOut.options));
    if (leftOut.values > 0)
        notes_ +=
            OpeningText::tr("Values of options left out because they are repeated or cannot be used: %1.")
                .arg(leftOut.values);
    if (!leftOut.defaults.isEmpty())
        notes_ += OpeningText::tr("Defaults left out because they are not among the choices: %1.")
                      .arg(named(leftOut.defaults));
    if (leftOut.combinations > 0)
        notes_ += OpeningText::tr("Rules about choices left out because they are too many: %1.")
                      .arg(leftOut.combinations);
}

} // namespace printdialog
