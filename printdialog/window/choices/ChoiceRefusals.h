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

/// Explains refusals, of a choice beside its control and of a job in the message bar, and offers the way out
/// where there is one.
class ChoiceRefusals : public QObject
{
    Q_OBJECT

public:
    ChoiceRefusals(QWidget *window, PanelTabs *panels, MessageBar *message, QObject *parent);

    /// Explains what this session refuses, which must outlive this or the next call; null: none.
    void setSession(DialogSession *session);

    /// Explains why a choice is refused, beside the control where it is to be seen.
    void explain(const Ruling &ruling, QWidget *control);
    /// Why the session's job cannot be made.
    void explainJob();
    /// The user's act on the control is over. When it has changed something, an explanation from before is
    /// outdated; one of this act stays, with an offer that fits what is chosen now (a button for all defaults
    /// makes many choices, of which one may be refused).
    void endAct(QWidget *control, bool hasChanged);
    void dismiss();
    /// What is being explained beside a control; empty when nothing is.
    QString text() const;

    /// The texts of the buttons that may appear beside a refusal.
    static QStringList offerTexts() { return {tr("Als&o change %1"), tr("Chan&ge %1")}; }

Q_SIGNALS:
    /// The offered way out was chosen.
    void offerTaken();

private:
    QString offerText(const QList<OptionChoice> &changes) const;
    void takeOffer();

    QWidget *window_;
    PanelTabs *panels_;
    MessageBar *message_;
    ChoiceCallout *callout_;
    DialogSession *session_ = nullptr;
    Ruling explained_;
    const QWidget *refused_ = nullptr; ///< the control of the act that is being dealt with; only compared
};

} // namespace printdialog
