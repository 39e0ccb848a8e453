// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "FileOpener.h"

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QStringList>

#include <memory>

namespace printdialog {

/// Opens files on the photo threads, in their order. Photos, and all pages of a document together, are
/// reported in batches, so that the first ones are shown while others are opened, and a thousand of them do
/// not cost a thousand updates of the window. Documents that need a password come after all others, once it
/// is given.
class PhotoOpener : public QObject
{
    Q_OBJECT

public:
    /// What the files are for: photos that the window was opened with, that the user adds, of a print list,
    /// or those of a print list that were not opened with the others.
    enum class Use { Initial, Added, List, RestOfList };

    /// A part of the photos of one call of open().
    struct Batch
    {
        QList<PlacedPhoto> photos; ///< At least one. Only a list says how they are placed.
        Use use = Use::Initial;
        bool isFirst = false;
        SheetLayout layout = {}; ///< Of the list.
        PageChoice pages = {};   ///< Of the list.
    };

    explicit PhotoOpener(QObject *parent = nullptr);

    /// Opens the files after those of earlier calls.
    void open(const QStringList &paths, Use use);
    void open(const PrintList &list, Use use);
    /// Whether files are being opened. What waits for a password does not count.
    bool isBusy() const { return !requests_.isEmpty(); }

    /// The answer to passwordWanted(): it is tried, or the document is left out.
    void unlock(const QString &password);
    void leaveOut();

Q_SIGNALS:
    void opened(const printdialog::PhotoOpener::Batch &batch);
    /// All files of one call are opened or left out. The failures: a sentence for each file that cannot be
    /// printed.
    void finished(printdialog::PhotoOpener::Use use, const QStringList &failures);
    /// Only documents that need a password are left of a call.
    void paused();
    /// The document needs a password; asked about one document at a time.
    /// @param isRefused the last one was wrong
    void passwordWanted(const QString &path, bool isRefused);

private:
    using Entries = QList<PrintList::Entry>;

    struct Request
    {
        PrintList list; ///< Its photos are those still to be opened.
        Use use;
        bool hasPhotos = false;
        QStringList failures = {};
        Entries locked = {};   ///< Of documents that need a password.
        QString tried = {};    ///< The document whose password was given last.
        QString password = {}; ///< Of it, until it is used.
        std::shared_ptr<FileOpener> opener = std::make_shared<FileOpener>();
    };
    struct Answer
    {
        QList<PlacedPhoto> photos = {};
        QStringList failures = {};
        Entries locked = {};
        Entries left = {};
    };

    static Answer openSome(FileOpener &opener, const Entries &entries, const QString &password);
    void openNext();
    void accept(const Answer &answer);
    void end(const Request &request);
    void ask();
    Entries takeAsked();

    QList<Request> requests_; ///< The first one is under way.
    QList<Request> waiting_;  ///< For a password of the first one's first document.
    bool isAsking_ = false;
};

} // namespace printdialog
