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
    if (paths.isEmpty())
        return;
    requests_.append({paths, use, 0, false, {}});
    if (requests_.size() == 1)
        openNext();
}

/// As many as take about that time, and at least one.
PhotoOpener::Answer PhotoOpener::openSome(const QStringList &paths, qsizetype next)
{
    const QDeadlineTimer end(100ms);
    Answer answer{{}, {}, next};
    do {
        const auto photo = Photo::open(paths.at(answer.next++));
        if (photo)
            answer.photos.append(*photo);
        else
            answer.failures.append(photo.failure().text);
    } while (answer.next < paths.size() && !end.hasExpired());
    return answer;
}

void PhotoOpener::openNext()
{
    const Request &request = requests_.constFirst();
    startPhotoTask(
        [paths = request.paths, next = request.next, self = QPointer<PhotoOpener>(this)] {
            const Answer answer = openSome(paths, next);
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
    request.next = answer.next;
    request.failures += answer.failures;
    const bool isFirst = !std::exchange(request.hasPhotos, request.hasPhotos || !answer.photos.isEmpty());
    const Use use = request.use;
    const bool isOver = request.next == request.paths.size();
    const QStringList failures = request.failures;
    if (isOver)
        requests_.removeFirst();
    if (isBusy())
        openNext();
    if (!answer.photos.isEmpty())
        Q_EMIT opened({answer.photos, use, isFirst});
    if (isOver)
        Q_EMIT finished(use, failures);
}

} // namespace printdialog
