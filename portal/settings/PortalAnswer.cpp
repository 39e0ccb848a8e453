// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PortalAnswer.h"

#include "CustomChoice.h"
#include "JobTemplate.h"
#include "MediaName.h"
#include "OptionSource.h"
#include "PlainText.h"
#include "PortalSettings.h"
#include "PrintJob.h"
#include "SettingOption.h"

#include <QtCore/QRegularExpression>

namespace printdialog {

namespace keys = portal_keys;

namespace {

QString wordFor(bool is)
{
    return is ? QStringLiteral("true") : QStringLiteral("false");
}

QString decimal(double millimeters)
{
    constexpr int decimals = 10;
    return QString::number(millimeters, 'g', decimals);
}

void insertPages(QVariantMap &settings, const PageChoice &pages)
{
    static const QStringList which = {QStringLiteral("all"), QStringLiteral("current"),
                                      QStringLiteral("selection"), QStringLiteral("ranges")};
    static const QStringList sets = {QStringLiteral("all"), QStringLiteral("odd"), QStringLiteral("even")};
    settings.insert(keys::pages, which.at(static_cast<int>(pages.which)));
    settings.insert(keys::set, sets.at(static_cast<int>(pages.set)));
    if (pages.which == PageChoice::Which::Ranges)
        settings.insert(keys::ranges, portalRangesText(pages.ranges));
    else
        settings.remove(keys::ranges);
}

void insertResolution(QVariantMap &settings, const QString &choice)
{
    static const QRegularExpression pattern(QStringLiteral("\\A([0-9]{1,5})(?:x([0-9]{1,5}))?dpi\\z"));
    const auto match = pattern.match(choice);
    for (const QString &key : {keys::resolution, keys::resolutionX, keys::resolutionY})
        settings.remove(key);
    if (!match.hasMatch())
        return;
    settings.insert(keys::resolution, match.captured(1));
    settings.insert(keys::resolutionX, match.captured(1));
    settings.insert(keys::resolutionY, match.captured(match.captured(2).isEmpty() ? 1 : 2));
}

/// The choices of the job under their own names. The next job has a title of its own, and is not held without
/// anybody's choice.
void insertOwn(QVariantMap &settings, const PrintJob &job, const OptionSource &source)
{
    settings.removeIf([&source](const auto &entry) {
        const QString key =
            entry.key().startsWith(keys::ofPrinter) ? entry.key().sliced(keys::ofPrinter.size()) : QString();
        return source.hasOption(key) || JobTemplate::isJobOption(key);
    });
    for (auto option = job.options.cbegin(); option != job.options.cend(); ++option) {
        const bool isOfThisJob =
            option.key() == JobTemplate::titleKey() || option.key() == QLatin1String("job-hold-until");
        const bool isHidden = isCustomChoice(*option) && isSecret(source.customParameters(option.key()));
        if (!isOfThisJob && !isHidden && !hasControls(*option))
            settings.insert(keys::ofPrinter + option.key(), *option);
    }
}

} // namespace

PortalAnswer portalAnswer(const PortalSettings &asked, const PrintJob &job, const OptionSource &source,
                          const PageChoice &pages, PagesBy arranged)
{
    PortalAnswer answer{asked.entries(), {}};
    QVariantMap &settings = answer.settings;
    settings.insert(keys::printer, job.destination.id());
    settings.insert(keys::copies, QStringLiteral("1"));
    settings.insert(keys::reverse, wordFor(arranged == PagesBy::Program && pages.isReversed));
    if (arranged == PagesBy::Dialog) {
        settings.insert(keys::perSheet, QStringLiteral("1"));
        settings.insert(keys::scale, QStringLiteral("100"));
    }
    insertPages(settings, pages);
    for (const SettingOption &row : SettingOption::all()) {
        const auto key = row.optionOf(source);
        const auto choice = key ? source.markedChoice(*key) : std::nullopt;
        if (const auto value = choice ? row.valueOf(*choice) : std::nullopt)
            settings.insert(row.setting, *value);
    }
    for (const QString &key : {QStringLiteral("Resolution"), QStringLiteral("printer-resolution")}) {
        if (const auto choice = source.markedChoice(key))
            insertResolution(settings, *choice);
    }
    insertOwn(settings, job, source);

    PageSetup page = asked.pageSetup();
    page.setPage(job.page);
    const QString keyword = job.options.value(source.pageSizeKey());
    const auto size = source.pageSize(keyword);
    page.name = mediaName(job.page.size);
    page.ppdName = source.choice(source.pageSizeKey(), keyword) ? keyword : QString();
    page.displayName = size ? size->text : QString();
    if (page.ppdName == page.name)
        page.ppdName.clear();
    settings.insert(keys::orientation, PageSetup::toText(page.orientation));
    settings.insert(keys::paperFormat, page.name);
    settings.insert(keys::paperWidth, decimal(page.millimeters.width()));
    settings.insert(keys::paperHeight, decimal(page.millimeters.height()));
    answer.pageSetup = page.toDictionary();
    return answer;
}

std::optional<QString> portalFormat(const std::optional<QStringList> &offered, bool takesPostScript)
{
    const QString pdf = QStringLiteral("pdf");
    const QString postScript = QStringLiteral("ps");
    if (!offered || offered->contains(pdf, Qt::CaseInsensitive))
        return pdf;
    return takesPostScript && offered->contains(postScript, Qt::CaseInsensitive) ? std::optional(postScript)
                                                                                 : std::nullopt;
}

} // namespace printdialog
