// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QMarginsF>
#include <QtCore/QSizeF>
#include <QtCore/QString>
#include <QtCore/QVariantMap>

#include <optional>

namespace printdialog {

struct PageGeometry;

/// A program's paper and its margins, as it sends and receives them through the desktop's print portal. A
/// value.
struct PageSetup
{
    enum class Orientation { Portrait, Landscape, ReversePortrait, ReverseLandscape };

    QString ppdName;                  ///< The size's keyword in a PPD; may be empty.
    QString name;                     ///< Self-describing (PWG 5101.1); may be empty.
    QString displayName;              ///< For people; may be empty.
    QSizeF millimeters;               ///< Of the sheet, not turned; empty when it is not given.
    std::optional<QMarginsF> margins; ///< In millimeters, of the page as it is turned.
    Orientation orientation = Orientation::Portrait;

    /// What is missing, malformed or impossible stays as it is by default.
    static PageSetup fromDictionary(const QVariantMap &dictionary);
    QVariantMap toDictionary() const;

    /// The size and the margins of a printer's page; the orientation stays.
    void setPage(const PageGeometry &page);
    /// Of the page as it is turned, in millimeters; empty when it is not given.
    QSizeF turnedSize() const
    {
        const bool isUpright =
            orientation == Orientation::Portrait || orientation == Orientation::ReversePortrait;
        return isUpright ? millimeters : millimeters.transposed();
    }
    /// How far the margins of a printer's page are from these, in millimeters; 0 when none are given.
    double distance(const PageGeometry &page) const;

    static std::optional<Orientation> orientationFromText(const QString &text);
    static QString toText(Orientation orientation);
};

} // namespace printdialog
