// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PpdInspection.h"

#include <chrono>

namespace printdialog {

/// A PPD that is safe for libcups to open; only the functions below create one. A plain value; copies share
/// the bytes.
class CheckedPpd
{
public:
    /// The original bytes.
    const QByteArray &data() const { return data_; }
    /// Its name for people, such as the queue's name or a path.
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

/// The path of the program that checks PPDs, found relative to this program.
QString ppdCheckProgram();

/// Checks an untrusted PPD: first with inspectPpd(), then by opening it with libcups in a separate, sandboxed
/// process, so that a crash or an endless loop does no harm here. Blocks, at most for the limit; the process
/// also has at most five seconds of processor time. Any thread. A PPD that only violates the format passes:
/// PpdDocument reports where. `name` is the PPD's name for people.
Result<CheckedPpd, PpdFault> checkPpd(const QByteArray &data, const QString &name,
                                      const QString &program = ppdCheckProgram(),
                                      std::chrono::milliseconds limit = std::chrono::seconds(20));

/// The same without the separate process, for a PPD that nobody else can have written: the program's own, or
/// one that has passed checkPpd() and was stored where only the user can write.
Result<CheckedPpd, PpdFault> trustPpd(const QByteArray &data, const QString &name);

} // namespace printdialog
