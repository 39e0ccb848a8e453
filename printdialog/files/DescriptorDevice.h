// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "FileDescriptor.h"

#include <QtCore/QIODevice>

namespace printdialog {

/// Writes to a descriptor that it owns, without a buffer, and keeps the system's error number, which QFile
/// does not.
class DescriptorDevice final : public QIODevice
{
public:
    explicit DescriptorDevice(pdekit::FileDescriptor descriptor);

    /// The first error of a write, or 0.
    int error() const { return error_; }
    /// Gives a file without a name the name `name` in the folder. Answers the error, or 0.
    int link(int folder, const QByteArray &name) const;
    /// Brings what was written to the disk and closes the descriptor. Answers the first error of all, or 0.
    int finish();

protected:
    qint64 readData(char *data, qint64 maximum) override;
    qint64 writeData(const char *data, qint64 size) override;

private:
    pdekit::FileDescriptor descriptor_;
    int error_ = 0;
};

} // namespace printdialog
