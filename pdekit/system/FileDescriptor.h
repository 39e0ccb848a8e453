// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QtGlobal>

#include <fcntl.h>
#include <optional>
#include <unistd.h>
#include <utility>

namespace pdekit {

/// Owns a file descriptor; move-only.
class FileDescriptor
{
public:
    FileDescriptor() = default;
    explicit FileDescriptor(int descriptor)
        : descriptor_(descriptor)
    {
    }
    ~FileDescriptor() { close(); }
    FileDescriptor(FileDescriptor &&other) noexcept
        : descriptor_(std::exchange(other.descriptor_, -1))
    {
    }
    FileDescriptor &operator=(FileDescriptor &&other) noexcept
    {
        if (this != &other) {
            close();
            descriptor_ = std::exchange(other.descriptor_, -1);
        }
        return *this;
    }
    Q_DISABLE_COPY(FileDescriptor)

    bool isOpen() const { return descriptor_ >= 0; }
    int number() const { return descriptor_; }
    /// Releases the descriptor; the caller closes it.
    int release() { return std::exchange(descriptor_, -1); }
    void close()
    {
        if (isOpen())
            ::close(release());
    }

private:
    int descriptor_ = -1;
};

/// The two ends of a pipe, both close-on-exec.
struct Pipe
{
    FileDescriptor reading;
    FileDescriptor writing;

    /// Neither end is one of the three standard descriptors, even in a process that runs without them:
    /// otherwise a child's descriptors would overwrite each other. Nothing when no descriptors are left.
    static std::optional<Pipe> make()
    {
        int ends[2] = {-1, -1};
        if (pipe2(ends, O_CLOEXEC) != 0)
            return std::nullopt;
        Pipe pipe{FileDescriptor(ends[0]), FileDescriptor(ends[1])};
        for (FileDescriptor *end : {&pipe.reading, &pipe.writing}) {
            if (end->number() <= STDERR_FILENO)
                *end = FileDescriptor(fcntl(end->number(), F_DUPFD_CLOEXEC, STDERR_FILENO + 1));
            if (!end->isOpen())
                return std::nullopt;
        }
        return pipe;
    }
};

} // namespace pdekit
