// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "FileDescriptor.h"

#include <QtCore/QIODevice>

namespace printdialog {

/// Writes unbuffered to a descriptor that it owns, and keeps the errno, which QFile does not.
class DescriptorDevice final : public QIODevice
{
public:
    explicit DescriptorDevice(pdekit::FileDescriptor descriptor);

    /// The errno of the first failed write, or 0.
    int error() const { return error_; }
    /// Links an unnamed file to `name` in the folder. Returns an errno, or 0.
    int link(int folder, const QByteArray &name) const;
    /// Syncs the file to the disk and closes the descriptor. Returns the first errno of all, or 0.
    int finish();

protected:
    qint64 readData(char *data, qint64 maximum) override;
    qint64 writeData(const char *data, qint64 size) override;

private:
    pdekit::FileDescriptor descriptor_;
    int error_ = 0;
};

} // namespace printdialog
