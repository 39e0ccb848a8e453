// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PrintSize.h"

#include <QtCore/QAbstractListModel>

#include <optional>

namespace printdialog {

class ArrangementModel;
struct PlacedPhoto;

/// What the table of photos shows: a row for each photo, in the order in which they are printed. For people
/// and screen readers; the picture is the delegate's.
class PhotoTableModel : public QAbstractListModel
{
    Q_OBJECT

public:
    explicit PhotoTableModel(const ArrangementModel *photos, QObject *parent = nullptr);

    /// Null when the row is none.
    const PlacedPhoto *photo(const QModelIndex &index) const;
    /// Whether it is the photo that the preview shows.
    bool isCurrent(const QModelIndex &index) const;
    /// Whether the photo is printed in another size than most.
    bool hasOwnSize(const PlacedPhoto &photo) const;
    /// Whether it is not a page that the choice of pages leaves out.
    bool isPrinted(const PlacedPhoto &photo) const;
    /// Whether the photo is known to be damaged.
    static bool isDamaged(const PlacedPhoto &photo);

    int rowCount(const QModelIndex &parent = {}) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    Qt::DropActions supportedDragActions() const override { return Qt::MoveAction; }
    /// What is dragged within this table.
    QMimeData *mimeData(const QModelIndexList &indexes) const override;
    static bool isOwnDrag(const QMimeData *data);
    QVariant data(const QModelIndex &index, int role) const override;

private:
    void noteSizes();
    QString description(int row, const PlacedPhoto &photo) const;

    const ArrangementModel *photos_;
    std::optional<PrintSize> usualSize_;
};

} // namespace printdialog
