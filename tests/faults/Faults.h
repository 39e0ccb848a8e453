// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QList>

namespace testing_support {

/// One call of the C library that fails: the `number`-th of that name that has to do with a file below
/// `folder`.
struct Fault
{
    QByteArray call;
    int error = 0; ///< of errno(3); 0: the process is killed instead
    int number = 1;
    QByteArray folder;
};

/// The value of CORVEL_FAULT for a process with the injection preloaded. When the call has failed, the file
/// `report` is there.
QByteArray faultVariable(const Fault &fault, const QByteArray &report);
/// "open, number 3: No space left on device"
QByteArray textOf(const Fault &fault);

/// A call and an error that it can have.
struct CallFault
{
    const char *call;
    int error;
};
/// What a disk that is full or broken, an interruption, and a lack of descriptors do to the calls on files.
const QList<CallFault> &fileFaults();

} // namespace testing_support
