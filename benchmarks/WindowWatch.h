// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QByteArray>
#include <QtGui/QRgb>

#include <memory>
#include <optional>
#include <vector>

struct xcb_connection_t;

/// Sees when windows of other programs are painted on an X display, in thin strips of them, every
/// millisecond. Times are of the monotonic clock, in milliseconds.
class WindowWatch
{
public:
    using Windows = std::vector<quint32>;

    explicit WindowWatch(const QByteArray &display);

    /// The windows on the display that are as large as dialogs.
    Windows windows() const;
    /// The time at which a window that is none of these has its first picture.
    std::optional<double> painted(const Windows &before) const;
    /// The time at which any window has pixels about of this color.
    std::optional<double> painted(QRgb color) const;
    /// Waits until there are no other windows than these.
    bool isBackTo(const Windows &before) const;

private:
    using Strip = std::vector<QRgb>;
    std::vector<Strip> strips(quint32 window) const;

    std::unique_ptr<xcb_connection_t, void (*)(xcb_connection_t *)> connection_;
};
