// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PortalChoices.h"

#include "CustomChoice.h"
#include "JobTemplate.h"
#include "OptionSource.h"
#include "PortalSettings.h"
#include "PortalText.h"
#include "PrintSize.h"
#include "SettingOption.h"
#include "StandardLabels.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QRegularExpression>

#include <algorithm>
#include <cmath>
#include <limits>

namespace printdialog {

namespace keys = portal_keys;

namespace {

struct PortalChoicesText
{
    Q_DECLARE_TR_FUNCTIONS(PortalChoices)
};

constexpr qsizetype mostShown = 8;
/// In points. Programs and printers round a size differently: by whole points, tenths of an inch or
/// millimeters.
constexpr double sizeTolerance = 2.5;

/// The dimensions in a self-describing name such as "iso_a4_210x297mm".
QSizeF millimetersOf(const QString &name)
{
    static const QRegularExpression pattern(
        QStringLiteral("_([0-9]{1,5}(?:\\.[0-9]{1,4})?)x([0-9]{1,5}(?:\\.[0-9]{1,4})?)(mm|in)\\z"));
    const auto match = pattern.match(name);
    constexpr double perInch = 25.4;
    const double unit = match.captured(3) == QLatin1String("in") ? perInch : 1;
    return QSizeF(match.captured(1).toDouble(), match.captured(2).toDouble()) * unit;
}

/// What the program wants to print on, with what is in its settings where it has no page setup.
PageSetup wantedPage(const PortalSettings &settings)
{
    PageSetup page = settings.pageSetup();
    if (page.name.isEmpty())
        page.name = settings.text(keys::paperFormat);
    if (page.millimeters.isEmpty())
        page.millimeters = millimetersOf(page.name);
    if (page.millimeters.isEmpty())
        page.millimeters =
            QSizeF(settings.text(keys::paperWidth).toDouble(), settings.text(keys::paperHeight).toDouble());
    constexpr double longest = 5080; // of a PDF's page
    const auto isSide = [](double side) {
        return std::isfinite(side) && side > 0 && side <= longest;
    };
    if (!isSide(page.millimeters.width()) || !isSide(page.millimeters.height()))
        page.millimeters = {};
    return page;
}

bool isWanted(const PageSetup &page)
{
    return !page.ppdName.isEmpty() || !page.name.isEmpty() || !page.millimeters.isEmpty();
}

/// Of several sizes with these dimensions, in points, the one with margins most like the program's; without
/// them, and among equals, the preferred one.
std::optional<QString> sizeLike(const QSizeF &wanted, const PageSetup &page, const OptionSource &source,
                                const QString &preferred)
{
    constexpr double rounding = 0.1; // millimeters
    std::optional<QString> best;
    double least = std::numeric_limits<double>::max();
    for (const PageSize &size : source.pageSizes()) {
        if (std::abs(size.points.width() - wanted.width()) > sizeTolerance ||
            std::abs(size.points.height() - wanted.height()) > sizeTolerance)
            continue;
        const double distance =
            page.distance({size.points, size.imageable}) - (size.keyword == preferred ? rounding : 0);
        if (distance < least) {
            least = distance;
            best = size.keyword;
        }
    }
    return best;
}

/// A name is that of a sheet of paper, which a printer may have with and without margins.
std::optional<QString> pageSizeFor(const PageSetup &page, const OptionSource &source)
{
    for (const QString &name : {page.ppdName, page.name}) {
        const Choice *named = name.isEmpty() ? nullptr : source.choice(source.pageSizeKey(), name);
        const auto size = named ? source.pageSize(named->keyword) : std::nullopt;
        if (size)
            return sizeLike(size->points, page, source, size->keyword).value_or(name);
    }
    if (page.millimeters.isEmpty())
        return std::nullopt;
    const QSizeF wanted = page.millimeters * pointsPerMillimeter;
    const QString marked = source.markedChoice(source.pageSizeKey()).value_or(QString());
    if (const auto size = sizeLike(wanted, page, source, marked))
        return size;
    const QString custom = customPageKeyword(wanted);
    return source.pageSize(custom) ? std::optional(custom) : std::nullopt;
}

QString sizeText(const PageSetup &page)
{
    for (const QString &name : {page.displayName, page.ppdName}) {
        if (!name.isEmpty())
            return plainText(name, shownPortalText);
    }
    return page.millimeters.isEmpty() ? plainText(page.name, shownPortalText)
                                      : pageSizeText(page.millimeters * pointsPerMillimeter);
}

/// "600dpi" and "600x600dpi" for 600.
std::optional<QString> resolutionFor(const PortalSettings &settings, const QList<Choice> &choices)
{
    static const QRegularExpression pattern(QStringLiteral("\\A([0-9]{1,5})(?:x([0-9]{1,5}))?(?:dpi)?\\z"),
                                            QRegularExpression::CaseInsensitiveOption);
    const auto dots = [](const QRegularExpressionMatch &match) {
        const QString &other = match.captured(2).isEmpty() ? match.captured(1) : match.captured(2);
        return std::pair(match.captured(1).toInt(), other.toInt());
    };
    auto wanted = dots(pattern.match(settings.text(keys::resolution)));
    if (const int x = settings.text(keys::resolutionX).toInt(), y = settings.text(keys::resolutionY).toInt();
        x > 0 && y > 0)
        wanted = {x, y};
    const auto found = std::ranges::find_if(choices, [&](const Choice &choice) {
        const auto match = pattern.match(choice.keyword);
        return match.hasMatch() && dots(match) == wanted;
    });
    return found == choices.cend() ? std::nullopt : std::optional(found->keyword);
}

class Reader
{
public:
    Reader(const PortalSettings &settings, const OptionSource &source)
        : settings_(settings)
        , source_(source)
    {
    }

