// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "FolderWatch.h"
#include "PatientPrinter.h"
#include "WatchOrder.h"
#include "WatchRecord.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QSet>

#include <atomic>
#include <functional>
#include <optional>

namespace printdialog {

/// What another thread does to a watch, and sees of it.
struct WatchControl
{
    PatientStop stop;
    int wake = -1; ///< a descriptor that becomes readable after a flag was raised
    /// Since when the folder has been read or written, in milliseconds of std::chrono::steady_clock; 0: it is
    /// not, at present.
    std::atomic<qint64> busySince = 0;
};

/// Receives what happens, each time a sentence for people; on the watch's thread.
struct WatchNews
{
    std::function<void(const QString &)> say;      ///< what goes as it should
    std::function<void(const QString &)> complain; ///< what somebody should look after
};

/// Prints the photos that arrive in a folder, each once, one after the other, and moves them away or records
/// them. What was begun when the program or the computer crashed is not printed again by itself. Photos that
/// cannot be printed go to the sub-folder "unprintable", with the reason in a file beside each. Nothing is
/// replaced, and no photo is removed.
///
/// Blocking, for a thread of its own.
class WatchLoop
{
    Q_DECLARE_TR_FUNCTIONS(printdialog::WatchLoop)

public:
    static constexpr char unprintableFolder[] = "unprintable";

    /// @param control outlives this object
    WatchLoop(const WatchOrder &order, const WatchNews &news, WatchControl &control);

    /// Watches until it is stopped. Returns an empty string, or why it cannot go on: a sentence.
    QString run();

private:
    QString begin();
    void resume(const FolderFile &file);
    PatientOutcome printOne(const FolderFile &file);
    void noteSent(const FolderFile &file, const QString &printer, int job);
    /// @return why it cannot go on, or an empty string
    QString finish(const FolderFile &file, const PatientOutcome &outcome);
    void unfit(const FolderFile &file, const QString &reason);
    void setAside(const FolderFile &file, const QString &reason);
    QString moveAside(const FolderFile &file, const QString &reason);
    void movePrinted(const FolderFile &file);
    void moveLate();
    bool isThere(const FolderFile &file) const;
    bool isStopped() const;
    QString path(const QByteArray &name) const;
    void complainOnce(const QString &sentence);

    WatchOrder order_;
    WatchNews news_;
    WatchControl &control_;
    FolderWatch watch_;
    PatientPrinter printer_;
    std::optional<WatchRecord> record_;
    QSet<PhotoIdentity> postponed_; ///< found unprintable once: they may not have been whole
    QList<FolderFile> unmoved_;     ///< printed, and still in the folder
    std::chrono::steady_clock::time_point nextMoves_;
    QString complaint_; ///< the last one of complainOnce()
};

} // namespace printdialog
