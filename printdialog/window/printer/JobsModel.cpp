// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "JobsModel.h"

#include "ViewTexts.h"

#include <QtCore/QHash>
#include <QtCore/QLocale>

#include <utility>

namespace printdialog {

void JobsModel::setJobs(const QList<OwnJob> &jobs)
{
    if (jobs == jobs_)
        return;
    QHash<int, int> newRows;
    for (int row = 0; row < jobs.size(); ++row)
        newRows.insert(jobs.at(row).id, row);
    const QList<int> ids = newRows.keys();
    removeAllBut(QSet<int>(ids.begin(), ids.end()));
    const auto known = static_cast<int>(jobs_.size());
    if (jobs.size() > known) {
        QSet<int> oldIds;
        for (const OwnJob &job : std::as_const(jobs_))
            oldIds.insert(job.id);
        beginInsertRows({}, known, static_cast<int>(jobs.size()) - 1);
        for (const OwnJob &job : jobs) {
            if (!oldIds.contains(job.id))
                jobs_.append(job);
        }
        endInsertRows();
    }
    // The same jobs by now, in another order perhaps.
    Q_EMIT layoutAboutToBeChanged({}, VerticalSortHint);
    const QModelIndexList before = persistentIndexList();
    QModelIndexList after;
    for (const QModelIndex &index : before)
        after.append(createIndex(newRows.value(jobs_.at(index.row()).id), index.column()));
    jobs_ = jobs;
    changePersistentIndexList(before, after);
    Q_EMIT layoutChanged({}, VerticalSortHint);
}

void JobsModel::removeAllBut(const QSet<int> &ids)
{
    for (auto row = static_cast<int>(jobs_.size()) - 1; row >= 0; --row) {
        if (ids.contains(jobs_.at(row).id))
            continue;
        beginRemoveRows({}, row, row);
        jobs_.removeAt(row);
        endRemoveRows();
    }
}

int JobsModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(jobs_.size());
}

int JobsModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant JobsModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const QString shown = text(jobs_.at(index.row()), index.column());
    switch (role) {
    case Qt::DisplayRole:
        return shown;
    case Qt::ToolTipRole:
        return pdekit::plainToolTip(shown);
    default:
        return {};
    }
}

QVariant JobsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case Title:
        return tr("Job");
    case Printer:
        return tr("Printer");
    case State:
        return tr("State");
    default:
        return tr("Since", "the time at which a job got into its state");
    }
}

QString JobsModel::text(const OwnJob &job, int column)
{
    switch (column) {
    case Title:
        return job.title;
    case Printer:
        return job.printer;
    case State: {
        const QString detail =
            job.status.state == JobStatus::State::Aborted ? job.status.detail() : QString();
        return detail.isEmpty() ? job.status.text() : tr("%1: %2").arg(job.status.text(), detail);
    }
    default:
        return job.since.date() == QDate::currentDate()
                   ? QLocale().toString(job.since.time(), QLocale::ShortFormat)
                   : QLocale().toString(job.since, QLocale::ShortFormat);
    }
}

} // namespace printdialog
