// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PrintDialogPlugin.h"

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QStringList>

#include <functional>

namespace printdialog {

/// A plug-in's panel as the dialog sees it: nothing else calls one. A panel that throws anything, here or
/// while it deals with an event of its view, is lost: it is called no more, and what is asked of it is
/// answered as by a panel that has nothing to say. Everything that a panel reports goes to the system log as
/// well. Main thread only.
class GuardedPanel : public QObject
{
    Q_OBJECT

public:
    using Summary = pdekit::PrintDialogPanel::Summary;

    explicit GuardedPanel(pdekit::PanelPointer panel);
    ~GuardedPanel() override;

    /// Asks the panel for what it does not change, and has it restore the job's choices. Once, first.
    void open();

    /// Fit to be shown; empty when the panel has none.
    QString name() const { return name_; }
    QString kind() const { return kind_; }
    QStringList keys() const { return keys_; }

    QWidget *view();
    void restore();
    void save();
    void willShow();
    bool shouldHide();
    std::optional<Summary> summary();
    void choiceDidChange(const QString &key, const QString &choice);
    bool shouldShowHelp();

    /// Whether the panel takes a program's choices (pdekit::ChoiceReceiver).
    bool receivesChoices() const;
    void receiveChoice(const QString &key, const QString &choice);

    bool isLost() const { return !thrown_.isEmpty(); }
    /// A sentence about the loss; empty before.
    QString loss() const;
    /// A sentence about the choices that the panel has not handed over: it is lost, or its last save failed.
    /// Else empty.
    QString missing() const;
    /// A sentence when the panel could not read the job's choices the last time; else empty.
    QString restoreFailure() const;

Q_SIGNALS:
    /// The panel has just been lost. Its code may still be running, further out.
    void lost();
    /// There is another restoreFailure() now.
    void restoreFailed();

private:
    std::optional<QString> problemOf(bool (pdekit::PrintDialogPanel::*request)(QString *));
    bool call(const std::function<void()> &call);
    void lose(const QString &thrown);
    bool owns(const QObject *receiver) const;
    QString shownName() const;
    static bool handleFailure(const QObject *receiver);

    pdekit::PanelPointer panel_;
    QString name_;
    QString kind_;
    QStringList keys_;
    QPointer<QWidget> view_;
    QString thrown_;
    QString saveProblem_;
    QString restoreProblem_;
};

} // namespace printdialog
