// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "JobTemplate.h"

#include "JobTemplate_p.h"
#include "PlainText.h"

#include <algorithm>

namespace printdialog {

using namespace job_options;

namespace {

constexpr int longestValue = 255; // bytes in IPP

/// For keywords without a text here: "second-shift" reads "second shift".
QString readable(const QString &keyword)
{
    constexpr qsizetype longestShown = 200;
    return plainText(QString(keyword).replace(u'-', u' '), longestShown);
}

/// Attributes of a job, and what PPDs call the same.
const QList<std::pair<QString, QStringList>> &sameOptions()
{
    static const QList<std::pair<QString, QStringList>> same = {
        {sides,
         {QStringLiteral("Duplex"), QStringLiteral("JCLDuplex"), QStringLiteral("EFDuplex"),
          QStringLiteral("EFDuplexing"), QStringLiteral("KD03Duplex"), QStringLiteral("ARDuplex")}},
        {collation, {QStringLiteral("Collate")}}};
    return same;
}

/// IPP leaves a job's time to the server's own keywords, and has one banner page; CUPS takes a time of day as
/// well, and a banner page at each end.
bool isCups(const IppAttributes &printer)
{
    constexpr int firstOfCups = 0x4001;
    const QList<IppValue> operations = printer.values(QStringLiteral("operations-supported"));
    return std::ranges::any_of(operations,
                               [](const IppValue &operation) { return operation.number >= firstOfCups; });
}

} // namespace

JobTemplate::JobTemplate(const IppAttributes &printer, const QStringList &without)
{
    addTitle();
    addHold(printer);
    addPriority(printer);
    addSheets(printer);
    addAccount(printer, account, tr("Account"));
    addAccount(printer, accountUser, tr("Account user"));
    addPassword(printer);
    for (const auto &[attribute, text] :
         {std::pair(sides, tr("Two-sided")), std::pair(collation, tr("Collate"))}) {
        if (!without.contains(attribute))
            addKeywords(printer, attribute, text);
    }
}

std::unique_ptr<JobTemplate> JobTemplate::besides(const OptionSource &printer,
                                                  const IppAttributes &attributes)
{
    QStringList without;
    for (const auto &[attribute, keys] : sameOptions()) {
        if (std::ranges::any_of(keys, [&printer](const QString &key) { return printer.hasOption(key); }))
            without += attribute;
    }
    return std::make_unique<JobTemplate>(attributes, without);
}

bool JobTemplate::isTwoSided(const QMap<QString, QString> &choices)
{
    const auto isBoth = [&choices](const QString &option) {
        static const QStringList beginnings = {QStringLiteral("two-sided"), QStringLiteral("Duplex"),
                                               QStringLiteral("LongEdge"),  QStringLiteral("ShortEdge"),
                                               QStringLiteral("Top"),       QStringLiteral("Bottom"),
                                               QStringLiteral("True")};
        const QString choice = choices.value(option);
        return std::ranges::any_of(
            beginnings, [&choice](const QString &beginning) { return choice.startsWith(beginning); });
    };
    const auto &[attribute, names] = sameOptions().constFirst();
    return isBoth(attribute) || std::ranges::any_of(names, isBoth);
}

QStringList JobTemplate::namedByPrinters()
{
    QStringList keys;
    for (const auto &[attribute, names] : sameOptions())
        keys += names;
    return keys + QStringList{sides, collation};
}

void JobTemplate::add(const QString &key, const Option &option)
{
    keys_ += key;
    options_.insert(key, option);
    marks_.insert(key, option.preset);
}

void JobTemplate::addKeywords(const IppAttributes &printer, const QString &attribute, const QString &text)
{
    const QHash<QString, QString> texts = {
        {QStringLiteral("one-sided"), tr("Off")},
        {QStringLiteral("two-sided-long-edge"), tr("Long edge")},
        {QStringLiteral("two-sided-short-edge"), tr("Short edge")},
        {QStringLiteral("separate-documents-uncollated-copies"), tr("Page by page")},
        {QStringLiteral("separate-documents-collated-copies"), tr("Copy by copy")},
    };
    Option option{text, {}, {}, {}};
    const QStringList supported = printer.texts(attribute + QLatin1String("-supported"));
    for (const QString &keyword : supported) {
        if (const QString shown = texts.value(keyword); !shown.isEmpty())
            option.choices += Choice{keyword, shown};
    }
    if (option.choices.size() < 2)
        return;
    option.preset = printer.text(attribute + QLatin1String("-default")).value_or(QString());
    const bool isListed = std::ranges::any_of(
        option.choices, [&option](const Choice &choice) { return choice.keyword == option.preset; });
    if (!isListed)
        option.preset = option.choices.constFirst().keyword;
    add(attribute, option);
}

/// Every job has a title.
void JobTemplate::addTitle()
{
    constexpr int longestTitle = 120;
    add(title, {tr("Title"),
                {{noValue, tr("The photo's name")}},
                {{QStringLiteral("title"), tr("Title"), CustomParameter::Kind::Text, 1, longestTitle}},
                noValue});
}

void JobTemplate::addHold(const IppAttributes &printer)
{
    const QHash<QString, QString> texts = {
        {QStringLiteral("no-hold"), tr("At once")},
        {QStringLiteral("indefinite"), tr("When released")},
        {QStringLiteral("day-time"), tr("During the day")},
        {QStringLiteral("evening"), tr("In the evening")},
        {QStringLiteral("night"), tr("At night")},
        {QStringLiteral("second-shift"), tr("In the second shift")},
        {QStringLiteral("third-shift"), tr("In the third shift")},
        {QStringLiteral("weekend"), tr("At the weekend")},
    };
    Option option{tr("When to print"), {}, {}, {}};
    const QStringList supported = printer.texts(hold + QLatin1String("-supported"));
    for (const QString &keyword : supported)
        option.choices += Choice{keyword, texts.value(keyword, readable(keyword))};
    if (option.choices.isEmpty())
        return;
    if (isCups(printer))
        option.custom = {{QStringLiteral("time"), tr("At"), CustomParameter::Kind::Time, 0, 0}};
    const QString preset = printer.text(hold + QLatin1String("-default")).value_or(QString());
    option.preset = choicesOf({{hold, preset.isEmpty() ? QStringLiteral("no-hold") : preset}}).value(hold);
    add(hold, option);
}

void JobTemplate::addPriority(const IppAttributes &printer)
{
    if (!printer.contains(priority + QLatin1String("-supported")))
        return;
    constexpr int usual = 50;
    const QString preset =
        QString::number(printer.number(priority + QLatin1String("-default")).value_or(usual));
    add(priority, {tr("Priority"),
                   {{namedPriorities.at(0), tr("Low")},
                    {namedPriorities.at(1), tr("Normal")},
                    {namedPriorities.at(2), tr("High")}},
                   {{QStringLiteral("priority"), tr("Priority"), CustomParameter::Kind::Integer, 1, 100}},
                   choicesOf({{priority, preset}}).value(priority)});
}

void JobTemplate::addSheets(const IppAttributes &printer)
{
    const QHash<QString, QString> texts = {
        {noSheet, tr("None", "no banner page")},
        {QStringLiteral("standard"), tr("Standard", "a banner page")},
        {QStringLiteral("form"), tr("Form", "a banner page")},
        {QStringLiteral("classified"), tr("Classified", "a banner page")},
        {QStringLiteral("confidential"), tr("Confidential", "a banner page")},
        {QStringLiteral("secret"), tr("Secret", "a banner page")},
        {QStringLiteral("topsecret"), tr("Top secret", "a banner page")},
        {QStringLiteral("unclassified"), tr("Unclassified", "a banner page")},
    };
    Option option{{}, {}, {}, noSheet};
    const QStringList supported = printer.texts(sheets + QLatin1String("-supported"));
    for (const QString &keyword : supported)
        option.choices += Choice{keyword, texts.value(keyword, readable(keyword))};
    if (!supported.contains(noSheet))
        option.choices.prepend({noSheet, texts.value(noSheet)});
    if (option.choices.size() < 2)
        return;
    const QStringList preset = printer.texts(sheets + QLatin1String("-default"));
    if (!isCups(printer)) {
        option.text = tr("Banner page");
        option.preset = supported.contains(preset.value(0)) ? preset.at(0) : noSheet;
        add(sheets, option);
        return;
    }
    const QStringList keys = sentTogether(bothSheets.constFirst());
    for (qsizetype i = 0; i < keys.size(); ++i) {
        option.text = i == 0 ? tr("Banner page before") : tr("Banner page after");
        option.preset = supported.contains(preset.value(i)) ? preset.at(i) : noSheet;
        add(keys.at(i), option);
    }
}

void JobTemplate::addAccount(const IppAttributes &printer, const QString &attribute, const QString &text)
{
    if (printer.number(attribute + QLatin1String("-supported")).value_or(0) == 0)
        return;
    const QString preset = printer.text(attribute + QLatin1String("-default")).value_or(noValue);
    add(attribute, {text,
                    {{noValue, tr("None", "no account")}},
                    {{QStringLiteral("name"), tr("Name"), CustomParameter::Kind::Text, 1, longestValue}},
                    choicesOf({{attribute, preset}}).value(attribute)});
}

/// An encrypted password cannot be sent: each printer has its own way.
void JobTemplate::addPassword(const IppAttributes &printer)
{
    const int longest = printer.number(password + QLatin1String("-supported")).value_or(0);
    const QStringList encryptions = printer.texts(password + QLatin1String("-encryption-supported"));
    if (longest < 1 || (!encryptions.isEmpty() && !encryptions.contains(noSheet)))
        return;
    const QString repertoire =
        printer.text(password + QLatin1String("-repertoire-configured")).value_or(QString());
    const bool isText = !repertoire.isEmpty() && !repertoire.endsWith(QLatin1String("_digits"));
    add(password, {tr("PIN"),
                   {{noValue, tr("None", "no PIN")}},
                   {{QStringLiteral("pin"), tr("PIN"),
                     isText ? CustomParameter::Kind::Password : CustomParameter::Kind::Passcode, 1,
                     static_cast<double>(std::min(longest, longestValue))}},
                   noValue});
}

QList<OptionGroup> JobTemplate::groups() const
{
    return keys_.isEmpty() ? QList<OptionGroup>() : QList<OptionGroup>{{tr("Job"), keys_}};
}

const Choice *JobTemplate::choice(const QString &key, const QString &keyword) const
{
    const auto option = options_.constFind(key);
    if (option == options_.cend())
        return nullptr;
    const auto found = std::ranges::find(option->choices, keyword, &Choice::keyword);
    return found == option->choices.cend() ? nullptr : &*found;
}

std::optional<QString> JobTemplate::defaultChoice(const QString &key) const
{
    return hasOption(key) ? std::optional(options_.value(key).preset) : std::nullopt;
}

std::optional<QString> JobTemplate::markedChoice(const QString &key) const
{
    const auto mark = marks_.constFind(key);
    return mark == marks_.cend() ? std::nullopt : std::optional(*mark);
}

void JobTemplate::mark(const QString &key, const QString &choice)
{
    if (hasOption(key))
        marks_.insert(key, choice);
}

const QList<PageSize> &JobTemplate::pageSizes() const
{
    static const QList<PageSize> nothing;
    return nothing;
}

const QStringList &JobTemplate::notes() const
{
    static const QStringList nothing;
    return nothing;
}

} // namespace printdialog
