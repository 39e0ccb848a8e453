// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "DocumentIntake.h"

#include "IntakeFailure.h"
#include "PostScriptConversion.h"

#include <QtCore/QPointer>
#include <QtCore/QThread>
#include <QtCore/QTimer>

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <optional>
#include <poll.h>
#include <sys/mman.h>
#include <sys/stat.h>

namespace printdialog {

namespace {

using pdekit::FileDescriptor;

constexpr int slice = 50; // milliseconds until it is seen that it is canceled
constexpr std::size_t blockSize = 1 << 17;
constexpr qsizetype headSize = 1000; // bytes

/// Reads a descriptor that may block, and whose flags belong to the program as well.
class Source
{
public:
    Source(const FileDescriptor &descriptor, const IntakeLimits &limits, const std::atomic<bool> *isCanceled)
        : descriptor_(descriptor)
        , limits_(limits)
        , isCanceled_(isCanceled)
    {
        struct stat status = {};
        if (fstat(descriptor.number(), &status) != 0)
            return;
        isFile_ = S_ISREG(status.st_mode);
        isUsable_ = isFile_ || S_ISFIFO(status.st_mode) || S_ISSOCK(status.st_mode);
    }

    /// How many bytes have come; 0 at the end.
    Result<std::size_t, IntakeFault> read(char *block, std::size_t size)
    {
        if (!isUsable_)
            return Failure<IntakeFault>{IntakeFault::NotReadable, {}, {}};
        for (;;) {
            if (const auto fault = isFile_ ? whyCanceled() : wait())
                return Failure<IntakeFault>{*fault, {}, {}};
            const ssize_t count = isFile_ ? ::pread(descriptor_.number(), block, size, offset_)
                                          : ::read(descriptor_.number(), block, size);
            if (count < 0 && (errno == EINTR || errno == EAGAIN))
                continue;
            if (count < 0)
                return Failure<IntakeFault>{IntakeFault::NotReadable, {}, {}};
            offset_ += count;
            return static_cast<std::size_t>(count);
        }
    }

private:
    std::optional<IntakeFault> whyCanceled() const
    {
        return isCanceled_ && *isCanceled_ ? std::optional(IntakeFault::Canceled) : std::nullopt;
    }

    std::optional<IntakeFault> wait() const
    {
        const auto end = std::chrono::steady_clock::now() + limits_.quiet;
        for (;;) {
            if (const auto canceled = whyCanceled())
                return canceled;
            pollfd polled{descriptor_.number(), POLLIN, 0};
            const int ready = ::poll(&polled, 1, slice);
            if (ready > 0)
                return (polled.revents & POLLNVAL) != 0 ? std::optional(IntakeFault::NotReadable)
                                                        : std::nullopt;
            if (ready < 0 && errno != EINTR)
                return IntakeFault::NotReadable;
            if (std::chrono::steady_clock::now() >= end)
                return IntakeFault::Stuck;
        }
    }

    const FileDescriptor &descriptor_;
    const IntakeLimits &limits_;
    const std::atomic<bool> *isCanceled_;
    off_t offset_ = 0;
    bool isFile_ = false;
    bool isUsable_ = false;
};

enum class Format { Pdf, PostScript, Unknown };

Format formatOf(const QByteArray &head)
{
    if (head.startsWith("%!"))
        return Format::PostScript;
    return Document::isDocument(head) ? Format::Pdf : Format::Unknown;
}

bool writeAll(int descriptor, const char *bytes, std::size_t size)
{
    while (size > 0) {
        const ssize_t count = ::write(descriptor, bytes, size);
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return false;
        bytes += count;
        size -= static_cast<std::size_t>(count);
    }
    return true;
}

/// The whole content, unless its begin is of no known format.
std::optional<IntakeFault> copy(Source &source, int target, qint64 largest, Format &format)
{
    QByteArray head;
    std::array<char, blockSize> block;
    qint64 total = 0;
    for (bool isEnd = false; !isEnd;) {
        const auto count = source.read(block.data(), block.size());
        if (!count)
            return count.failure().reason;
        isEnd = *count == 0;
        total += static_cast<qint64>(*count);
        if (total > largest)
            return IntakeFault::TooLarge;
        if (!writeAll(target, block.data(), *count))
            return IntakeFault::NoMemory;
        if (head.size() < headSize) {
            head.append(block.data(),
                        std::min<qsizetype>(headSize - head.size(), static_cast<qsizetype>(*count)));
            format = formatOf(head);
            if (format == Format::Unknown && (head.size() == headSize || isEnd))
                return total == 0 ? IntakeFault::Empty : IntakeFault::NotADocument;
        }
    }
    return std::nullopt;
}

/// Nobody can change it any more.
bool seal(const FileDescriptor &file)
{
    return lseek(file.number(), 0, SEEK_SET) == 0 &&
           fcntl(file.number(), F_ADD_SEALS, F_SEAL_WRITE | F_SEAL_SHRINK | F_SEAL_GROW | F_SEAL_SEAL) == 0;
}

Arrival arrival(TakenDocument taken, const QString &name)
{
    if (!taken)
        return taken.failure();
    FileDescriptor copy(fcntl(taken->number(), F_DUPFD_CLOEXEC, 0));
    auto document = Document::open(std::move(copy), name);
    return ArrivedDocument{*std::move(taken), std::move(document)};
}

FileDescriptor makeFile()
{
    return FileDescriptor(memfd_create("document", MFD_CLOEXEC | MFD_ALLOW_SEALING));
}

} // namespace

TakenDocument takeDocument(FileDescriptor source, const QString &name, const IntakeLimits &limits,
                           const std::atomic<bool> *isCanceled)
{
    Source reader(source, limits, isCanceled);
    FileDescriptor content = makeFile();
    Format format = Format::Unknown;
    if (const auto fault = content.isOpen() ? copy(reader, content.number(), limits.largest, format)
                                            : std::optional(IntakeFault::NoMemory))
        return intakeFailure(*fault, name, limits);
    source.close();
    if (format == Format::PostScript) {
        FileDescriptor converted = makeFile();
        const auto fault = convertPostScript(content, converted, limits, isCanceled);
        if (fault)
            return intakeFailure(*fault, name, limits);
        content = std::move(converted);
    }
    if (!seal(content))
        return intakeFailure(IntakeFault::NoMemory, name, limits);
    return content;
}

struct DocumentIntake::State
{
    std::atomic<bool> isCanceled = false;
    std::optional<Arrival> result;
};

DocumentIntake::DocumentIntake(FileDescriptor source, const QString &name, const IntakeLimits &limits,
                               QObject *parent)
    : QObject(parent)
    , state_(std::make_shared<State>())
{
    auto *thread = QThread::create(
        [state = state_, held = std::make_shared<FileDescriptor>(std::move(source)), name, limits] {
            state->result = arrival(takeDocument(std::move(*held), name, limits, &state->isCanceled), name);
        });
    connect(thread, &QThread::finished, thread, &QObject::deleteLater);
    connect(thread, &QThread::finished, this, &DocumentIntake::taken);
    thread->start();
}

DocumentIntake::~DocumentIntake()
{
    state_->isCanceled = true;
}

Arrival DocumentIntake::result()
{
    return *std::exchange(state_->result, std::nullopt);
}

} // namespace printdialog
