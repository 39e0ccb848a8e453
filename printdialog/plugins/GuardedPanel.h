// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Adjustment.h"
#include "PrintDialogPlugin.h"

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QStringList>

#include <functional>

namespace printdialog {

/// The only way in which the dialog calls a plug-in's panel. A panel that throws, here or while handling an
/// event of its view, is lost: it is not called again, and this class returns empty answers for it. All
/// failures are also logged to the system log. Main thread only.
class GuardedPanel : public QObject
{
    Q_OBJECT

public:
    using Summary = pdekit::PrintDialogPanel::Summary;

    explicit GuardedPanel(pdekit::PanelPointer panel);
    ~GuardedPanel() override;

    /// Queries the panel's constant properties, and makes it restore the job's choices. Call once, first.
    void open();
    /// Queries the keys again, of a page of the dialog itself that shows others now, and restores it.
    void reopen();

    /// Safe to show; empty when the panel has none.
    QString name() const { return name_; }
    QString kind() const { return kind_; }
    QStringList keys() const { return keys_; }
    /// Those of keys() that the panel does not show for this printer (pdekit::RetiredOptions), as last asked.
    QStringList retiredKeys() const { return retiredKeys_; }
    /// Asks for them again. False: they are the same.
    bool updateRetiredKeys();

    QWidget *view();
    void restore();
    void save();
    void willShow();
    bool shouldHide();
    std::optional<Summary> summary();
    void choiceDidChange(const QString &key, const QString &choice);
    bool shouldShowHelp();

    /// Whether the panel accepts a program's choices (pdekit::ChoiceReceiver).
    bool receivesChoices() const;
    void receiveChoice(const QString &key, const QString &choice);

    /// What its choices do to the picture (pdekit::AdjustmentSource); nothing when the panel does not say.
    std::optional<pdekit::Adjustment> adjustment();

    bool isLost() const { return !thrown_.isEmpty(); }
    /// A sentence about the loss; empty while the panel works.
    QString loss() const;
    /// A sentence when the panel's choices are missing because it is lost or its last save failed; else
    /// empty.
    QString missing() const;
    /// A sentence when the panel's last restore failed; else empty.
    QString restoreFailure() const;

Q_SIGNALS:
    /// The panel has just been lost. Its code may still be on the call stack.
    void lost();
    /// restoreFailure() has changed.
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
    QStringList retiredKeys_;
    QPointer<QWidget> view_;
    QString thrown_;
    QString saveProblem_;
    QString restoreProblem_;
};

} // namespace printdialog
