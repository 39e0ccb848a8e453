// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ScreenColors.h"

#include "PhotoThreads.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QPointer>

namespace printdialog {

void ScreenColors::setProfiles(const QByteArray &screen, const QByteArray &paper)
{
    if (screen == screen_ && paper == paper_)
        return;
    screen_ = screen;
    paper_ = paper;
    const QList<QByteArray> photos = tables_.keys();
    for (const QByteArray &photo : photos)
        make(photo);
}

void ScreenColors::setPhotoProfiles(const QList<QByteArray> &profiles)
{
    tables_.removeIf([&profiles](const auto &table) { return !profiles.contains(table.key()); });
    for (const QByteArray &profile : profiles) {
        if (!tables_.contains(profile))
            make(profile);
    }
}

std::optional<ScreenColors::Lookup> ScreenColors::lookupFor(const QByteArray &photoProfile) const
{
    const auto table = tables_.constFind(photoProfile);
    return table == tables_.cend() ? std::nullopt : table->lookup;
}

void ScreenColors::make(const QByteArray &photoProfile)
{
    const ColorLookup::Way way = {photoProfile, screen_, paper_};
    Table &table = tables_[photoProfile];
    table.wanted = way;
    if (way == ColorLookup::Way()) {
        table.lookup = Lookup();
        Q_EMIT changed();
        return;
    }
    ++underWay_;
    startPhotoTask(
        [way, self = QPointer<ScreenColors>(this)] {
            const Lookup lookup = ColorLookup::make(way);
            QMetaObject::invokeMethod(qApp, [self, way, lookup] {
                if (self)
                    self->show(way, lookup);
            });
        },
        ShownPhoto);
}

void ScreenColors::show(const ColorLookup::Way &way, const Lookup &lookup)
{
    --underWay_;
    const auto table = tables_.find(way.photo);
    if (table != tables_.end() && table->wanted == way)
        table->lookup = lookup;
    Q_EMIT changed();
}

} // namespace printdialog
