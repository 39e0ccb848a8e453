// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "DialogSession.h"

#include "GuardedPanel.h"
#include "JobDefaults.h"
#include "PpdDocument.h"
#include "PpdProfiles.h"
#include "ProfileFolders.h"
#include "SystemLog.h"

#include <QtCore/QRegularExpression>

#include <algorithm>

namespace printdialog {

namespace {

/// In dots to the inch, the lower one of two. What cannot be read, or no photo printer has, is taken for the
/// usual one. @param text "300dpi" or "300x600dpi"
int resolutionIn(const QString &text)
{
    static const QRegularExpression pattern(QStringLiteral("\\A([0-9]{1,5})(?:x([0-9]{1,5}))?dpi\\z"),
                                            QRegularExpression::CaseInsensitiveOption);
    constexpr int usual = 300;
    const QRegularExpressionMatch match = pattern.match(text);
    const int across = match.captured(1).toInt();
    const int lower = match.hasCaptured(2) ? std::min(across, match.captured(2).toInt()) : across;
    return lower >= 72 && lower <= 4800 ? lower : usual;
}

} // namespace

std::optional<PictureAdjustment> DialogSession::adjustment()
{
    QList<pdekit::Adjustment> adjustments;
    for (const auto &panel : panels_) {
        if (const auto adjustment = panel->adjustment())
            adjustments += *adjustment;
    }
    if (adjustments.isEmpty())
        return std::nullopt;
    QStringList problems;
    const PictureAdjustment joined = PictureAdjustment::of(adjustments, &problems);
    // Not again for each step of a slider.
    for (const QString &problem : std::as_const(problems)) {
        if (!loggedProblems_.contains(problem))
            pdekit::systemLog(problem);
        loggedProblems_.insert(problem);
    }
    return joined;
}

double DialogSession::dotsPerInch() const
{
    for (const char *key : {"Resolution", "JCLResolution", "SetResolution", "printer-resolution"}) {
        if (const auto choice = chosen(QString::fromLatin1(key)))
            return resolutionIn(*choice);
    }
    // A PPD without a choice of resolutions may say what the only one is.
    const auto fixed = options_.ppd ? options_.ppd->attributes("DefaultResolution") : QList<PpdAttribute>();
    if (!fixed.isEmpty())
        return resolutionIn(fixed.constFirst().value);
    const auto own = options_.attributes.values(QStringLiteral("printer-resolution-default"));
    return resolutionIn(own.isEmpty() ? QString() : optionText(own.constFirst()).value_or(QString()));
}

QByteArray DialogSession::paperProfile() const
{
    const QString name = options_.ppd
                             ? profileNamed(*options_.ppd, [this](const QString &key) { return chosen(key); })
                             : QString();
    if (name != paperProfileName_) {
        paperProfileName_ = name;
        paperProfile_ = ProfileFolders::find(name);
    }
    return paperProfile_;
}

} // namespace printdialog
