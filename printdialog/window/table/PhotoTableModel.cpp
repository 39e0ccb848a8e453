// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PhotoTableModel.h"

#include "ArrangementModel.h"
#include "PlainText.h"
#include "ViewTexts.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QMimeData>

#include <algorithm>
#include <utility>

namespace printdialog {

namespace {

constexpr qsizetype nameLimit = 60;
const QString dragFormat = QStringLiteral("application/x-corvel-print-selection");

/// Other windows like this one have a selection of their own.
QByteArray dragOfProcess()
{
    return QByteArray::number(QCoreApplication::applicationPid());
}

} // namespace

PhotoTableModel::PhotoTableModel(const ArrangementModel *photos, QObject *parent)
    : QAbstractListModel(parent)
    , photos_(photos)
{
    connect(photos, &ArrangementModel::photosChanged, this, [this] {
        beginResetModel();
        noteSizes();
        endResetModel();
    });
    connect(photos, &ArrangementModel::placementChanged, this, [this] {
        noteSizes();
        Q_EMIT dataChanged(index(0), index(rowCount() - 1));
    });
}

/// Few sizes are in use at a time; where they are many, the last ones are all "another one".
void PhotoTableModel::noteSizes()
{
    constexpr qsizetype mostSizes = 16;
    QList<std::pair<std::optional<PrintSize>, int>> counts;
    for (const PlacedPhoto &placed : photos_->photos()) {
        const auto &size = placed.placement.size;
        const auto known =
            std::ranges::find_if(counts, [&](const auto &count) { return count.first == size; });
        if (known != counts.end())
            ++known->second;
        else if (counts.size() < mostSizes)
            counts.append({size, 1});
    }
    const auto usual = std::ranges::max_element(counts, {}, &decltype(counts)::value_type::second);
    usualSize_ = usual == counts.end() ? std::nullopt : usual->first;
}

const PlacedPhoto *PhotoTableModel::photo(const QModelIndex &index) const
{
    return index.row() >= 0 && index.row() < photos_->count() ? &photos_->photos().at(index.row()) : nullptr;
}

bool PhotoTableModel::isCurrent(const QModelIndex &index) const
{
    return index.row() == photos_->current();
}

bool PhotoTableModel::hasOwnSize(const PlacedPhoto &photo) const
{
    return photo.placement.size != usualSize_;
}

bool PhotoTableModel::isDamaged(const PlacedPhoto &photo)
{
    return photo.photo.isChecked() && photo.photo.damage();
}

bool PhotoTableModel::isPrinted(const PlacedPhoto &photo) const
{
    return photos_->isPrinted(photo);
}

int PhotoTableModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : photos_->count();
}

Qt::ItemFlags PhotoTableModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags flags = QAbstractListModel::flags(index) | Qt::ItemNeverHasChildren;
    return index.isValid() ? flags | Qt::ItemIsDragEnabled : flags;
}

QMimeData *PhotoTableModel::mimeData(const QModelIndexList &indexes) const
{
    Q_UNUSED(indexes)
    auto *data = new QMimeData;
    data->setData(dragFormat, dragOfProcess());
    return data;
}

bool PhotoTableModel::isOwnDrag(const QMimeData *data)
{
    return data->data(dragFormat) == dragOfProcess();
}

QVariant PhotoTableModel::data(const QModelIndex &index, int role) const
{
    const PlacedPhoto *placed = photo(index);
    if (!placed)
        return {};
    switch (role) {
    case Qt::DisplayRole: // what is found by typing the beginning of a name
        return plainText(placed->photo.name(), nameLimit);
    case Qt::ToolTipRole:
        return pdekit::plainToolTip(description(index.row(), *placed));
    case Qt::AccessibleTextRole:
        return description(index.row(), *placed);
    default:
        return {};
    }
}

QString PhotoTableModel::description(int row, const PlacedPhoto &photo) const
{
    QStringList parts{tr("%1: %2", "a photo's number and name")
                          .arg(QString::number(row + 1), plainText(photo.photo.name(), nameLimit))};
    if (photo.copies > 1)
        parts += tr("%n copies", nullptr, photo.copies);
    if (hasOwnSize(photo))
        parts += photo.placement.size ? photo.placement.size->localText() : tr("whole page");
    if (isDamaged(photo))
        parts += tr("damaged");
    if (!isPrinted(photo))
        parts += tr("not printed");
    return parts.join(tr(", ", "between the parts of a list"));
}

} // namespace printdialog
