// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "JobsWindow.h"

#include "JobsModel.h"
#include "MessageBar.h"
#include "OwnJobs.h"
#include "ViewTexts.h"
#include "WrappingRow.h"

#include <QtGui/QScreen>
#include <QtGui/QShortcut>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStyle>
#include <QtWidgets/QTreeView>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>
#include <array>
#include <utility>

namespace printdialog {

namespace {

constexpr QSize startSize(110, 24); // average characters and lines, where the screen has room for them
constexpr std::array columnWidths = {34, 18, 34, 16}; // average characters

/// Why there is nothing to do for a button.
QString whyIdle(JobAct act)
{
    switch (act) {
    case JobAct::Cancel:
        return JobsWindow::tr("Select a job that is not over.");
    case JobAct::Hold:
        return JobsWindow::tr("Select a job that has not begun to print.");
    case JobAct::Release:
        return JobsWindow::tr("Select a job that is held.");
    case JobAct::PrintAgain:
        break;
    }
    return JobsWindow::tr("Select a job that is over.");
}

} // namespace

JobsWindow::JobsWindow(QWidget *parent, const Destination &destination)
    : QDialog(parent)
    , destination_(destination)
    , jobs_(new OwnJobs(destination, this))
    , model_(new JobsModel(this))
    , text_(new QLabel(this))
    , list_(new QTreeView(this))
    , message_(new MessageBar(this))
    , buttonRow_(new QWidget(this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(tr("Jobs"));
    layOut();
    connect(list_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &JobsWindow::updateButtons);
    connect(new QShortcut(QKeySequence::Delete, list_, nullptr, nullptr, Qt::WidgetShortcut),
            &QShortcut::activated, this, [this] { act(JobAct::Cancel); });
    connect(jobs_, &OwnJobs::listed, this, &JobsWindow::showJobs);
    connect(jobs_, &OwnJobs::failed, this, &JobsWindow::showFailure);
    connect(jobs_, &OwnJobs::acted, this, &JobsWindow::finishAct);
    showText();
    updateButtons();
    jobs_->start();
}

void JobsWindow::layOut()
{
    text_->setTextFormat(Qt::PlainText);
    text_->setWordWrap(true);
    text_->setObjectName(QStringLiteral("jobsText"));
    list_->setObjectName(QStringLiteral("jobList"));
    list_->setAccessibleName(windowTitle());
    list_->setModel(model_);
    list_->setRootIsDecorated(false);
    list_->setItemsExpandable(false);
    list_->setUniformRowHeights(true);
    list_->setAllColumnsShowFocus(true);
    list_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    const int character = fontMetrics().averageCharWidth();
    for (int column = 0; column < JobsModel::ColumnCount; ++column)
        list_->setColumnWidth(column, columnWidths.at(static_cast<size_t>(column)) * character);
    message_->setObjectName(QStringLiteral("jobsMessage"));
    auto *row = new WrappingRow(buttonRow_);
    for (QPushButton *button :
         {addButton(tr("&Cancel Jobs"), QStringLiteral("cancelJobs"), JobAct::Cancel),
          addButton(tr("&Hold"), QStringLiteral("holdJobs"), JobAct::Hold),
          addButton(tr("&Release"), QStringLiteral("releaseJobs"), JobAct::Release),
          addButton(tr("&Print Again"), QStringLiteral("printJobsAgain"), JobAct::PrintAgain)})
        row->addWidget(button);
    row->addItem(new QSpacerItem(0, 0, QSizePolicy::Expanding));
    auto *close = new QPushButton(tr("Close"), buttonRow_);
    close->setObjectName(QStringLiteral("closeJobs"));
    close->setAutoDefault(false);
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    row->addWidget(close);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(text_);
    layout->addWidget(list_, 1);
    layout->addWidget(message_);
    layout->addWidget(buttonRow_);
    list_->setFocus();
    const QSize wanted(startSize.width() * character, startSize.height() * fontMetrics().lineSpacing());
    const int title = style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, this);
    resize(wanted.boundedTo(parentWidget()->screen()->availableSize() - QSize(0, title)));
}

QPushButton *JobsWindow::addButton(const QString &text, const QString &name, JobAct act)
{
    auto *button = new QPushButton(text, buttonRow_);
    button->setObjectName(name);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, [this, act] { this->act(act); });
    buttons_.append({act, button});
    return button;
}

