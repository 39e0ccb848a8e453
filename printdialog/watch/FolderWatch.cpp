// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "FolderWatch.h"

#include "PlainText.h"

#include <QtCore/QFile>

#include <dirent.h>
#include <fcntl.h>
#include <poll.h>
#include <sys/inotify.h>
#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <memory>
#include <tuple>
#include <vector>

namespace printdialog {

namespace {

constexpr uint32_t folderEvents = IN_DELETE_SELF | IN_MOVE_SELF | IN_UNMOUNT | IN_IGNORED;
constexpr uint32_t wholeEvents = IN_CLOSE_WRITE | IN_MOVED_TO;
constexpr uint32_t fileEvents = wholeEvents | IN_CREATE | IN_ATTRIB;
constexpr size_t mostCandidates = 20'000; // more are found by a scan, with less memory for each
constexpr int scanShare = 20;             // of the time at most goes into scans
constexpr std::array partialSuffixes = {".part",     ".partial", ".crdownload", ".download",
                                        ".filepart", ".tmp",     ".temp",       "~"};

enum class Writers { None, Some, Unknown };

/// Whether somebody has the file open to write: then no lease for reading is granted (fcntl(2)). Only its
/// owner gets one, and not on every file system.
Writers writersOf(const QByteArray &path)
{
    const pdekit::FileDescriptor file(
        ::open(path.constData(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY));
    if (!file.isOpen())
        return Writers::Unknown;
    // The signal about somebody who wants to write meanwhile would end the program otherwise.
    ::fcntl(file.number(), F_SETSIG, SIGURG);
    if (::fcntl(file.number(), F_SETLEASE, F_RDLCK) == 0) {
        ::fcntl(file.number(), F_SETLEASE, F_UNLCK);
        return Writers::None;
    }
    return errno == EAGAIN ? Writers::Some : Writers::Unknown;
}

struct DirectoryCloser
{
    void operator()(DIR *directory) const { ::closedir(directory); }
};

} // namespace

FolderWatch::FolderWatch(const QString &folder, const Known &known, const WatchPace &pace,
                         const std::optional<FolderKind> &kind)
    : folder_(folder)
    , path_(QFile::encodeName(folder))
    , known_(known)
    , pace_(pace)
    , givenKind_(kind)
{
}

bool FolderWatch::isEligible(const QByteArray &name)
{
    const QByteArray lower = name.toLower();
    return !name.startsWith('.') && std::ranges::none_of(partialSuffixes, [&lower](const char *suffix) {
        return lower.endsWith(suffix);
    });
}

std::optional<FolderFile> FolderWatch::find(const QByteArray &name) const
{
    struct stat status = {};
    if (!isEligible(name) || ::lstat(pathOf(name).constData(), &status) != 0 || !S_ISREG(status.st_mode) ||
        status.st_size == 0)
        return std::nullopt;
    return FolderFile{name, PhotoIdentity::of(status, name, kind_)};
}

// The folder

std::optional<QList<FolderFile>> FolderWatch::begin()
{
    const auto all = std::exchange(known_, {});
    look();
    known_ = all;
    if (!trouble_.isEmpty())
        return std::nullopt;
    QList<FolderFile> files;
    for (const auto &[arrival, candidate] : candidates_)
        files.append({candidate.name, candidate.identity});
    return files;
}

/// Looks whether the folder is still the one that is watched, if it is time to.
void FolderWatch::look()
{
    const auto now = Clock::now();
    if (!isChecked_ || now >= nextLook_) {
        isChecked_ = true;
        nextLook_ = now + pace_.look;
        struct stat status = {};
        if (::stat(path_.constData(), &status) != 0)
            return close(errno);
        if (!S_ISDIR(status.st_mode))
            return close(ENOTDIR);
        if (opened_ != std::pair<quint64, quint64>(status.st_dev, status.st_ino)) {
            events_.close();
            opened_ = {status.st_dev, status.st_ino};
            kind_ = givenKind_.value_or(FolderKind::of(path_));
            events_ = pdekit::FileDescriptor(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC));
            // Without a watch, since there are too many of them, the scans find what is new.
            if (!events_.isOpen() || ::inotify_add_watch(events_.number(), path_.constData(),
                                                         fileEvents | folderEvents | IN_ONLYDIR) < 0)
                kind_.reportsChanges = false;
            isScanned_ = false;
        }
    }
    const bool isDue = !kind_.reportsChanges && now >= nextScan_;
    if (opened_ && (!isScanned_ || isDue) && scan())
        trouble_.clear();
}

void FolderWatch::close(int error)
{
    events_.close();
    opened_.reset();
    candidates_.clear();
    arrivals_.clear();
    const QString name = plainText(folder_, shownTextLimit);
    if (error == ENOENT || error == ENOTDIR)
        trouble_ = tr("The folder \"%1\" is not there any more: it was deleted, renamed or unmounted. Put it "
                      "back; what arrives in it then is printed.")
                       .arg(name);
    else if (error == EACCES || error == EPERM)
        trouble_ = tr("You may not read the folder \"%1\" any more. Change its permissions; what has arrived "
                      "in it is printed then.")
                       .arg(name);
    else
        trouble_ = tr("The folder \"%1\" cannot be read: %2. Look after its disk or its network connection; "
                      "what has arrived in it is printed when it answers again.")
                       .arg(name, qt_error_string(error));
}

/// Replaces the candidates by all files that are not known, in the order in which the folder got them.
bool FolderWatch::scan()
{
    const auto begin = Clock::now();
    const std::unique_ptr<DIR, DirectoryCloser> directory(::opendir(path_.constData()));
    if (!directory) {
        close(errno);
        return false;
    }
    using Found = std::tuple<qint64, qint64, Candidate>; // seconds and nanoseconds of its arrival
    std::vector<Found> found;
    for (errno = 0; const dirent *entry = ::readdir(directory.get()); errno = 0) {
        const QByteArray name = entry->d_name;
        struct stat status = {};
        if (!isEligible(name) ||
            ::fstatat(::dirfd(directory.get()), entry->d_name, &status, AT_SYMLINK_NOFOLLOW) != 0 ||
            !S_ISREG(status.st_mode) || status.st_size == 0)
            continue;
        Candidate candidate{.name = name, .identity = PhotoIdentity::of(status, name, kind_)};
        if (known_ && known_(candidate.identity))
            continue;
        const auto arrival = arrivals_.constFind(name);
        const Candidate *before = arrival == arrivals_.cend() ? nullptr : &candidates_.at(*arrival);
        if (before && before->identity == candidate.identity)
            candidate = *before;
        else
            candidate.since = begin;
        found.emplace_back(status.st_ctim.tv_sec, status.st_ctim.tv_nsec, std::move(candidate));
    }
    if (errno != 0) {
        close(errno);
        return false;
    }
    std::ranges::sort(found, [](const Found &one, const Found &other) {
        const auto order = [](const Found &each) {
            return std::tie(std::get<0>(each), std::get<1>(each), std::get<2>(each).name);
        };
        return order(one) < order(other);
    });
    candidates_.clear();
    arrivals_.clear();
    for (Found &each : found)
        append(std::get<2>(std::move(each)));
    isScanned_ = true;
    const auto end = Clock::now();
    nextScan_ = end + std::max<Clock::duration>(pace_.scan, scanShare * (end - begin));
    return true;
}

// What happens in it

void FolderWatch::readEvents()
{
    alignas(inotify_event) std::array<char, 16384> buffer; // NOLINT(*-member-init): read() fills it
    while (events_.isOpen()) {
        const ssize_t size = ::read(events_.number(), buffer.data(), buffer.size());
        if (size <= 0)
            return;
        for (ssize_t place = 0; place < size;) {
            const auto *event = reinterpret_cast<const inotify_event *>(buffer.data() + place);
            take(*event, event->len > 0 ? QByteArray(event->name) : QByteArray());
            place += static_cast<ssize_t>(sizeof *event) + event->len;
        }
    }
}

void FolderWatch::take(const inotify_event &event, const QByteArray &name)
{
    if (event.mask & folderEvents) {
        isChecked_ = false;
        if (event.mask & IN_IGNORED)
            opened_.reset(); // also when the same folder is still there, or there again
    }
    if (event.mask & IN_Q_OVERFLOW || candidates_.size() >= mostCandidates)
        isScanned_ = false;
    else if (event.mask & fileEvents && !(event.mask & IN_ISDIR) && isEligible(name))
        append({.name = name, .isClosed = (event.mask & wholeEvents) != 0, .since = Clock::now()});
}

/// One of the same name gives up its place: it has arrived again.
void FolderWatch::append(Candidate candidate)
{
    drop(candidate.name);
    arrivals_.insert(candidate.name, ++arrival_);
    candidates_.emplace(arrival_, std::move(candidate));
}

void FolderWatch::drop(const QByteArray &name)
{
    if (const auto arrival = arrivals_.constFind(name); arrival != arrivals_.cend()) {
        candidates_.erase(*arrival);
        arrivals_.erase(arrival);
    }
}

void FolderWatch::postpone(const FolderFile &file)
{
    append({.name = file.name, .isSettling = true, .identity = file.identity, .since = Clock::now()});
}

// What is whole

bool FolderWatch::isWhole(Candidate &candidate, const PhotoIdentity &now) const
{
    if (candidate.identity != now) {
        candidate.identity = now;
        candidate.since = Clock::now();
    }
    const bool hasSettled = Clock::now() - candidate.since >= pace_.settling;
    if (!kind_.reportsChanges)
        return hasSettled;
    const Writers writers = writersOf(pathOf(candidate.name));
    if (writers == Writers::Some)
        return false;
    const bool isSure = candidate.isClosed || writers == Writers::None;
    return hasSettled || (isSure && !candidate.isSettling);
}

std::optional<FolderFile> FolderWatch::firstWhole()
{
    for (auto each = candidates_.begin(); each != candidates_.end();) {
        Candidate &candidate = each->second;
        const auto file = find(candidate.name);
        // An empty one is reported again when there is something in it.
        const bool isGone = !file || (known_ && known_(file->identity));
        if (!isGone && !isWhole(candidate, file->identity)) {
            ++each;
            continue;
        }
        arrivals_.remove(candidate.name);
        each = candidates_.erase(each);
        if (!isGone)
            return file;
    }
    return std::nullopt;
}

/// Waits for an event or the end. @return whether `wake` is readable
std::optional<FolderFile> FolderWatch::next(int wake, WatchPace::Time longest)
{
    const auto end = Clock::now() + longest;
    const QString trouble = trouble_;
    for (;;) {
        readEvents();
        look();
        if (trouble_ != trouble)
            return std::nullopt;
        if (auto file = firstWhole())
            return file;
        auto until = std::min(end, nextLook_);
        if (!candidates_.empty())
            until = std::min(until, Clock::now() + pace_.settling);
        if (opened_ && !kind_.reportsChanges)
            until = std::min(until, nextScan_);
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(until - Clock::now()).count();
        std::array<pollfd, 2> waited = {pollfd{wake, POLLIN, 0}, pollfd{events_.number(), POLLIN, 0}};
        ::poll(waited.data(), waited.size(), static_cast<int>(std::clamp<qint64>(left, 0, 60'000)));
        if (waited[0].revents != 0 || Clock::now() >= end)
            return std::nullopt;
    }
}

} // namespace printdialog
