// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ColorLookup.h"

#include <QtCore/QByteArray>
#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QObject>

#include <memory>
#include <optional>

namespace printdialog {

/// The tables from photos' colors to the screen's, made on worker threads: one for each color profile that
/// photos have.
class ScreenColors : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;
    using Lookup = std::shared_ptr<const ColorLookup>;

    /// The ICC profiles of the screen and of a paper whose colors are shown; empty for sRGB and for none.
    void setProfiles(const QByteArray &screen, const QByteArray &paper);
    /// The profiles of the photos that are shown (Photo::pixelProfile). Tables for others are dropped.
    void setPhotoProfiles(const QList<QByteArray> &profiles);

    /// The table for photos with this profile, null when nothing is to be converted. The previous one, until
    /// that for another screen or paper is there; nothing before the first one is.
    std::optional<Lookup> lookupFor(const QByteArray &photoProfile) const;
    /// Whether all tables are there.
    bool isReady() const { return underWay_ == 0; }

Q_SIGNALS:
    void changed();

private:
    struct Table
    {
        ColorLookup::Way wanted;
        std::optional<Lookup> lookup;
    };

    void make(const QByteArray &photoProfile);
    void show(const ColorLookup::Way &way, const Lookup &lookup);

    QByteArray screen_;
    QByteArray paper_;
    QHash<QByteArray, Table> tables_;
    int underWay_ = 0;
};

} // namespace printdialog
