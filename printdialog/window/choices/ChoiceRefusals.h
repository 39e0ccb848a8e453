// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ChoiceMarker.h"

#include <QtCore/QObject>

class QWidget;

namespace printdialog {

class ChoiceCallout;
class DialogSession;
class MessageBar;
class PanelTabs;

/// Explains refusals and offers a remedy where there is one: of a choice beside its control, of a job in the
/// message bar.
class ChoiceRefusals : public QObject
{
    Q_OBJECT

public:
    ChoiceRefusals(QWidget *window, PanelTabs *panels, MessageBar *message, QObject *parent);

    /// Explains the refusals of this session, which must outlive this object or the next call; null: none.
    void setSession(DialogSession *session);

    /// Explains why a choice is refused, beside the control if that is visible.
    void explain(const Ruling &ruling, QWidget *control);
    /// Explains why the session's job cannot be made.
    void explainJob();
    /// Ends the user's act on the control. If it has changed something, an earlier explanation is outdated.
    /// One from this act stays, and its offer is updated to the present choices: a defaults button makes many
    /// choices, of which one may be refused.
    void endAct(QWidget *control, bool hasChanged);
    void dismiss();
    /// The explanation shown beside a control; empty when there is none.
    QString text() const;

    /// The texts of the buttons that may appear beside a refusal.
    static QStringList offerTexts() { return {tr("Als&o change %1"), tr("Chan&ge %1")}; }

Q_SIGNALS:
    /// The user has accepted the offered remedy.
    void offerAccepted();

private:
    void explainAfterAct(const Ruling &ruling, const DialogSession *session);
    QString offerText(const QList<OptionChoice> &changes) const;
    void applyOffer();

    QWidget *window_;
    PanelTabs *panels_;
    MessageBar *message_;
    ChoiceCallout *callout_;
    DialogSession *session_ = nullptr;
    Ruling explained_;
    const QWidget *refused_ = nullptr; ///< the control of the current act; only compared
};

} // namespace printdialog
