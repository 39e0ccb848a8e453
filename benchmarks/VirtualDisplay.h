// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QProcess>
#include <QtCore/QSize>

#include <optional>

/// A private X server, which runs as long as this object lives.
class VirtualDisplay
{
public:
    explicit VirtualDisplay(const QSize &pixels = {1600, 1200});
    ~VirtualDisplay();
    Q_DISABLE_COPY_MOVE(VirtualDisplay)

    /// This process's environment with the display for Qt and GTK added; nothing without a server.
    std::optional<QProcessEnvironment> environment() const;

private:
    QProcess server_;
    QString name_;
};