    ProgramChoices read()
    {
        choosePage();
        for (const SettingOption &row : SettingOption::all())
            choose(row);
        chooseResolution();
        chooseOwn();
        if (!missing_.isEmpty()) {
            const QStringList shown = missing_.first(std::min(mostShown, missing_.size()));
            made_.remarks +=
                PortalChoicesText::tr("This printer does not have what the program asks for: %1.")
                    .arg(shown.join(QLatin1String(", ")) +
                         (shown.size() < missing_.size() ? QStringLiteral(", …") : QString()));
        }
        return made_;
    }

private:
    void choosePage()
    {
        const PageSetup page = wantedPage(settings_);
        const QString own = settings_.text(keys::ofPrinter + source_.pageSizeKey());
        if (!isWanted(page) && !own.isEmpty() && source_.pageSize(own))
            made_.options.append({source_.pageSizeKey(), own});
        if (!isWanted(page))
            return;
        if (const auto size = pageSizeFor(page, source_))
            made_.options.append({source_.pageSizeKey(), *size});
        else
            missing_.prepend(sizeText(page));
    }

    void choose(const SettingOption &row)
    {
        const QString value = settings_.text(row.setting);
        if (value.isEmpty())
            return;
        const auto key = row.optionOf(source_);
        if (const auto choice = row.choiceFor(source_, value))
            made_.options.append({*key, *choice});
        else if (!row.usual.contains(value))
            miss(row.label.isEmpty() ? row.setting : StandardLabels::option(row.label), row.textOf(value));
    }

    void chooseResolution()
    {
        const QString value = settings_.text(keys::resolution);
        if (value.isEmpty() && settings_.text(keys::resolutionX).isEmpty())
            return;
        for (const QString &key : {QStringLiteral("Resolution"), QStringLiteral("printer-resolution")}) {
            if (!source_.hasOption(key))
                continue;
            if (const auto choice = resolutionFor(settings_, source_.choices(key)))
                made_.options.append({key, *choice});
            else
                miss(StandardLabels::option(QStringLiteral("printer-resolution")), value);
            return;
        }
    }

    void chooseOwn()
    {
        const QVariantMap &entries = settings_.entries();
        for (auto entry = entries.lowerBound(keys::ofPrinter);
             entry != entries.cend() && entry.key().startsWith(keys::ofPrinter); ++entry) {
            const QString key = entry.key().sliced(keys::ofPrinter.size());
            if (key == source_.pageSizeKey() || key == QLatin1String("PageRegion"))
                continue; // the page setup says that
            if (source_.hasOption(key) || JobTemplate::isJobOption(key))
                made_.options.append({key, entry->toString()});
            else
                miss(key, entry->toString());
        }
    }

    void miss(const QString &option, const QString &value)
    {
        missing_ += PortalChoicesText::tr("%1 \"%2\"", "an option and its choice")
                        .arg(plainText(option, shownPortalText), plainText(value, shownPortalText));
    }

    const PortalSettings &settings_;
    const OptionSource &source_;
    ProgramChoices made_;
    QStringList missing_;
};

} // namespace

ProgramChoices portalChoices(const PortalSettings &settings, const OptionSource &source)
{
    return Reader(settings, source).read();
}

} // namespace printdialog
