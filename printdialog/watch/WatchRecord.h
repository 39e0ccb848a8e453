// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "FileDescriptor.h"
#include "PhotoIdentity.h"
#include "Result.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QList>
#include <QtCore/QString>

#include <optional>

namespace printdialog {

/// Why the record of a folder cannot be used.
enum class RecordFault {
    InUse,       ///< Another program watches the folder.
    NotReadable, ///< It may have been written by another user, for example.
    NotWritten,  ///< The disk is full, for example.
};

/// What is known of a photo.
struct PhotoRecord
{
    enum class State {
        Left,    ///< It was there before the folder was watched, and is not printed.
        Began,   ///< A job for it may have been made, or its files written.
        Sent,    ///< The print server has its job.
        Printed, ///< To the end.
        Aside    ///< It cannot be printed, or its job has failed.
    };

    State state = State::Left;
    QString name = {}; ///< the file's, for people
    /// With Sent and Printed; 0 from the built-in printer. With Began: that of an earlier job, or 0.
    int job = 0;
    QString printer = {}; ///< with Began and Sent: its Destination::id()
    QString server = {};  ///< with Began and Sent: the print server's name or address
    QString title = {};   ///< with Began: the job's
    QString reason = {};  ///< with Aside: why, a sentence for people
    qint64 when = 0;      ///< in seconds since 1970; set by WatchRecord
};

/// What a watched folder's photos have come to, kept in a file that survives a crash of the program and of
/// the computer: a line is on the disk before add() returns. There is one for each folder, of one program at
/// a time. The files are in $XDG_STATE_HOME/corvel-print/watch (~/.local/state when that is not set), lines
/// of JSON. A line that was cut off by a crash is ignored: what it announces has not happened.
class WatchRecord
{
    Q_DECLARE_TR_FUNCTIONS(printdialog::WatchRecord)

public:
    /// Opens the folder's record and locks it, until this object is destroyed.
    /// @param folder an existing one, whatever its path is called
    static Result<WatchRecord, RecordFault> open(const QString &folder);

    /// Whether the folder was never watched before.
    bool isNew() const { return isNew_; }
    /// Its file.
    QString path() const { return path_; }

    /// Writes the file without the lines that are no longer needed, so that it is complete at every moment.
    /// Call it before the first add().
    /// @param files what is in the folder now. Others are forgotten when they were last heard of a month ago:
    /// a disk may be away for a while.
    /// @param left what is noted for those that have no record; nothing: nothing is
    std::optional<Failure<RecordFault>> compact(const QList<FolderFile> &files,
                                                const std::optional<PhotoRecord> &left = std::nullopt);

    /// The last record of the photo; null when there is none.
    const PhotoRecord *find(const PhotoIdentity &photo) const;

    std::optional<Failure<RecordFault>> add(const PhotoIdentity &photo, PhotoRecord record);
    /// The photo was not printed after all, or has left the folder: when it arrives again, it is new.
    std::optional<Failure<RecordFault>> forget(const PhotoIdentity &photo);

private:
    WatchRecord() = default;

    void read(const QByteArray &content);
    std::optional<Failure<RecordFault>> append(const QByteArray &text);
    std::optional<Failure<RecordFault>> openToAppend();

    QString path_;
    pdekit::FileDescriptor lock_;
    pdekit::FileDescriptor file_; ///< to append to
    qint64 size_ = 0;             ///< of the file, in bytes
    bool isCut_ = false;          ///< its last line is not whole
    QHash<PhotoIdentity, PhotoRecord> photos_;
    bool isNew_ = true;
};

} // namespace printdialog
