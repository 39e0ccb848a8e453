// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ScreenProfiles.h"

#include "CorvelScreenProfilePath.h"
#include "ProfileFolders.h"
#include "ScreenProfileQuery.h"
#include "XProfile.h"

#include <QtCore/QDir>
#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>

#include <chrono>

namespace printdialog {

namespace {

constexpr std::chrono::milliseconds openingTime(500);

bool isOnDesktop()
{
    const QString platform = QGuiApplication::platformName();
    return platform == QLatin1String("xcb") || platform.startsWith(QLatin1String("wayland"));
}

} // namespace

QString screenProfileProgram()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() +
                           QLatin1String("/" CORVEL_SCREEN_PROFILE_FROM_PROGRAM));
}

ScreenProfiles::ScreenProfiles(const QString &program, QObject *parent)
    : QObject(parent)
    , program_(program)
{
    delay_.setSingleShot(true);
    delay_.setInterval(openingTime);
    connect(&delay_, &QTimer::timeout, this, &ScreenProfiles::askNext);
    // Queued, so that windows have left a screen that is gone.
    connect(qGuiApp, &QGuiApplication::screenAdded, this, &ScreenProfiles::forget, Qt::QueuedConnection);
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, &ScreenProfiles::forget, Qt::QueuedConnection);
}

ScreenProfiles::~ScreenProfiles() = default;

QByteArray ScreenProfiles::profileOf(const QScreen *screen)
{
    if (!screen || !isOnDesktop())
        return {};
    const QByteArray profile = profileFromX(*screen);
    if (ProfileFolders::isUsable(profile))
        return profile;
    const QString name = screen->name();
    const auto known = known_.constFind(name);
    if (known != known_.cend())
        return *known;
    if (!name.isEmpty() && !wanted_.contains(name)) {
        wanted_.append(name);
        if (!query_)
            delay_.start();
    }
    return {};
}

void ScreenProfiles::askNext()
{
    if (wanted_.isEmpty() || query_)
        return;
    query_ = std::make_unique<ScreenProfileQuery>(program_, wanted_.constFirst());
    connect(query_.get(), &ScreenProfileQuery::finished, this,
            [this](const QString &path) { note(wanted_.takeFirst(), path); });
}

void ScreenProfiles::note(const QString &screen, const QString &path)
{
    query_.release()->deleteLater(); // it is the sender
    const QByteArray profile = ProfileFolders::read(path);
    known_.insert(screen, profile);
    if (!wanted_.isEmpty())
        delay_.start();
    if (!profile.isEmpty())
        Q_EMIT changed();
}

/// The X server has renumbered its screens, and a name may stand for another one.
void ScreenProfiles::forget()
{
    query_.reset();
    wanted_.clear();
    known_.clear();
    Q_EMIT changed();
}

} // namespace printdialog
