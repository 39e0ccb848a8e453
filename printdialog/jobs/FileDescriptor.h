// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <unistd.h>

#include <utility>

namespace printdialog {

/// Owns one descriptor and closes it.
class FileDescriptor
{
public:
    FileDescriptor() = default;
    explicit FileDescriptor(int descriptor)
        : descriptor_(descriptor)
    {
    }
    ~FileDescriptor()
    {
        if (descriptor_ >= 0)
            ::close(descriptor_);
    }
    FileDescriptor(FileDescriptor &&other) noexcept
        : descriptor_(other.release())
    {
    }
    FileDescriptor &operator=(FileDescriptor &&other) noexcept
    {
        std::swap(descriptor_, other.descriptor_);
        return *this;
    }

    bool isValid() const { return descriptor_ >= 0; }
    int value() const { return descriptor_; }
    /// Gives the descriptor away; the caller closes it.
    int release() { return std::exchange(descriptor_, -1); }

private:
    int descriptor_ = -1;
};

} // namespace printdialog
