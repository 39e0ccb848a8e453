// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "LocalizingCost.h"
#include "PlainText.h"
#include "PpdDocument.h"
#include "PpdDocument_p.h"
#include "PpdFile.h"
#include "StandardLabels.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QLocale>

#include <algorithm>
#include <cmath>
#include <span>

namespace printdialog {

namespace {

constexpr float largestSide = 72'000; // points: 1,000 inches, beyond every sheet and roll

const QString pageSizeOption = QStringLiteral("PageSize");
const QString pageRegionOption = QStringLiteral("PageRegion");

constexpr qsizetype shownText = 200; // UTF-16 units, of an option's or a choice's text

struct OpeningText
{
    Q_DECLARE_TR_FUNCTIONS(PpdDocument)
};

/// The keyword in place of a text that is empty or cannot be read. libcups converts the texts by the PPD's
/// LanguageEncoding, which may be None or wrong.
QString decoded(const char *text, const QString &keyword, QStringList &notes)
{
    const QString plain = plainText(QString::fromUtf8(text).trimmed(), shownText);
    if (plain.contains(QChar::ReplacementCharacter)) {
        const QString note = OpeningText::tr(
            "Texts are left out because they are in another encoding; keywords take their place.");
        if (!notes.contains(note))
            notes += note;
        return keyword;
    }
    return plain.isEmpty() ? keyword : plain;
}

/// What libcups calls options for which a PPD has no text, in English only.
bool isPlaceholder(const QString &key, const QString &text, const QByteArray &ppd)
{
    static const QHash<QString, QString> texts = {
        {QStringLiteral("PageSize"), QStringLiteral("Media Size")},
        {QStringLiteral("MediaType"), QStringLiteral("Media Type")},
        {QStringLiteral("InputSlot"), QStringLiteral("Media Source")},
        {QStringLiteral("ColorModel"), QStringLiteral("Output Mode")}};
    return text == texts.value(key) && !ppd.contains("*OpenUI *" + key.toLatin1() + '/');
}

QString optionLabel(const ppd_option_t &option, const QString &key, const QByteArray &ppd, QStringList &notes)
{
    const QString text = decoded(option.text, key, notes);
    const QString standard =
        text == key || isPlaceholder(key, text, ppd) ? StandardLabels::option(key) : QString();
    return standard.isEmpty() ? text : standard;
}

/// The PPDs that CUPS makes for printers without a driver have texts in one language at most, and none for
/// papers and trays.
QString choiceLabel(const ppd_choice_t &choice, const QString &key, const QString &keyword,
                    QStringList &notes)
{
    const QString text = decoded(choice.text, keyword, notes);
    const QString standard = text == keyword ? StandardLabels::choice(key, keyword) : QString();
    return standard.isEmpty() ? text : standard;
}

OptionKind kindOf(const ppd_option_t &option)
{
    if (option.ui == PPD_UI_PICKMANY)
        return OptionKind::PickMany;
    const bool isBoolean =
        option.ui == PPD_UI_BOOLEAN &&
        std::ranges::all_of(std::span(option.choices, static_cast<size_t>(option.num_choices)),
                            [](const ppd_choice_t &choice) {
                                return qstrcmp(choice.choice, "True") == 0 ||
                                       qstrcmp(choice.choice, "False") == 0;
                            });
    return isBoolean ? OptionKind::Boolean : OptionKind::PickOne;
}

bool isPrintable(const ppd_size_t &size)
{
    const auto isSide = [](float points) {
        return points >= 1 && points <= largestSide;
    };
    return isSide(size.width) && isSide(size.length);
}

ppd_size_t sheet(float width, float length)
{
    return {0, {}, width, length, 0, 0, width, length};
}

/// By the keyword, for which libcups has the sizes of the standards; otherwise the usual one.
ppd_size_t assumedSize(const QString &keyword)
{
    const auto points = [](int hundredths) { // of a millimetre
        return static_cast<float>(hundredths) * 72 / 2540;
    };
    if (const pwg_media_t *media = pwgMediaForPPD(keyword.toLatin1().constData())) {
        const ppd_size_t named = sheet(points(media->width), points(media->length));
        if (isPrintable(named))
            return named;
    }
    const bool isLetter = QLocale().measurementSystem() == QLocale::ImperialUSSystem;
    return isLetter ? sheet(612, 792) : sheet(595, 842);
}

/// The area may extend beyond the sheet, so that no edge stays white when the paper is slightly skewed.
QRectF imageableArea(const ppd_size_t &size)
{
    constexpr double largestBleed = 36; // points
    const QRectF paper(0, 0, size.width, size.length);
    const QRectF bleed = paper.adjusted(-largestBleed, -largestBleed, largestBleed, largestBleed);
    for (const float edge : {size.left, size.bottom, size.right, size.top}) {
        if (!std::isfinite(edge))
            return paper;
    }
    // The PPD's origin is the bottom left.
    const QRectF area(QPointF(size.left, size.length - size.top),
                      QPointF(size.right, size.length - size.bottom));
    const QRectF reachable = area.isValid() ? area & bleed : QRectF();
    return (reachable & paper).isEmpty() ? paper : reachable;
}

} // namespace

Result<PpdDocument, PpdFault> PpdDocument::openFile(const QString &path)
{
    auto bytes = readPpdFile(path);
    if (!bytes)
        return bytes.failure();
    const auto ppd = checkPpd(*bytes, path);
    if (!ppd)
        return ppd.failure();
    return open(*ppd);
}

Result<PpdDocument, PpdFault> PpdDocument::open(const CheckedPpd &ppd)
{
    const int descriptor = ppdInMemory(ppd.inspection().bytes);
    if (descriptor < 0)
        return ppdNotReadable(ppd.name(), errno);
    ppdSetConformance(PPD_CONFORM_RELAXED);
    // ppdOpenFd() closes the descriptor.
    std::unique_ptr<ppd_file_t, RecordCloser> record(ppdOpenFd(descriptor));
    if (!record) {
        int line = 0;
        const QString reason = plainText(QString::fromUtf8(ppdErrorString(ppdLastError(&line))));
        return Failure<PpdFault>{PpdFault::Malformed,
                                 OpeningText::tr("The PPD \"%1\" cannot be used: line %2: %3. Correct it or "
                                                 "fetch another from the printer's maker.")
                                     .arg(plainText(ppd.name(), 300), QString::number(line), reason),
                                 {}};
    }
    PpdDocument document(ppd, record.release());
    document.notes_ = ppd.inspection().notes;
    document.localize();
    document.indexOptions();
    document.indexPageSizes();
    if (document.pageSizes_.isEmpty())
        return Failure<PpdFault>{PpdFault::NoPageSize,
                                 OpeningText::tr("The PPD \"%1\" has no page size that can be printed on. "
                                                 "Correct it or fetch another from the printer's maker.")
                                     .arg(plainText(ppd.name(), 300)),
                                 {}};
    document.markDefaults();
    return document;
}

PpdDocument::PpdDocument(const CheckedPpd &ppd, ppd_file_s *record)
    : ppd_(ppd)
    , record_(record)
{
}

void PpdDocument::localize()
{
    if (canBeLocalized(*record_))
        ppdLocalize(record_.get());
    else
        notes_ += OpeningText::tr("The translations are left out: there are too many.");
}

void PpdDocument::indexOptions()
{
    for (const ppd_group_t &group : std::span(record_->groups, static_cast<size_t>(record_->num_groups))) {
        const bool isInstallable =
            QByteArrayView(group.name).compare("InstallableOptions", Qt::CaseInsensitive) == 0;
        indexGroup(group, isInstallable);
        // libcups has one level of subgroups.
        for (const ppd_group_t &inner : std::span(group.subgroups, static_cast<size_t>(group.num_subgroups)))
            indexGroup(inner, isInstallable);
    }
}

void PpdDocument::indexGroup(const ppd_group_s &group, bool isInstallable)
{
    OptionGroup indexed{decoded(group.text, {}, notes_), {}, isInstallable};
    for (ppd_option_t &option : std::span(group.options, static_cast<size_t>(group.num_options))) {
        if (indexOption(option))
            indexed.options += keywords_.constLast();
    }
    if (!indexed.options.isEmpty())
        groups_ += indexed;
}

/// False: the option is left out.
bool PpdDocument::indexOption(ppd_option_s &option)
{
    // libcups has two records for an option in two groups, and marks only one of them.
    if (ppdFindOption(record_.get(), option.keyword) != &option)
        return false;
    const OptionKind kind = kindOf(option);
    const QString keyword = QString::fromLatin1(option.keyword);
    // A custom page size makes libcups add the choice to PageRegion, too.
    const bool hasCustom =
        ppdFindCustomOption(record_.get(), keyword == pageRegionOption ? "PageSize" : option.keyword) !=
        nullptr;
    auto indexed = std::make_shared<Option>(
        Option{&option, optionLabel(option, keyword, ppd_.inspection().bytes, notes_), kind, {}, {}});
    const std::span choices(option.choices, static_cast<size_t>(option.num_choices));
    indexed->choices.reserve(option.num_choices);
    indexed->indexOf.reserve(option.num_choices);
    qsizetype repeated = 0;
    for (const ppd_choice_t &choice : choices) {
        const QString choiceKeyword = QString::fromLatin1(choice.choice);
        if (hasCustom && choiceKeyword.compare(QLatin1String("Custom"), Qt::CaseInsensitive) == 0)
            continue;
        const qsizetype before = indexed->indexOf.size();
        qsizetype &index = indexed->indexOf[choiceKeyword.toLower()];
        if (indexed->indexOf.size() == before) {
            ++repeated;
            continue;
        }
        index = indexed->choices.size();
        indexed->choices += {choiceKeyword, choiceLabel(choice, keyword, choiceKeyword, notes_)};
    }
    if (repeated > 0)
        notes_ += OpeningText::tr("The option \"%1\" repeats %2 of its choices; the first of each counts.")
                      .arg(keyword, QString::number(repeated));
    if (indexed->choices.isEmpty()) {
        notes_ += OpeningText::tr("The option \"%1\" is left out: it has no choices.").arg(keyword);
        return false;
    }
    keywords_ += keyword;
    options_.insert(keyword, indexed);
    return true;
}

void PpdDocument::indexPageSizes()
{
    QHash<QByteArrayView, const ppd_size_t *> sizes;
    for (const ppd_size_t &size : std::span(record_->sizes, static_cast<size_t>(record_->num_sizes)))
        sizes.insert(QByteArrayView(size.name), &size);
    const auto add = [this](const Choice &choice, const ppd_size_t &size) {
        pageSizeOf_.insert(choice.keyword, pageSizes_.size());
        pageSizes_ += {choice.keyword, choice.text, QSizeF(size.width, size.length), imageableArea(size)};
    };
    const QList<Choice> all = choices(pageSizeOption);
    for (const Choice &choice : all) {
        const ppd_size_t *size = sizes.value(choice.keyword.toLatin1());
        if (size && isPrintable(*size))
            add(choice, *size);
    }
    if (pageSizes_.isEmpty()) {
        for (const Choice &choice : all)
            add(choice, assumedSize(choice.keyword));
        notes_ += OpeningText::tr(
            "The page sizes have no dimensions; those of their names are assumed, or else the usual ones.");
    } else if (const qsizetype unusable = all.size() - pageSizes_.size(); unusable > 0) {
        notes_ += OpeningText::tr("Page sizes left out because they have no dimensions: %1.").arg(unusable);
    }
}

void PpdDocument::markDefaults()
{
    ppdMarkDefaults(record_.get());
    for (const QString &key : std::as_const(keywords_)) {
        if (const auto marked = markedChoice(key);
            marked && kind(key) != OptionKind::PickMany && !choice(key, *marked))
            mark(key, choices(key).constFirst().keyword);
    }
    if (!pageSizeOf_.contains(markedChoice(pageSizeOption).value_or(QString()))) {
        notes_ +=
            OpeningText::tr("The default page size is not one of the printer's; \"%1\" takes its place.")
                .arg(pageSizes_.constFirst().keyword);
        mark(pageSizeOption, pageSizes_.constFirst().keyword);
    }
}

} // namespace printdialog
