// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PpdInspection.h"

#include <chrono>

namespace printdialog {

/// A PPD that libcups may open: only the functions below make one. A plain value; its bytes are shared.
class CheckedPpd
{
public:
    /// The original bytes.
    const QByteArray &data() const { return data_; }
    /// What people call it, such as the queue's name or a path.
    const QString &name() const { return name_; }
    const PpdInspection &inspection() const { return inspection_; }

private:
    CheckedPpd(const QByteArray &data, const QString &name, const PpdInspection &inspection)
        : data_(data)
        , name_(name)
        , inspection_(inspection)
    {
    }

    friend Result<CheckedPpd, PpdFault> trustPpd(const QByteArray &data, const QString &name);

    QByteArray data_;
    QString name_;
    PpdInspection inspection_;
};

/// The program that tries out PPDs, from this program's own place.
QString ppdCheckProgram();

/// Tries out an untrusted PPD, once it has passed inspectPpd(), in a process of its own without any rights,
/// so that one over which libcups crashes or never ends does no harm here. Blocks, at most for the limit,
/// within which the process has five seconds of processor time; any thread. A PPD that only breaks the format
/// is left to PpdDocument, which says where. `name` is what people call the PPD.
Result<CheckedPpd, PpdFault> checkPpd(const QByteArray &data, const QString &name,
                                      const QString &program = ppdCheckProgram(),
                                      std::chrono::milliseconds limit = std::chrono::seconds(20));

/// The same without a trial, for a PPD that nobody else can have written: the program's own, and one that has
/// been through checkPpd() and was kept where only the user can write.
Result<CheckedPpd, PpdFault> trustPpd(const QByteArray &data, const QString &name);

} // namespace printdialog
