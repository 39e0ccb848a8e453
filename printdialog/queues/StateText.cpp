// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "StateText.h"

#include "PlainText.h"

#include <QtCore/QCoreApplication>

#include <algorithm>
#include <array>

namespace printdialog {

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(StateText)
};

struct ReasonRow
{
    const char *keyword; ///< without the severity suffix
    const char *text;    ///< null: it adds nothing to the state
};

constexpr std::array reasonRows = {
    ReasonRow{"media-empty", QT_TRANSLATE_NOOP("StateText", "out of paper")},
    ReasonRow{"media-needed", QT_TRANSLATE_NOOP("StateText", "paper has to be put in")},
    ReasonRow{"media-low", QT_TRANSLATE_NOOP("StateText", "paper low")},
    ReasonRow{"media-jam", QT_TRANSLATE_NOOP("StateText", "paper jam")},
    ReasonRow{"input-tray-missing", QT_TRANSLATE_NOOP("StateText", "paper tray missing")},
    ReasonRow{"output-tray-missing", QT_TRANSLATE_NOOP("StateText", "output tray missing")},
    ReasonRow{"output-area-almost-full", QT_TRANSLATE_NOOP("StateText", "output tray almost full")},
    ReasonRow{"output-area-full", QT_TRANSLATE_NOOP("StateText", "output tray full")},
    ReasonRow{"marker-supply-low", QT_TRANSLATE_NOOP("StateText", "ribbon or ink low")},
    ReasonRow{"marker-supply-empty", QT_TRANSLATE_NOOP("StateText", "ribbon or ink used up")},
    ReasonRow{"marker-ribbon-low", QT_TRANSLATE_NOOP("StateText", "ribbon low")},
    ReasonRow{"marker-ribbon-empty", QT_TRANSLATE_NOOP("StateText", "ribbon used up")},
    ReasonRow{"marker-waste-almost-full", QT_TRANSLATE_NOOP("StateText", "waste container almost full")},
    ReasonRow{"marker-waste-full", QT_TRANSLATE_NOOP("StateText", "waste container full")},
    ReasonRow{"toner-low", QT_TRANSLATE_NOOP("StateText", "toner low")},
    ReasonRow{"toner-empty", QT_TRANSLATE_NOOP("StateText", "toner used up")},
    ReasonRow{"cover-open", QT_TRANSLATE_NOOP("StateText", "cover open")},
    ReasonRow{"door-open", QT_TRANSLATE_NOOP("StateText", "door open")},
    ReasonRow{"interlock-open", QT_TRANSLATE_NOOP("StateText", "cover open")},
    ReasonRow{"fuser-over-temp", QT_TRANSLATE_NOOP("StateText", "too hot")},
    ReasonRow{"fuser-under-temp", QT_TRANSLATE_NOOP("StateText", "warming up")},
    ReasonRow{"offline", QT_TRANSLATE_NOOP("StateText", "offline")},
    ReasonRow{"connecting-to-device", QT_TRANSLATE_NOOP("StateText", "connecting to the printer")},
    ReasonRow{"timed-out", QT_TRANSLATE_NOOP("StateText", "the printer does not answer")},
    ReasonRow{"shutdown", QT_TRANSLATE_NOOP("StateText", "switched off")},
    ReasonRow{"paused", QT_TRANSLATE_NOOP("StateText", "paused")},
    ReasonRow{"moving-to-paused", QT_TRANSLATE_NOOP("StateText", "pausing")},
    ReasonRow{"hold-new-jobs", QT_TRANSLATE_NOOP("StateText", "new jobs are held")},
    ReasonRow{"spool-area-full", QT_TRANSLATE_NOOP("StateText", "the print server's disk is full")},
    ReasonRow{"cups-missing-filter", QT_TRANSLATE_NOOP("StateText", "a filter of its driver is missing")},
    ReasonRow{"cups-insecure-filter", QT_TRANSLATE_NOOP("StateText", "a filter of its driver is not safe")},
    ReasonRow{"cups-waiting-for-job-completed", nullptr},
    ReasonRow{"other", QT_TRANSLATE_NOOP("StateText", "unspecified problem")},
    // Reasons of jobs.
    ReasonRow{"printer-stopped", QT_TRANSLATE_NOOP("StateText", "the printer is stopped")},
    ReasonRow{"printer-stopped-partly", QT_TRANSLATE_NOOP("StateText", "a part of the printer is stopped")},
    ReasonRow{"job-hold-until-specified", QT_TRANSLATE_NOOP("StateText", "held")},
    ReasonRow{"job-held-by-user", QT_TRANSLATE_NOOP("StateText", "held")},
    ReasonRow{"job-held-on-create", QT_TRANSLATE_NOOP("StateText", "held")},
    ReasonRow{"cups-held-for-authentication", QT_TRANSLATE_NOOP("StateText", "held for authentication")},
    ReasonRow{"resources-are-not-ready", QT_TRANSLATE_NOOP("StateText", "what it needs is not ready")},
    ReasonRow{"document-format-error", QT_TRANSLATE_NOOP("StateText", "the document could not be read")},
    ReasonRow{"document-unprintable-error",
              QT_TRANSLATE_NOOP("StateText", "the document could not be printed")},
    ReasonRow{"unsupported-document-format",
              QT_TRANSLATE_NOOP("StateText", "the printer does not accept this kind of document")},
    ReasonRow{"job-canceled-by-user", QT_TRANSLATE_NOOP("StateText", "canceled by the user")},
    ReasonRow{"job-canceled-by-operator", QT_TRANSLATE_NOOP("StateText", "canceled by the operator")},
    ReasonRow{"job-canceled-at-device", QT_TRANSLATE_NOOP("StateText", "canceled at the printer")},
    ReasonRow{"aborted-by-system", QT_TRANSLATE_NOOP("StateText", "ended by the print server")},
    ReasonRow{"none", nullptr},
    ReasonRow{"job-incoming", nullptr},
    ReasonRow{"job-queued", nullptr},
    ReasonRow{"job-printing", nullptr},
    ReasonRow{"job-transforming", nullptr},
    ReasonRow{"job-outgoing", nullptr},
    ReasonRow{"job-completed-successfully", nullptr},
    ReasonRow{"processing-to-stop-point", nullptr},
};