void JobsWindow::showFor(QWidget *parent, const Destination &destination)
{
    const auto server = [](const Destination &each) {
        return each.isAddress() ? each.queue : QString();
    };
    JobsWindow *window = nullptr;
    const auto open = parent->findChildren<JobsWindow *>(QString(), Qt::FindDirectChildrenOnly);
    for (JobsWindow *each : open) {
        if (!each->closes_ && server(each->destination_) == server(destination))
            window = each;
    }
    if (!window)
        window = new JobsWindow(parent, destination);
    window->show();
    window->raise();
    window->activateWindow();
}

void JobsWindow::done(int result)
{
    if (!jobs_->isActing()) {
        QDialog::done(result);
        return;
    }
    closes_ = true;
    hide();
}

void JobsWindow::act(JobAct act)
{
    const QList<OwnJob> jobs = selectedJobs(act);
    if (jobs.isEmpty() || jobs_->isActing())
        return;
    message_->clear();
    list_->setFocus(Qt::OtherFocusReason); // the button is about to be disabled
    jobs_->act(act, jobs);
    updateButtons();
}

void JobsWindow::finishAct(const QString &failure)
{
    if (closes_) {
        QDialog::done(Rejected);
        return;
    }
    if (!failure.isEmpty())
        message_->show(MessageBar::Kind::Error, failure);
    updateButtons();
}

void JobsWindow::showJobs()
{
    isAnswered_ = true;
    if (const QString old = std::exchange(unanswered_, QString()); !old.isEmpty() && message_->text() == old)
        message_->clear();
    model_->setJobs(jobs_->jobs());
    if (!list_->currentIndex().isValid() && model_->rowCount() > 0)
        list_->selectionModel()->setCurrentIndex(model_->index(0, 0), QItemSelectionModel::NoUpdate);
    showText();
    updateButtons();
}

/// What fails again and again is said once, and takes the place of no other message.
void JobsWindow::showFailure(const QString &failure)
{
    if (failure == std::exchange(unanswered_, failure) || closes_)
        return;
    showText();
    message_->show(MessageBar::Kind::Warning, failure);
}

void JobsWindow::showText()
{
    const QList<OwnJob> &jobs = model_->jobs();
    const auto over =
        std::count_if(jobs.begin(), jobs.end(), [](const OwnJob &job) { return job.status.isOver(); });
    if (!isAnswered_)
        text_->setText(unanswered_.isEmpty() ? tr("The print server is being asked for your jobs.")
                                             : tr("Your jobs are not known."));
    else if (!unanswered_.isEmpty())
        text_->setText(tr("Your jobs as the print server last reported them"));
    else if (jobs.isEmpty())
        text_->setText(tr("You have no jobs on the print server."));
    else
        text_->setText(tr("Your jobs on the print server: %1 not over, %2 over")
                           .arg(QString::number(jobs.size() - over), QString::number(over)));
}

QList<OwnJob> JobsWindow::selectedJobs(JobAct act) const
{
    QList<OwnJob> jobs;
    const QModelIndexList rows = list_->selectionModel()->selectedRows();
    for (const QModelIndex &index : rows) {
        const OwnJob &job = model_->jobs().at(index.row());
        if (isPossible(act, job))
            jobs.append(job);
    }
    // Released and printed in the order in which they were sent.
    std::ranges::sort(jobs, {}, &OwnJob::id);
    return jobs;
}

void JobsWindow::updateButtons()
{
    for (const auto &[act, button] : std::as_const(buttons_)) {
        const bool isIdle = selectedJobs(act).isEmpty();
        button->setEnabled(!isIdle && !jobs_->isActing());
        pdekit::setPlainToolTip(button, isIdle ? whyIdle(act) : QString());
    }
}

} // namespace printdialog
