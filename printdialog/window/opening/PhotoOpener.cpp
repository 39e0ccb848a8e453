// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PhotoOpener.h"

#include "PhotoThreads.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDeadlineTimer>
#include <QtCore/QPointer>

#include <chrono>
#include <utility>

using namespace std::chrono_literals;

namespace printdialog {

PhotoOpener::PhotoOpener(QObject *parent)
    : QObject(parent)
{
}

void PhotoOpener::open(const QStringList &paths, Use use)
{
    PrintList list;
    for (const QString &path : paths)
        list.photos += PrintList::Entry{path};
    open(list, use);
}

void PhotoOpener::open(const PrintList &list, Use use)
{
    if (list.photos.isEmpty())
        return;
    requests_.append({list, use});
    if (requests_.size() == 1)
        openNext();
}

/// As many as take about that time, and at least one.
PhotoOpener::Answer PhotoOpener::openSome(FileOpener &opener, const Entries &entries, const QString &password)
{
    const QDeadlineTimer end(100ms);
    if (!password.isEmpty())
        opener.unlock(entries.constFirst().path, password);
    Answer answer;
    qsizetype next = 0;
    do {
        const PrintList::Entry &entry = entries.at(next++);
        const auto photos = opener.open(entry);
        if (photos)
            answer.photos += *photos;
        else if (photos.failure().reason == PhotoFault::NeedsPassword)
            answer.locked += entry;
        else if (!answer.failures.contains(photos.failure().text)) // of each page of a document
            answer.failures += photos.failure().text;
    } while (next < entries.size() && !end.hasExpired());
    answer.left = entries.sliced(next);
    return answer;
}

void PhotoOpener::openNext()
{
    Request &request = requests_.first();
    startPhotoTask(
        [opener = request.opener, entries = request.list.photos,
         password = std::exchange(request.password, {}), self = QPointer<PhotoOpener>(this)] {
            const Answer answer = openSome(*opener, entries, password);
            QMetaObject::invokeMethod(qApp, [self, answer] {
                if (self)
                    self->accept(answer);
            });
        },
        ThumbnailPhoto);
}

void PhotoOpener::accept(const Answer &answer)
{
    Request &request = requests_.first();
    request.list.photos = answer.left;
    for (const QString &failure : answer.failures) {
        if (!request.failures.contains(failure))
            request.failures += failure;
    }
    request.locked = request.tried.isEmpty() ? request.locked + answer.locked
                                             : answer.locked + request.locked; // and is asked about again
    const bool isFirst = !std::exchange(request.hasPhotos, request.hasPhotos || !answer.photos.isEmpty());
    const Request opened = request;
    const bool isOver = answer.left.isEmpty();
    if (isOver)
        requests_.removeFirst();
    if (isBusy())
        openNext();
    if (!answer.photos.isEmpty())
        Q_EMIT this->opened({answer.photos, opened.use, isFirst, opened.list.layout, opened.list.pages});
    if (isOver)
        end(opened);
}

void PhotoOpener::end(const Request &request)
{
    if (request.locked.isEmpty()) {
        Q_EMIT finished(request.use, request.failures);
    } else {
        const bool isRefused = request.locked.constFirst().path == request.tried;
        waiting_.insert(isRefused ? (isAsking_ ? 1 : 0) : waiting_.size(), request);
        Q_EMIT paused();
    }
    ask();
}

// Passwords

void PhotoOpener::ask()
{
    if (waiting_.isEmpty() || isAsking_)
        return;
    isAsking_ = true;
    const QString path = waiting_.constFirst().locked.constFirst().path;
    Q_EMIT passwordWanted(path, path == waiting_.constFirst().tried);
}

/// The entries of the document that was asked about.
PhotoOpener::Entries PhotoOpener::takeAsked()
{
    isAsking_ = false;
    Entries &locked = waiting_.first().locked;
    const QString path = locked.constFirst().path;
    Entries asked;
    for (const PrintList::Entry &entry : std::as_const(locked)) {
        if (entry.path == path)
            asked += entry;
    }
    locked.removeIf([&path](const PrintList::Entry &entry) { return entry.path == path; });
    return asked;
}

void PhotoOpener::unlock(const QString &password)
{
    if (!isAsking_)
        return;
    const Entries asked = takeAsked();
    Request request = waiting_.takeFirst();
    request.list.photos = asked;
    request.tried = asked.constFirst().path;
    request.password = password;
    requests_.append(request);
    if (requests_.size() == 1)
        openNext();
}

void PhotoOpener::leaveOut()
{
    if (!isAsking_)
        return;
    takeAsked();
    end(waiting_.takeFirst());
}

} // namespace printdialog
