// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "FileDescriptor.h"
#include "PhotoIdentity.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QString>

#include <chrono>
#include <functional>
#include <map>
#include <optional>
#include <utility>

struct inotify_event;

namespace printdialog {

/// How often a folder is looked at.
struct WatchPace
{
    using Time = std::chrono::milliseconds;

    Time look = std::chrono::seconds(2); ///< Whether the folder is still there.
    /// How long a file has to stay the same to count as whole, where nothing says that it is.
    Time settling = std::chrono::seconds(2);
    Time scan = std::chrono::seconds(5); ///< The whole folder, where not every change is reported.
};

/// The files that arrive in a folder: those that are written to it, moved or linked into it. A file is
/// returned once it is whole: nobody has it open to write any more, or, where that cannot be found out, its
/// size and time stay the same for a while. Only regular files, and not those of sub-folders, hidden ones,
/// and those whose names say that they are partial ("photo.jpg.part"). Empty files are not whole yet.
///
/// The folder may go away and come back. It is never kept open, so that its disk can be unmounted.
///
/// Blocks, on a dead mount for as long as that is dead: for a thread of its own.
class FolderWatch
{
    Q_DECLARE_TR_FUNCTIONS(printdialog::FolderWatch)

public:
    /// Whether a file is not to be returned (again).
    using Known = std::function<bool(const PhotoIdentity &)>;

    /// @param kind in place of what is found out about the folder
    explicit FolderWatch(const QString &folder, const Known &known, const WatchPace &pace = {},
                         const std::optional<FolderKind> &kind = std::nullopt);

    /// Begins to watch. All eligible files that are there now, whole or not, known or not, in the order of
    /// their arrival: by the time when the folder got them. Nothing when the folder cannot be read: see
    /// trouble().
    std::optional<QList<FolderFile>> begin();

    /// The next whole file that is not known, in the order in which they became whole. Waits for one; returns
    /// nothing after `longest`, when the descriptor `wake` becomes readable, and when trouble() changes.
    std::optional<FolderFile> next(int wake, WatchPace::Time longest);

    /// Returns the file again after a while, if it stays the same.
    void postpone(const FolderFile &file);

    /// Why the folder cannot be watched at present: a sentence for people. Empty while it is watched.
    QString trouble() const { return trouble_; }

    /// The folder's present file of that name; nothing when there is none, or none to print.
    std::optional<FolderFile> find(const QByteArray &name) const;

    QString folder() const { return folder_; }
    QByteArray pathOf(const QByteArray &name) const { return path_ + '/' + name; }

    /// Whether a file of the name may be a photo that has arrived.
    static bool isEligible(const QByteArray &name);

private:
    using Clock = std::chrono::steady_clock;

    struct Candidate
    {
        QByteArray name;
        bool isClosed = false;        ///< reported as written or moved
        bool isSettling = false;      ///< whole once it stays the same, whatever else is known
        PhotoIdentity identity = {};  ///< when it was last looked at
        Clock::time_point since = {}; ///< when it had that identity first
    };

    void look();
    bool open();
    void close(int error);
    bool scan();
    void readEvents();
    void take(const inotify_event &event, const QByteArray &name);
    void append(Candidate candidate);
    void drop(const QByteArray &name);
    std::optional<FolderFile> firstWhole();
    bool isWhole(Candidate &candidate, const PhotoIdentity &now) const;
    int pause(Clock::time_point end) const;

    QString folder_;
    QByteArray path_;
    Known known_;
    WatchPace pace_;
    std::optional<FolderKind> givenKind_;
    FolderKind kind_;
    QString trouble_;
    pdekit::FileDescriptor events_;
    std::optional<std::pair<quint64, quint64>> opened_; ///< device and inode of the folder that is watched
    bool isChecked_ = false;                            ///< since something has happened to the folder
    bool isScanned_ = false;                            ///< since changes may have been missed
    Clock::time_point nextLook_;
    Clock::time_point nextScan_;
    std::map<quint64, Candidate> candidates_; ///< by arrival
    QHash<QByteArray, quint64> arrivals_;     ///< of the candidates, by name
    quint64 arrival_ = 0;
};

} // namespace printdialog
