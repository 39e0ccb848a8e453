// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ProfileFolders.h"

#include "FileDescriptor.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QStandardPaths>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <lcms2.h>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

namespace printdialog {

namespace {

QString userFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QLatin1String("/icc");
}

QStringList systemFolders()
{
    QStringList folders;
    // The first one is the user's.
    const QStringList data = QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation).mid(1);
    for (const QString &folder : data)
        folders += folder + QLatin1String("/color/icc");
    folders += QStringLiteral("/var/lib/color/icc");
    folders += QStringLiteral("/var/lib/colord/icc");
    folders +=
        qEnvironmentVariable("CUPS_DATADIR", QStringLiteral("/usr/share/cups")) + QLatin1String("/profiles");
    return folders;
}

QByteArray contents(const QString &path)
{
    // Without waiting for the other end of a pipe.
    const pdekit::FileDescriptor file(
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    struct stat status = {};
    if (!file.isOpen() || ::fstat(file.number(), &status) != 0 || !S_ISREG(status.st_mode) ||
        status.st_size > ProfileFolders::largest)
        return {};
    QByteArray bytes(static_cast<qsizetype>(status.st_size), Qt::Uninitialized);
    for (qsizetype size = 0; size < bytes.size();) {
        const ssize_t count =
            ::read(file.number(), bytes.data() + size, static_cast<size_t>(bytes.size() - size));
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return {};
        size += count;
    }
    return ProfileFolders::isUsable(bytes) ? bytes : QByteArray();
}

QByteArray findBelow(const QString &folder, const QString &name, int depth)
{
    QByteArray found = contents(folder + u'/' + name);
    if (!found.isEmpty() || depth == 0)
        return found;
    const QStringList below = QDir(folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    for (const QString &each : below) {
        found = findBelow(folder + u'/' + each, name, depth - 1);
        if (!found.isEmpty())
            break;
    }
    return found;
}

} // namespace

QByteArray ProfileFolders::find(const QString &name)
{
    const QString plain = name.sliced(name.lastIndexOf(u'/') + 1);
    if (plain.isEmpty() || plain.startsWith(u'.') || plain.contains(QChar(u'\0')))
        return {};
    const QStringList folders = systemFolders();
    for (const QString &folder : folders) {
        QByteArray found = findBelow(folder, plain, 2);
        if (!found.isEmpty())
            return found;
    }
    return {};
}

QByteArray ProfileFolders::read(const QString &path)
{
    const QStringList folders = systemFolders() + QStringList(userFolder());
    const auto isAbove = [&path](const QString &folder) {
        return path.startsWith(folder + u'/');
    };
    const bool isPlain = QDir::cleanPath(path) == path && !path.contains(QChar(u'\0'));
    return isPlain && std::any_of(folders.begin(), folders.end(), isAbove) ? contents(path) : QByteArray();
}

bool ProfileFolders::isUsable(const QByteArray &icc)
{
    if (icc.isEmpty() || icc.size() > largest)
        return false;
    const std::unique_ptr<void, int (*)(cmsHPROFILE)> profile(
        cmsOpenProfileFromMem(icc.constData(), static_cast<cmsUInt32Number>(icc.size())), cmsCloseProfile);
    if (!profile)
        return false;
    const cmsProfileClassSignature device = cmsGetDeviceClass(profile.get());
    return device == cmsSigOutputClass || device == cmsSigDisplayClass;
}

} // namespace printdialog
