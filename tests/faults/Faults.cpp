// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "Faults.h"

#include <cerrno>
#include <cstring>

namespace testing_support {

QByteArray faultVariable(const Fault &fault, const QByteArray &report)
{
    return fault.call + ':' + QByteArray::number(fault.error) + ':' + QByteArray::number(fault.number) + ':' +
           fault.folder + ':' + report;
}

QByteArray textOf(const Fault &fault)
{
    return fault.call + ", number " + QByteArray::number(fault.number) + ": " + std::strerror(fault.error);
}

const QList<CallFault> &fileFaults()
{
    static const QList<CallFault> faults = {
        {"open", EMFILE},  {"open", ENOSPC},   {"open", EINTR},   {"read", EIO},      {"read", EINTR},
        {"write", ENOSPC}, {"write", EIO},     {"write", EINTR},  {"close", EIO},     {"close", EINTR},
        {"fsync", EIO},    {"fsync", EINTR},   {"fchmod", EPERM}, {"linkat", ENOSPC}, {"linkat", EIO},
        {"rename", EIO},   {"rename", ENOSPC}, {"mkdir", ENOSPC},
    };
    return faults;
}

} // namespace testing_support