/// Removes the severity suffix of a keyword, such as "-error".
QString withoutSeverity(const QString &keyword)
{
    for (const QLatin1String severity :
         {QLatin1String("-error"), QLatin1String("-warning"), QLatin1String("-report")}) {
        if (keyword.endsWith(severity))
            return keyword.chopped(severity.size());
    }
    return keyword;
}

const ReasonRow *rowOf(const QString &keyword)
{
    for (const QString &name : {keyword, withoutSeverity(keyword)}) {
        const auto *row =
            std::find_if(reasonRows.begin(), reasonRows.end(), [&name](const ReasonRow &candidate) {
                return name == QLatin1String(candidate.keyword);
            });
        if (row != reasonRows.end())
            return row;
    }
    return nullptr;
}

} // namespace

QString reasonText(const QString &keyword)
{
    constexpr qsizetype keywordLimit = 80;
    if (const ReasonRow *row = rowOf(keyword))
        return row->text ? Text::tr(row->text) : QString();
    return plainText(withoutSeverity(keyword), keywordLimit);
}

QString reasonsText(const QStringList &keywords)
{
    QStringList texts;
    for (const QString &keyword : keywords) {
        if (const QString text = reasonText(keyword); !text.isEmpty() && !texts.contains(text))
            texts.append(text);
    }
    return plainText(texts.join(QLatin1String(", ")), shownTextLimit);
}

QString stateWord(const Queue &queue)
{
    if (!queue.acceptsJobs)
        return Text::tr("rejects jobs");
    switch (queue.state) {
    case Queue::State::Idle:
        return Text::tr("ready");
    case Queue::State::Processing:
        return Text::tr("printing");
    case Queue::State::Stopped:
        return Text::tr("stopped");
    case Queue::State::Unknown:
        break;
    }
    if (queue.isAnnounced)
        return Text::tr("found on the network");
    return Text::tr("unknown");
}

QString stateText(const Queue &queue)
{
    // CUPS reports "paused" for every stopped queue.
    QStringList reasons = queue.stateReasons;
    if (queue.state == Queue::State::Stopped)
        reasons.removeAll(QStringLiteral("paused"));
    QString detail = reasonsText(reasons);
    // Skip CUPS' own texts for when no reason was given.
    const bool saysMore = queue.stateMessage != QLatin1String("Rejecting Jobs") &&
                          queue.stateMessage != QLatin1String("Paused");
    if (saysMore && !queue.stateMessage.isEmpty() &&
        (queue.state == Queue::State::Stopped || !queue.acceptsJobs))
        detail += (detail.isEmpty() ? QString() : QStringLiteral(", ")) + queue.stateMessage;
    return detail.isEmpty() ? stateWord(queue) : Text::tr("%1: %2").arg(stateWord(queue), detail);
}

QString suppliesText(const Queue &queue)
{
    QStringList texts;
    for (const Supply &supply : queue.supplies) {
        if (!supply.level)
            texts.append(Text::tr("%1 unknown").arg(supply.name));
        else if (supply.isLow)
            texts.append(Text::tr("%1 %2 % (low)").arg(supply.name, QString::number(*supply.level)));
        else
            texts.append(Text::tr("%1 %2 %").arg(supply.name, QString::number(*supply.level)));
    }
    return texts.join(QLatin1String(", "));
}

} // namespace printdialog
