// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

// What becomes of the files: where they are moved, and what is noted where they cannot be.

#include "FileMove.h"
#include "WatchLoop.h"
#include "WatchLoop_p.h"

#include <QtCore/QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>

namespace printdialog {

namespace {
using State = PhotoRecord::State;

/// Sets errno.
bool canBeRead(const QByteArray &path)
{
    const pdekit::FileDescriptor file(::open(path.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    char byte = 0;
    return file.isOpen() && ::read(file.number(), &byte, 1) >= 0;
}
} // namespace

/// A program that writes a photo in several steps may only have begun: it gets a second chance. A file whose
/// disk does not answer gets as many as it needs.
void WatchLoop::unfit(const FolderFile &file, const QString &reason)
{
    const auto mark = busy(control_);
    const bool isReadable = isThere(file) && (canBeRead(watch_.pathOf(file.name)) || errno == EACCES);
    if (!isReadable || !postponed_.contains(file.identity)) {
        postponed_.insert(file.identity);
        watch_.postpone(file);
    } else {
        postponed_.remove(file.identity);
        setAside(file, reason);
    }
}

void WatchLoop::setAside(const FolderFile &file, const QString &reason)
{
    if (const auto failure =
            record_->add(file.identity, {.state = State::Aside, .name = shownName(file), .reason = reason}))
        complainOnce(failure->text);
    const QString moved = moveAside(file, reason);
    news_.complain(moved.isEmpty()
                       ? tr("%1 It stays in the folder, and is not tried again.").arg(reason)
                       : tr("%1 It is now \"%2\".").arg(reason, plainText(moved, shownTextLimit)));
}

/// @return its new path; empty when it stays, since the folder may not be written, for example
QString WatchLoop::moveAside(const FolderFile &file, const QString &reason)
{
    const auto mark = busy(control_);
    const QByteArray folder = watch_.pathOf(unprintableFolder);
    if (!isThere(file) || (::mkdir(folder.constData(), 0777) != 0 && errno != EEXIST))
        return {};
    const auto moved = moveInto(watch_.pathOf(file.name), QFile::decodeName(folder));
    if (!moved)
        return {};
    QFile text(QFile::decodeName(*moved + ".reason.txt"));
    if (text.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        text.write(reason.toUtf8() + '\n');
    record_->forget(file.identity);
    return QFile::decodeName(*moved);
}

void WatchLoop::movePrinted(const FolderFile &file)
{
    const auto mark = busy(control_);
    if (!order_.printed || !isThere(file))
        return;
    const auto moved = moveInto(watch_.pathOf(file.name), *order_.printed);
    if (moved) {
        record_->forget(file.identity);
        return;
    }
    unmoved_.append(file);
    complainOnce(
        tr("Printed photos stay in the folder, because they cannot be moved. %1").arg(moved.failure().text));
}

void WatchLoop::moveLate()
{
    const auto now = std::chrono::steady_clock::now();
    if (now < nextMoves_)
        return;
    nextMoves_ = now + lateMoves;
    for (const FolderFile &file : std::exchange(unmoved_, {}))
        movePrinted(file);
}

} // namespace printdialog
