// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "StandardInput.h"

#include "Photo.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QLocale>

#include <cerrno>
#include <unistd.h>

namespace printdialog {

std::optional<QString> StandardInput::replaceIn(QStringList &photos)
{
    const qsizetype dash = photos.indexOf(QLatin1String("-"));
    if (dash < 0)
        return std::nullopt;
    if (::isatty(STDIN_FILENO) == 1)
        return tr("\"-\" reads a file from the standard input, which is the keyboard. Redirect it: "
                  "corvel-print - < photo.jpg");
    folder_.emplace(QDir::tempPath() + QLatin1String("/corvel-print-XXXXXX"));
    if (!folder_->isValid())
        return tr("The standard input cannot be kept in \"%1\": %2. Free some space there.")
            .arg(QDir::tempPath(), folder_->errorString());
    const QString path = folder_->filePath(QStringLiteral("standard-input"));
    photos[dash] = path;
    return spool(path);
}

std::optional<QString> StandardInput::spool(const QString &path)
{
    QFile file(path);
    const auto writeFailure = [&] {
        return tr("The standard input cannot be kept in \"%1\": %2. Free some space there.")
            .arg(QDir::tempPath(), file.errorString());
    };
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered))
        return writeFailure();
    constexpr qsizetype blockSize = 1 << 18;
    QByteArray block(blockSize, Qt::Uninitialized);
    for (qint64 total = 0;;) {
        const ssize_t count = ::read(STDIN_FILENO, block.data(), static_cast<std::size_t>(block.size()));
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return tr("The standard input could not be read: %1.").arg(qt_error_string(errno));
        if (count == 0)
            return total > 0 ? std::nullopt
                             : std::optional(tr("The standard input is empty. Redirect a file to it."));
        total += count;
        if (total > Photo::maximumFileSize)
            return tr("The file on the standard input is too large: it may have %1.")
                .arg(QLocale().formattedDataSize(Photo::maximumFileSize));
        if (file.write(block.constData(), count) != count)
            return writeFailure();
    }
}

} // namespace printdialog
