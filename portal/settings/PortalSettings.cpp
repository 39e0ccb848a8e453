// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PortalSettings.h"

#include "Destination.h"
#include "PortalText.h"
#include "PrintJob.h"

#include <QtCore/QRegularExpression>

#include <algorithm>
#include <cmath>

namespace printdialog {

namespace keys = portal_keys;

namespace {

constexpr qsizetype longestKey = 127; // what a print server takes for an option's name

bool isKey(const QString &key)
{
    static const QRegularExpression pattern(QStringLiteral("\\A[A-Za-z0-9][A-Za-z0-9._-]*\\z"));
    return key.size() <= longestKey && pattern.match(key).hasMatch();
}

std::optional<int> countOf(const QString &text, int least, int most)
{
    bool isNumber = false;
    const int count = text.toInt(&isNumber);
    return isNumber && count >= least && count <= most ? std::optional(count) : std::nullopt;
}

std::optional<double> scaleOf(const QString &text)
{
    bool isNumber = false;
    const double scale = text.toDouble(&isNumber);
    return isNumber && std::isfinite(scale) && scale >= PortalSettings::leastScale &&
                   scale <= PortalSettings::largestScale
               ? std::optional(scale)
               : std::nullopt;
}

bool isOneOf(const QString &text, std::initializer_list<const char *> texts)
{
    return std::ranges::any_of(texts, [&text](const char *each) { return text == QLatin1String(each); });
}

} // namespace

std::optional<PageRanges> portalRanges(const QString &text)
{
    static const QRegularExpression form(
        QStringLiteral("\\A\\s*([0-9]{1,7})\\s*(?:-\\s*([0-9]{1,7})?)?\\s*\\z"));
    QList<PageRanges::Range> ranges;
    const QStringList parts = text.split(u',');
    if (parts.size() > PageRanges::mostRanges)
        return std::nullopt;
    for (const QString &part : parts) {
        const auto match = form.match(part);
        if (!match.hasMatch())
            return std::nullopt;
        const int first = match.captured(1).toInt() + 1;
        const bool isOpen = part.contains(u'-') && match.captured(2).isEmpty();
        const int last = match.captured(2).isEmpty() ? first : match.captured(2).toInt() + 1;
        ranges += {first, isOpen ? PageRanges::largestNumber : last};
    }
    return PageRanges::of(ranges);
}

QString portalRangesText(const PageRanges &ranges)
{
    QStringList texts;
    for (const PageRanges::Range &range : ranges.ranges()) {
        const QString first = QString::number(range.first - 1);
        texts += range.first == range.last ? first : first + u'-' + QString::number(range.last - 1);
    }
    return texts.join(u',');
}

PortalSettings PortalSettings::read(const QVariantMap &settings, const QVariantMap &pageSetup)
{
    PortalSettings read;
    qsizetype count = 0;
    for (auto entry = settings.cbegin(); entry != settings.cend() && count < mostEntries; ++entry, ++count) {
        const QString key = plainText(entry.key(), shownPortalText);
        const auto value = portalText(*entry);
        if (!isKey(entry.key()) || !value) {
            read.remarks_ +=
                tr("The program's setting \"%1\" cannot be used: it is not plain text.").arg(key);
            continue;
        }
        read.entries_.insert(entry.key(), *value);
        if (read.isUsable(entry.key()))
            continue;
        read.entries_.remove(entry.key());
        read.remarks_ += tr("The program's setting \"%1\" cannot be used: it is \"%2\".")
                             .arg(key, plainText(*value, shownPortalText));
    }
    if (settings.size() > mostEntries)
        read.remarks_ +=
            tr("The program has more than %1 settings; the others are left out.").arg(mostEntries);
    read.pageSetup_ = PageSetup::fromDictionary(pageSetup);
    if (const auto asked = PageSetup::orientationFromText(read.text(keys::orientation));
        asked && !pageSetup.contains(QStringLiteral("Orientation")))
        read.pageSetup_.orientation = *asked;
    return read;
}

/// Of what is read here; the printer's own options are judged by the printer. A program in a sandbox may not
/// have an address of its choice asked about a printer.
bool PortalSettings::isUsable(const QString &key) const
{
    const QString value = text(key);
    if (key == keys::printer)
        return !value.isEmpty() && value.size() <= longestKey && !Destination(value).isAddress();
    if (key == keys::copies)
        return countOf(value, 1, mostCopies).has_value();
    if (key == keys::collate || key == keys::reverse)
        return isOneOf(value, {"true", "false"});
    if (key == keys::pages)
        return isOneOf(value, {"all", "current", "selection", "ranges"});
    if (key == keys::set)
        return isOneOf(value, {"all", "odd", "even"});
    if (key == keys::ranges)
        return portalRanges(value).has_value();
    if (key == keys::perSheet)
        return isOneOf(value, {"1", "2", "4", "6", "9", "16"});
    if (key == keys::scale)
        return scaleOf(value).has_value();
    if (key == keys::orientation)
        return PageSetup::orientationFromText(value).has_value();
    return true;
}

std::optional<QString> PortalSettings::printer() const
{
    const QString name = text(keys::printer);
    return name.isEmpty() ? std::nullopt : std::optional(name);
}

std::optional<int> PortalSettings::copies() const
{
    return countOf(text(keys::copies), 1, mostCopies);
}

PageChoice PortalSettings::pages() const
{
    PageChoice choice;
    choice.isReversed = text(keys::reverse) == QLatin1String("true");
    const QString which = text(keys::pages);
    if (which == QLatin1String("current"))
        choice.which = PageChoice::Which::Current;
    else if (which == QLatin1String("selection"))
        choice.which = PageChoice::Which::Selected;
    else if (which == QLatin1String("ranges"))
        choice.which = PageChoice::Which::Ranges;
    if (const auto ranges = portalRanges(text(keys::ranges)))
        choice.ranges = *ranges;
    else if (choice.which == PageChoice::Which::Ranges)
        choice.which = PageChoice::Which::All;
    if (text(keys::set) == QLatin1String("odd"))
        choice.set = PageChoice::Set::Odd;
    else if (text(keys::set) == QLatin1String("even"))
        choice.set = PageChoice::Set::Even;
    return choice;
}

int PortalSettings::pagesPerSheet() const
{
    return countOf(text(keys::perSheet), 1, 16).value_or(1);
}

double PortalSettings::scale() const
{
    return scaleOf(text(keys::scale)).value_or(100);
}

} // namespace printdialog
