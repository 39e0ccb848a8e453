// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "KeptFiles.h"

#include <QtCore/QFile>

#include <fcntl.h>
#include <sys/stat.h>

namespace printdialog {

KeptFiles::KeptFiles(const QStringList &paths)
{
    for (const QString &path : paths) {
        const QByteArray name = QFile::encodeName(path);
        for (const int flags : {0, AT_SYMLINK_NOFOLLOW}) {
            struct stat status = {};
            if (::fstatat(AT_FDCWD, name.constData(), &status, flags) == 0)
                identities_.insert({status.st_dev, status.st_ino});
        }
    }
}

KeptFiles::Earlier KeptFiles::at(const QString &path) const
{
    struct stat status = {};
    if (::lstat(QFile::encodeName(path).constData(), &status) != 0)
        return Earlier::None;
    return identities_.contains({status.st_dev, status.st_ino}) ? Earlier::Kept : Earlier::Other;
}

} // namespace printdialog
