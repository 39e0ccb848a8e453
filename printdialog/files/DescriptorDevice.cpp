// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "DescriptorDevice.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace printdialog {

DescriptorDevice::DescriptorDevice(pdekit::FileDescriptor descriptor)
    : descriptor_(std::move(descriptor))
{
    open(QIODevice::WriteOnly | QIODevice::Unbuffered);
}

int DescriptorDevice::link(int folder, const QByteArray &name) const
{
    const QByteArray self = "/proc/self/fd/" + QByteArray::number(descriptor_.number());
    return ::linkat(AT_FDCWD, self.constData(), folder, name.constData(), AT_SYMLINK_FOLLOW) == 0 ? 0 : errno;
}

int DescriptorDevice::finish()
{
    while (error_ == 0 && ::fsync(descriptor_.number()) != 0) {
        if (errno != EINTR)
            error_ = errno;
    }
    // Network file systems report only now that they could not store the data.
    if (::close(descriptor_.release()) != 0 && error_ == 0 && errno != EINTR)
        error_ = errno;
    return error_;
}

qint64 DescriptorDevice::readData(char *, qint64)
{
    return -1;
}

qint64 DescriptorDevice::writeData(const char *data, qint64 size)
{
    qint64 done = 0;
    while (done < size && error_ == 0) {
        const ssize_t count =
            ::write(descriptor_.number(), data + done, static_cast<std::size_t>(size - done));
        if (count >= 0) {
            done += count;
        } else if (errno != EINTR) {
            error_ = errno;
            setErrorString(qt_error_string(error_));
        }
    }
    return error_ == 0 ? done : -1;
}

} // namespace printdialog
