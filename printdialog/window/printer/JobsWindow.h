// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Destination.h"
#include "OwnJob.h"

#include <QtWidgets/QDialog>

class QLabel;
class QPushButton;
class QTreeView;

namespace printdialog {

class JobsModel;
class MessageBar;
class OwnJobs;

/// The user's jobs on the print server, with buttons to cancel, hold, release and print them again. Asks the
/// server again while it is open, and never waits for it.
class JobsWindow : public QDialog
{
    Q_OBJECT

public:
    /// Shows the jobs above `parent`. A window that is already open is brought to the front. The window is
    /// deleted when it is closed; what it is doing then is done to the end first.
    /// @param destination an address: that printer's jobs; otherwise those of all queues
    static void showFor(QWidget *parent, const Destination &destination);

    void done(int result) override;

private:
    JobsWindow(QWidget *parent, const Destination &destination);

    void layOut();
    QPushButton *addButton(const QString &text, const QString &name, JobAct act);
    void showJobs();
    void showText();
    void showFailure(const QString &failure);
    void finishAct(const QString &failure);
    void act(JobAct act);
    void updateButtons();
    QList<OwnJob> selectedJobs(JobAct act) const;

    struct ActButton
    {
        JobAct act;
        QPushButton *button;
    };

    Destination destination_;
    OwnJobs *jobs_;
    JobsModel *model_;
    QLabel *text_;
    QTreeView *list_;
    MessageBar *message_;
    QWidget *buttonRow_;
    QList<ActButton> buttons_;
    QString unanswered_; ///< why the list is an old one; empty: it is not
    bool isAnswered_ = false;
    bool closes_ = false;
};

} // namespace printdialog
