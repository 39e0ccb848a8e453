// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "StandardLabels.h"

#include "CustomChoice.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QHash>
#include <QtCore/QRegularExpression>

#include <array>
#include <utility>

namespace printdialog {

namespace {

struct LabelText
{
    Q_DECLARE_TR_FUNCTIONS(StandardLabels)
};

struct OptionRow
{
    const char *names; // of the IPP attribute, and of the PPD's option
    const char *text;
};

struct ChoiceRow
{
    const char *keywords; // one label for several; of PPDs only those that ppdKeyword() does not find
    const char *text;
};

constexpr std::array optionRows = {
    OptionRow{"media PageSize", QT_TRANSLATE_NOOP("StandardLabels", "Paper size")},
    OptionRow{"media-type MediaType", QT_TRANSLATE_NOOP("StandardLabels", "Paper type")},
    OptionRow{"media-source InputSlot", QT_TRANSLATE_NOOP("StandardLabels", "Paper source")},
    OptionRow{"print-quality cupsPrintQuality", QT_TRANSLATE_NOOP("StandardLabels", "Print quality")},
    OptionRow{"print-color-mode ColorModel", QT_TRANSLATE_NOOP("StandardLabels", "Color mode")},
    OptionRow{"sides Duplex", QT_TRANSLATE_NOOP("StandardLabels", "Two-sided printing")},
    OptionRow{"output-bin OutputBin", QT_TRANSLATE_NOOP("StandardLabels", "Output tray")},
    OptionRow{"finishings", QT_TRANSLATE_NOOP("StandardLabels", "Finishing")},
    OptionRow{"finishing-template cupsFinishingTemplate",
              QT_TRANSLATE_NOOP("StandardLabels", "Finishing template")},
    OptionRow{"print-scaling", QT_TRANSLATE_NOOP("StandardLabels", "Scaling by the printer")},
    OptionRow{"printer-resolution", QT_TRANSLATE_NOOP("StandardLabels", "Resolution")},
    OptionRow{"print-content-optimize", QT_TRANSLATE_NOOP("StandardLabels", "Optimize for")},
    OptionRow{"print-rendering-intent", QT_TRANSLATE_NOOP("StandardLabels", "Rendering intent")},
    OptionRow{"CutMedia", QT_TRANSLATE_NOOP("StandardLabels", "Cutting")},
};

constexpr std::array typeRows = {
    ChoiceRow{"auto", QT_TRANSLATE_NOOP("StandardLabels", "Automatic")},
    ChoiceRow{"stationery", QT_TRANSLATE_NOOP("StandardLabels", "Plain paper")},
    ChoiceRow{"stationery-coated", QT_TRANSLATE_NOOP("StandardLabels", "Coated paper")},
    ChoiceRow{"stationery-heavyweight", QT_TRANSLATE_NOOP("StandardLabels", "Heavy paper")},
    ChoiceRow{"stationery-lightweight", QT_TRANSLATE_NOOP("StandardLabels", "Light paper")},
    ChoiceRow{"stationery-inkjet", QT_TRANSLATE_NOOP("StandardLabels", "Inkjet paper")},
    ChoiceRow{"stationery-letterhead", QT_TRANSLATE_NOOP("StandardLabels", "Letterhead")},
    ChoiceRow{"photographic", QT_TRANSLATE_NOOP("StandardLabels", "Photo paper")},
    ChoiceRow{"photographic-archival", QT_TRANSLATE_NOOP("StandardLabels", "Archival photo paper")},
    ChoiceRow{"photographic-film", QT_TRANSLATE_NOOP("StandardLabels", "Photo film")},
    ChoiceRow{"photographic-glossy", QT_TRANSLATE_NOOP("StandardLabels", "Glossy photo paper")},
    ChoiceRow{"photographic-high-gloss", QT_TRANSLATE_NOOP("StandardLabels", "High-gloss photo paper")},
    ChoiceRow{"photographic-matte", QT_TRANSLATE_NOOP("StandardLabels", "Matte photo paper")},
    ChoiceRow{"photographic-satin", QT_TRANSLATE_NOOP("StandardLabels", "Satin photo paper")},
    ChoiceRow{"photographic-semi-gloss", QT_TRANSLATE_NOOP("StandardLabels", "Semi-gloss photo paper")},
    ChoiceRow{"cardstock", QT_TRANSLATE_NOOP("StandardLabels", "Card stock")},
    ChoiceRow{"continuous", QT_TRANSLATE_NOOP("StandardLabels", "Continuous paper")},
    ChoiceRow{"disc", QT_TRANSLATE_NOOP("StandardLabels", "Disc")},
    ChoiceRow{"envelope", QT_TRANSLATE_NOOP("StandardLabels", "Envelope")},
    ChoiceRow{"labels", QT_TRANSLATE_NOOP("StandardLabels", "Labels")},
    ChoiceRow{"transparency", QT_TRANSLATE_NOOP("StandardLabels", "Transparency")},
    ChoiceRow{"other", QT_TRANSLATE_NOOP("StandardLabels", "Other paper")},
};

/// Also of output trays.
constexpr std::array trayRows = {
    ChoiceRow{"auto", QT_TRANSLATE_NOOP("StandardLabels", "Automatic")},
    ChoiceRow{"main", QT_TRANSLATE_NOOP("StandardLabels", "Main tray")},
    ChoiceRow{"alternate", QT_TRANSLATE_NOOP("StandardLabels", "Alternate tray")},
    ChoiceRow{"manual", QT_TRANSLATE_NOOP("StandardLabels", "Manual feed")},
    ChoiceRow{"by-pass-tray", QT_TRANSLATE_NOOP("StandardLabels", "Bypass tray")},
    ChoiceRow{"photo", QT_TRANSLATE_NOOP("StandardLabels", "Photo tray")},
    ChoiceRow{"hagaki", QT_TRANSLATE_NOOP("StandardLabels", "Postcard tray")},
    ChoiceRow{"envelope", QT_TRANSLATE_NOOP("StandardLabels", "Envelope tray")},
    ChoiceRow{"disc", QT_TRANSLATE_NOOP("StandardLabels", "Disc tray")},
    ChoiceRow{"large-capacity", QT_TRANSLATE_NOOP("StandardLabels", "Large tray")},
    ChoiceRow{"main-roll", QT_TRANSLATE_NOOP("StandardLabels", "Main roll")},
    ChoiceRow{"alternate-roll", QT_TRANSLATE_NOOP("StandardLabels", "Alternate roll")},
    ChoiceRow{"top", QT_TRANSLATE_NOOP("StandardLabels", "Top tray")},
    ChoiceRow{"middle", QT_TRANSLATE_NOOP("StandardLabels", "Middle tray")},
    ChoiceRow{"bottom", QT_TRANSLATE_NOOP("StandardLabels", "Bottom tray")},
    ChoiceRow{"center", QT_TRANSLATE_NOOP("StandardLabels", "Center tray")},
    ChoiceRow{"left", QT_TRANSLATE_NOOP("StandardLabels", "Left tray")},
    ChoiceRow{"right", QT_TRANSLATE_NOOP("StandardLabels", "Right tray")},
    ChoiceRow{"rear", QT_TRANSLATE_NOOP("StandardLabels", "Rear tray")},
    ChoiceRow{"side", QT_TRANSLATE_NOOP("StandardLabels", "Side tray")},
    ChoiceRow{"face-up", QT_TRANSLATE_NOOP("StandardLabels", "Face up")},
    ChoiceRow{"face-down", QT_TRANSLATE_NOOP("StandardLabels", "Face down")},
};

constexpr std::array qualityRows = {
    ChoiceRow{"3 draft", QT_TRANSLATE_NOOP("StandardLabels", "Draft")},
    ChoiceRow{"4 normal", QT_TRANSLATE_NOOP("StandardLabels", "Normal")},
    ChoiceRow{"5 high", QT_TRANSLATE_NOOP("StandardLabels", "High")},
};

constexpr std::array colorRows = {
    ChoiceRow{"auto", QT_TRANSLATE_NOOP("StandardLabels", "Automatic")},
    ChoiceRow{"color RGB", QT_TRANSLATE_NOOP("StandardLabels", "Color")},
    ChoiceRow{"AdobeRGB", QT_TRANSLATE_NOOP("StandardLabels", "Color (Adobe RGB)")},
    ChoiceRow{"monochrome Gray", QT_TRANSLATE_NOOP("StandardLabels", "Gray")},
    ChoiceRow{"auto-monochrome", QT_TRANSLATE_NOOP("StandardLabels", "Gray, automatic")},
    ChoiceRow{"process-monochrome", QT_TRANSLATE_NOOP("StandardLabels", "Gray from colored ink")},
    ChoiceRow{"bi-level FastGray", QT_TRANSLATE_NOOP("StandardLabels", "Black and white")},
};

constexpr std::array sidesRows = {
    ChoiceRow{"one-sided None", QT_TRANSLATE_NOOP("StandardLabels", "One side")},
    ChoiceRow{"two-sided-long-edge DuplexNoTumble",
              QT_TRANSLATE_NOOP("StandardLabels", "Both sides, turned on the long edge")},
    ChoiceRow{"two-sided-short-edge DuplexTumble",
              QT_TRANSLATE_NOOP("StandardLabels", "Both sides, turned on the short edge")},
};

constexpr std::array finishingRows = {
    ChoiceRow{"3 none", QT_TRANSLATE_NOOP("StandardLabels", "None")},
    ChoiceRow{"4 staple", QT_TRANSLATE_NOOP("StandardLabels", "Staple")},
    ChoiceRow{"5 punch", QT_TRANSLATE_NOOP("StandardLabels", "Punch")},
    ChoiceRow{"6 cover", QT_TRANSLATE_NOOP("StandardLabels", "Cover")},
    ChoiceRow{"7 bind", QT_TRANSLATE_NOOP("StandardLabels", "Bind")},
    ChoiceRow{"8 saddle-stitch", QT_TRANSLATE_NOOP("StandardLabels", "Saddle stitch")},
    ChoiceRow{"9 edge-stitch", QT_TRANSLATE_NOOP("StandardLabels", "Edge stitch")},
    ChoiceRow{"10 fold", QT_TRANSLATE_NOOP("StandardLabels", "Fold")},
    ChoiceRow{"11 trim", QT_TRANSLATE_NOOP("StandardLabels", "Trim")},
    ChoiceRow{"12 bale", QT_TRANSLATE_NOOP("StandardLabels", "Bale")},
    ChoiceRow{"13 booklet-maker", QT_TRANSLATE_NOOP("StandardLabels", "Booklet")},
    ChoiceRow{"14 jog-offset", QT_TRANSLATE_NOOP("StandardLabels", "Offset stacking")},
    ChoiceRow{"15 coat", QT_TRANSLATE_NOOP("StandardLabels", "Coat")},
    ChoiceRow{"16 laminate", QT_TRANSLATE_NOOP("StandardLabels", "Laminate")},
    ChoiceRow{"20 staple-top-left", QT_TRANSLATE_NOOP("StandardLabels", "Staple, top left")},
    ChoiceRow{"21 staple-bottom-left", QT_TRANSLATE_NOOP("StandardLabels", "Staple, bottom left")},
    ChoiceRow{"22 staple-top-right", QT_TRANSLATE_NOOP("StandardLabels", "Staple, top right")},
    ChoiceRow{"23 staple-bottom-right", QT_TRANSLATE_NOOP("StandardLabels", "Staple, bottom right")},
    ChoiceRow{"60 trim-after-pages", QT_TRANSLATE_NOOP("StandardLabels", "Trim after each page")},
    ChoiceRow{"61 trim-after-documents", QT_TRANSLATE_NOOP("StandardLabels", "Trim after each document")},
    ChoiceRow{"62 trim-after-copies", QT_TRANSLATE_NOOP("StandardLabels", "Trim after each copy")},
    ChoiceRow{"63 trim-after-job", QT_TRANSLATE_NOOP("StandardLabels", "Trim after the job")},
};

constexpr std::array scalingRows = {
    ChoiceRow{"auto", QT_TRANSLATE_NOOP("StandardLabels", "Automatic")},
    ChoiceRow{"auto-fit", QT_TRANSLATE_NOOP("StandardLabels", "Only if it is too large")},
    ChoiceRow{"fill", QT_TRANSLATE_NOOP("StandardLabels", "Fill the paper")},
    ChoiceRow{"fit", QT_TRANSLATE_NOOP("StandardLabels", "Fit on the paper")},
    ChoiceRow{"none", QT_TRANSLATE_NOOP("StandardLabels", "None")},
};

constexpr std::array contentRows = {
    ChoiceRow{"auto", QT_TRANSLATE_NOOP("StandardLabels", "Automatic")},
    ChoiceRow{"photo", QT_TRANSLATE_NOOP("StandardLabels", "Photos")},
    ChoiceRow{"text", QT_TRANSLATE_NOOP("StandardLabels", "Text")},
    ChoiceRow{"graphic graphics", QT_TRANSLATE_NOOP("StandardLabels", "Graphics")},
    ChoiceRow{"text-and-graphic text-and-graphics", QT_TRANSLATE_NOOP("StandardLabels", "Text and graphics")},
};

constexpr std::array intentRows = {
    ChoiceRow{"auto", QT_TRANSLATE_NOOP("StandardLabels", "Automatic")},
    ChoiceRow{"absolute", QT_TRANSLATE_NOOP("StandardLabels", "Absolute colorimetric")},
    ChoiceRow{"perceptual", QT_TRANSLATE_NOOP("StandardLabels", "Perceptual")},
    ChoiceRow{"relative", QT_TRANSLATE_NOOP("StandardLabels", "Relative colorimetric")},
    ChoiceRow{"relative-bpc",
              QT_TRANSLATE_NOOP("StandardLabels", "Relative colorimetric, black point adapted")},
    ChoiceRow{"saturation", QT_TRANSLATE_NOOP("StandardLabels", "Saturation")},
};

constexpr std::array cutRows = {
    ChoiceRow{"None", QT_TRANSLATE_NOOP("StandardLabels", "None")},
    ChoiceRow{"Auto", QT_TRANSLATE_NOOP("StandardLabels", "Automatic")},
};

/// By PWG's and PPDs' names, which are names of their own in every language.
constexpr std::array sizeRows = {
    ChoiceRow{"na_index-4x6_4x6in 4x6", QT_TRANSLATE_NOOP("StandardLabels", "4 × 6 in (10 × 15 cm)")},
    ChoiceRow{"na_5x7_5x7in 5x7", QT_TRANSLATE_NOOP("StandardLabels", "5 × 7 in (13 × 18 cm)")},
    ChoiceRow{"oe_photo-l_3.5x5in 3.5x5", QT_TRANSLATE_NOOP("StandardLabels", "3.5 × 5 in (9 × 13 cm)")},
    ChoiceRow{"na_govt-letter_8x10in 8x10", QT_TRANSLATE_NOOP("StandardLabels", "8 × 10 in (20 × 25 cm)")},
    ChoiceRow{"om_small-photo_100x150mm", QT_TRANSLATE_NOOP("StandardLabels", "10 × 15 cm")},
    ChoiceRow{"jpn_hagaki_100x148mm Postcard", QT_TRANSLATE_NOOP("StandardLabels", "Postcard (Hagaki)")},
    ChoiceRow{"na_letter_8.5x11in Letter", QT_TRANSLATE_NOOP("StandardLabels", "Letter")},
    ChoiceRow{"na_legal_8.5x14in Legal", QT_TRANSLATE_NOOP("StandardLabels", "Legal")},
    ChoiceRow{"na_executive_7.25x10.5in Executive", QT_TRANSLATE_NOOP("StandardLabels", "Executive")},
    ChoiceRow{"na_ledger_11x17in Tabloid", QT_TRANSLATE_NOOP("StandardLabels", "Tabloid")},
    ChoiceRow{"na_invoice_5.5x8.5in Statement", QT_TRANSLATE_NOOP("StandardLabels", "Statement")},
};

QStringList words(const char *text)
{
    return QString::fromLatin1(text).split(u' ');
}

/// The keyword that CUPS writes into a PPD: "PhotographicGlossy" for "photographic-glossy".
QString ppdKeyword(const QString &keyword)
{
    QString made;
    bool isFirst = true;
    for (const QChar character : keyword) {
        if (character != u'-')
            made += isFirst ? character.toUpper() : character;
        isFirst = character == u'-';
    }
    return made;
}

using Labels = QHash<QString, const char *>;

template <class Rows>
Labels labelsOf(const Rows &rows)
{
    Labels labels;
    for (const auto &row : rows) {
        const QStringList keywords = words(row.keywords);
        for (const QString &keyword : keywords) {
            labels.insert(keyword, row.text);
            labels.insert(ppdKeyword(keyword), row.text);
        }
    }
    return labels;
}

const QHash<QString, const char *> &optionLabels()
{
    static const QHash<QString, const char *> all = [] {
        QHash<QString, const char *> labels;
        for (const OptionRow &row : optionRows) {
            const QStringList names = words(row.names);
            for (const QString &name : names)
                labels.insert(name, row.text);
        }
        return labels;
    }();
    return all;
}

const QHash<QString, Labels> &choiceLabels()
{
    static const QHash<QString, Labels> all = [] {
        const std::array<std::pair<const char *, Labels>, 11> tables = {{
            {"media-type MediaType", labelsOf(typeRows)},
            {"media-source InputSlot output-bin OutputBin", labelsOf(trayRows)},
            {"print-quality cupsPrintQuality", labelsOf(qualityRows)},
            {"print-color-mode ColorModel", labelsOf(colorRows)},
            {"sides Duplex", labelsOf(sidesRows)},
            {"finishings finishing-template cupsFinishingTemplate", labelsOf(finishingRows)},
            {"print-scaling", labelsOf(scalingRows)},
            {"print-content-optimize", labelsOf(contentRows)},
            {"print-rendering-intent", labelsOf(intentRows)},
            {"CutMedia", labelsOf(cutRows)},
            {"media PageSize", labelsOf(sizeRows)},
        }};
        QHash<QString, Labels> labels;
        for (const auto &[names, table] : tables) {
            const QStringList keys = words(names);
            for (const QString &key : keys)
                labels.insert(key, table);
        }
        return labels;
    }();
    return all;
}

QString translated(const char *text)
{
    return text ? QCoreApplication::translate("StandardLabels", text) : QString();
}

/// "tray-3" or "Tray3".
QString numbered(const QString &keyword)
{
    static const QRegularExpression pattern(
        QStringLiteral("\\A(tray|roll|stacker|mailbox)-?([1-9][0-9]?)\\z"),
        QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = pattern.match(keyword);
    const QString kind = match.captured(1).toLower();
    if (kind.isEmpty())
        return {};
    if (kind == QLatin1String("tray"))
        return LabelText::tr("Tray %1").arg(match.captured(2));
    if (kind == QLatin1String("roll"))
        return LabelText::tr("Roll %1").arg(match.captured(2));
    return kind == QLatin1String("stacker") ? LabelText::tr("Stacker %1").arg(match.captured(2))
                                            : LabelText::tr("Mailbox %1").arg(match.captured(2));
}

/// The size's own name; empty when it has none.
QString sizeName(const QString &keyword)
{
    static const QRegularExpression series(
        QStringLiteral("\\A(?:(iso|jis)_([abc]10|[abc][0-9])_[0-9x.]+mm|(A10|A[0-9]))\\z"));
    if (const auto match = series.match(keyword); match.hasMatch()) {
        const QString name = match.captured(2).toUpper() + match.captured(3);
        return name.startsWith(u'B') ? QStringLiteral("%1 (%2)").arg(name, match.captured(1).toUpper())
                                     : name;
    }
    return translated(choiceLabels().value(QStringLiteral("media")).value(keyword));
}

QString withEdges(const QString &size, bool isBorderless)
{
    return isBorderless ? LabelText::tr("%1, borderless", "a page size").arg(size) : size;
}

/// For the names of page sizes in PPDs.
QString pageSizeOfPpd(const QString &keyword)
{
    const QString borderless = QStringLiteral(".Borderless");
    const bool isBorderless = keyword.endsWith(borderless);
    const QString plain = isBorderless ? keyword.chopped(borderless.size()) : keyword;
    if (const QString name = sizeName(plain); !name.isEmpty())
        return withEdges(name, isBorderless);
    static const QRegularExpression points(QStringLiteral("\\Aw([1-9][0-9]{0,4})h([1-9][0-9]{0,4})\\z"));
    const auto match = points.match(plain);
    return match.hasMatch()
               ? withEdges(pageSizeText({match.captured(1).toDouble(), match.captured(2).toDouble()}),
                           isBorderless)
               : QString();
}

} // namespace

QString StandardLabels::option(const QString &key)
{
    return translated(optionLabels().value(key));
}

QString StandardLabels::choice(const QString &key, const QString &keyword)
{
    if (key == QLatin1String("PageSize"))
        return pageSizeOfPpd(keyword);
    const auto table = choiceLabels().constFind(key);
    if (table == choiceLabels().cend())
        return {};
    if (const char *text = table->value(keyword))
        return translated(text);
    static const QStringList trays = words("media-source InputSlot output-bin OutputBin");
    return trays.contains(key) ? numbered(keyword) : QString();
}

QString StandardLabels::pageSize(const QString &name, const QSizeF &points, bool isBorderless)
{
    const QString own = sizeName(name);
    return withEdges(own.isEmpty() ? pageSizeText(points) : own, isBorderless);
}

} // namespace printdialog
