// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

// JobTemplate: the choices as they are sent and stored.

#include "JobTemplate.h"
#include "JobTemplate_p.h"

#include <QtCore/QDateTime>

#include <algorithm>

namespace printdialog {

using namespace job_options;

namespace {

/// Options whose values are sent without the word Custom.
const QStringList valueOptions = {title, hold, priority, account, accountUser};

const QLatin1String valuePrefix("Custom.");

QTime timeIn(const QString &text)
{
    const QTime time = QTime::fromString(text, QStringLiteral("H:m"));
    return time.isValid() ? time : QTime::fromString(text, QStringLiteral("H:m:s"));
}

QString timeText(const QTime &time)
{
    return time.toString(time.second() == 0 ? QStringLiteral("HH:mm") : QStringLiteral("HH:mm:ss"));
}

/// lp(1) and the server have times in UTC.
QString toUtc(const QString &time)
{
    const QTime local = timeIn(time);
    return local.isValid() ? timeText(QDateTime(QDate::currentDate(), local).toUTC().time()) : time;
}

QString toLocal(const QString &time)
{
    const QTime utc = timeIn(time);
    return timeText(QDateTime(QDateTime::currentDateTimeUtc().date(), utc, Qt::UTC).toLocalTime().time());
}

/// The choice of an option whose values are sent without the word Custom.
QString choiceOf(const QString &key, const QString &value)
{
    if (value.startsWith(valuePrefix))
        return value;
    if (key == hold)
        return timeIn(value).isValid() ? valuePrefix + toLocal(value) : value.toLower();
    const bool isListed = key == priority ? namedPriorities.contains(value) : value == noValue;
    return isListed ? value : valuePrefix + value;
}

} // namespace

QString JobTemplate::titleKey()
{
    return title;
}

bool JobTemplate::isJobOption(const QString &key)
{
    return key == sheets || bothSheets.contains(key) || valueOptions.contains(key) || key == password ||
           key == sides || key == collation;
}

QStringList JobTemplate::sentTogether(const QString &key)
{
    return bothSheets.contains(key) ? bothSheets : QStringList(key);
}

QMap<QString, QString> JobTemplate::sent(QMap<QString, QString> choices)
{
    if (choices.contains(bothSheets.at(0)) || choices.contains(bothSheets.at(1))) {
        const QString before = choices.take(bothSheets.at(0));
        const QString after = choices.take(bothSheets.at(1));
        choices.insert(sheets, QStringLiteral("%1,%2").arg(before.isEmpty() ? noSheet : before,
                                                           after.isEmpty() ? noSheet : after));
    }
    for (const QString &key : valueOptions) {
        const QString choice = choices.value(key);
        if (choice == noValue)
            choices.remove(key);
        else if (choice.startsWith(valuePrefix)) {
            const QString value = choice.sliced(valuePrefix.size());
            choices.insert(key, key == hold ? toUtc(value) : value);
        }
    }
    if (choices.value(password) == noValue)
        choices.remove(password);
    return choices;
}

QMap<QString, QString> JobTemplate::withOneSheet(QMap<QString, QString> choices)
{
    QStringList pages;
    bool isChosen = false;
    for (const QString &key : QStringList(sheets) + bothSheets) {
        isChosen = isChosen || choices.contains(key);
        pages += choices.take(key).split(u',', Qt::SkipEmptyParts);
    }
    pages.removeAll(noSheet);
    pages.removeDuplicates();
    if (isChosen)
        choices.insert(sheets, pages.isEmpty() ? noSheet : pages.join(u','));
    return choices;
}

QMap<QString, QString> JobTemplate::choicesOf(const QMap<QString, QString> &sent)
{
    QMap<QString, QString> choices;
    for (auto entry = sent.cbegin(); entry != sent.cend(); ++entry) {
        const QString key = isJobOption(entry.key().toLower()) ? entry.key().toLower() : entry.key();
        if (key == sheets) {
            const QStringList names = entry->split(u',');
            choices.insert(bothSheets.at(0), names.at(0).trimmed());
            choices.insert(bothSheets.at(1), names.value(1, noSheet).trimmed());
        } else if (valueOptions.contains(key)) {
            choices.insert(key, choiceOf(key, *entry));
        } else if (key != password) {
            choices.insert(key, *entry);
        } else if (*entry == noValue || *entry == QLatin1String("Custom")) {
            choices.insert(key, *entry);
        }
    }
    return choices;
}

} // namespace printdialog
