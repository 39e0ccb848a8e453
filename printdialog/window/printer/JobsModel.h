// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "OwnJob.h"

#include <QtCore/QAbstractTableModel>
#include <QtCore/QSet>

namespace printdialog {

/// A list of jobs for a view, a row for each. When the list is another one, the view's selection stays with
/// its jobs.
class JobsModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Title, Printer, State, Since, ColumnCount };

    using QAbstractTableModel::QAbstractTableModel;

    const QList<OwnJob> &jobs() const { return jobs_; }
    /// @param jobs with different ids
    void setJobs(const QList<OwnJob> &jobs);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    static QString text(const OwnJob &job, int column);
    void removeAllBut(const QSet<int> &ids);

    QList<OwnJob> jobs_;
};

} // namespace printdialog
