// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PrinterDefaults.h"

#include "DialogSession.h"
#include "JobChoices.h"
#include "JobDefaults.h"
#include "JobTemplate.h"
#include "PpdDocument.h"
#include "PresetStore.h"
#include "StoredChoices.h"

#include <QtCore/QHash>

#include <algorithm>

namespace printdialog {

namespace {

/// Finds options and choices as CUPS does.
class CaselessOptions
{
public:
    explicit CaselessOptions(const OptionSource &source)
        : source_(source)
    {
        for (const QString &key : source.options())
            keyOf_.insert(key.toLower(), key);
        keyOf_.insert(QLatin1String(copiesOption), QLatin1String(copiesOption));
    }

    /// Empty when the printer has no such option.
    QString key(const QString &option) const { return keyOf_.value(option.toLower()); }
    /// The choice's keyword, or the choice itself when it is not listed.
    QString choice(const QString &key, const QString &choice) const
    {
        if (source_.choice(key, choice))
            return choice;
        const QList<Choice> choices = source_.choices(key);
        const auto found = std::ranges::find_if(choices, [&choice](const Choice &each) {
            return each.keyword.compare(choice, Qt::CaseInsensitive) == 0;
        });
        return found == choices.end() ? choice : found->keyword;
    }

private:
    const OptionSource &source_;
    QHash<QString, QString> keyOf_;
};

/// The server reports its default size by a name that stands for all of the printer's sizes that are as
/// large.
bool isOfDefaultSize(const OptionSource &source, const QString &keyword)
{
    constexpr double rounding = 2; // points
    const auto size = source.pageSize(keyword);
    const auto preset = source.pageSize(source.defaultChoice(source.pageSizeKey()).value_or(QString()));
    return size && preset && qAbs(size->points.width() - preset->points.width()) < rounding &&
           qAbs(size->points.height() - preset->points.height()) < rounding;
}

} // namespace

QMap<QString, QString> choicesOfLp(const DialogSession &session, const QMap<QString, QString> &entry)
{
    const CaselessOptions options(session.options());
    QMap<QString, QString> job;
    // The options of a printer without a PPD have these defaults already.
    const QMap<QString, QString> ofServer =
        session.ipp() ? QMap<QString, QString>() : jobDefaults(session.attributes());
    for (auto option = ofServer.cbegin(); option != ofServer.cend(); ++option) {
        if (session.jobOptionKeys().contains(option.key()))
            continue; // has this default already
        if (!options.key(option.key()).isEmpty() || isMappedByCups(option.key()))
            job.insert(option.key(), *option);
    }
    mergeOptions(job, entry);

    QMap<QString, QString> choices;
    if (session.ppd() && std::ranges::any_of(job.keys(), isMappedByCups)) {
        choices = choicesOfJob(session.ppd()->checked(), job);
        const QString pageSizeKey = session.options().pageSizeKey();
        const bool isServersSize = !std::ranges::any_of(entry.keys(), [](const QString &option) {
            return option.compare(QLatin1String("media"), Qt::CaseInsensitive) == 0;
        });
        if (isServersSize && isOfDefaultSize(session.options(), choices.value(pageSizeKey)))
            choices.remove(pageSizeKey);
    }
    for (auto option = job.cbegin(); option != job.cend(); ++option) {
        const QString key = options.key(option.key());
        if (!key.isEmpty())
            choices.insert(key, options.choice(key, *option));
        else if (!isMappedByCups(option.key()))
            choices.insert(option.key(), *option);
    }
    return JobTemplate::choicesOf(choices);
}

QMap<QString, QString> printerDefaults(const DialogSession &session)
{
    const PrinterDescription &printer = session.printer();
    const PresetStore store = PresetStore::of(printer.destination.queue, printer.isBuiltIn);
    QMap<QString, QString> choices = choicesOfLp(session, store.queueOptions());
    choices.removeIf([&session](const auto &choice) {
        return choice.key() != QLatin1String(copiesOption) && !session.options().hasOption(choice.key());
    });
    return choices;
}

} // namespace printdialog
