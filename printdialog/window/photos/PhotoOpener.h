// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Photo.h"

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QStringList>

namespace printdialog {

/// Opens files on the photo threads, in their order. Photos are reported in batches, so that the first ones
/// are shown while others are opened, and a thousand of them do not cost a thousand updates of the window.
class PhotoOpener : public QObject
{
    Q_OBJECT

public:
    /// What the files are for: photos that the window was opened with, that the user adds, or of a print
    /// list.
    enum class Use { Initial, Added, List };

    /// A part of the photos of one call of open().
    struct Batch
    {
        QList<Photo> photos; ///< At least one.
        Use use = Use::Initial;
        bool isFirst = false;
    };

    explicit PhotoOpener(QObject *parent = nullptr);

    /// Opens the files after those of earlier calls.
    void open(const QStringList &paths, Use use);
    bool isBusy() const { return !requests_.isEmpty(); }

Q_SIGNALS:
    void opened(const printdialog::PhotoOpener::Batch &batch);
    /// All files of one call are opened. The failures: a sentence for each file that cannot be printed.
    void finished(printdialog::PhotoOpener::Use use, const QStringList &failures);

private:
    struct Request
    {
        QStringList paths;
        Use use;
        qsizetype next = 0; ///< index of the path to be opened next
        bool hasPhotos = false;
        QStringList failures;
    };
    struct Answer
    {
        QList<Photo> photos;
        QStringList failures;
        qsizetype next;
    };

    static Answer openSome(const QStringList &paths, qsizetype next);
    void openNext();
    void accept(const Answer &answer);

    QList<Request> requests_; ///< the first one is under way
};

} // namespace printdialog
