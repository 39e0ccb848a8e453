// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ChoiceRefusals.h"

#include "ChoiceCallout.h"
#include "ChoiceExplanation.h"
#include "DialogSession.h"
#include "MessageBar.h"
#include "PanelTabs.h"

#include <utility>

namespace printdialog {

namespace {

/// Escapes ampersands, which would underline the next letter of a button's text.
QString forButton(QString text)
{
    return text.replace(QLatin1Char('&'), QLatin1String("&&"));
}

} // namespace

ChoiceRefusals::ChoiceRefusals(QWidget *window, PanelTabs *panels, MessageBar *message, QObject *parent)
    : QObject(parent)
    , window_(window)
    , panels_(panels)
    , message_(message)
    , callout_(new ChoiceCallout(window))
{
    connect(panels, &PanelTabs::currentChanged, callout_, &ChoiceCallout::dismiss);
    connect(callout_, &ChoiceCallout::offerAccepted, this, &ChoiceRefusals::applyOffer);
}

void ChoiceRefusals::setSession(DialogSession *session)
{
    callout_->dismiss();
    refused_ = nullptr;
    session_ = session;
    if (!session)
        return;
    connect(&session->chosen(), &ChosenOptions::refused, this, [this](const Ruling &ruling, QWidget *sender) {
        refused_ = sender;
        if (sender) {
            explain(ruling, sender);
            return;
        }
        // A control that a panel connects itself is not known; mostly it is the focused one. The rest of the
        // act may make other choices, which would remove the explanation.
        QMetaObject::invokeMethod(
            this, [this, ruling, session = session_] { explainAfterAct(ruling, session); },
            Qt::QueuedConnection);
    });
}

void ChoiceRefusals::explainAfterAct(const Ruling &ruling, const DialogSession *session)
{
    QWidget *focus = window_->focusWidget();
    if (session == session_)
        explain(ruling, focus && panels_->isAncestorOf(focus) ? focus : nullptr);
}

void ChoiceRefusals::explain(const Ruling &ruling, QWidget *control)
{
    explained_ = ruling;
    const QString text = ChoiceExplanation(session_->options()).refusal(ruling);
    const QString offer = offerText(session_->chosen().changesThatAllow(ruling));
    message_->clear();
    callout_->dismiss();
    if (control && control->isVisible()) {
        QWidget *area = panels_->isAncestorOf(control) ? panels_->currentWidget() : window_;
        callout_->show(control, area, text, offer);
    } else if (offer.isEmpty()) {
        message_->show(MessageBar::Kind::Warning, text);
    } else {
        message_->showWithAction(MessageBar::Kind::Warning, text, offer, [this] { applyOffer(); });
    }
}

void ChoiceRefusals::endAct(QWidget *control, bool hasChanged)
{
    const bool wasRefused = std::exchange(refused_, nullptr) == control;
    if (hasChanged && wasRefused)
        explain(explained_, control);
    else if (hasChanged)
        callout_->dismiss();
}

void ChoiceRefusals::dismiss()
{
    callout_->dismiss();
}

QString ChoiceRefusals::text() const
{
    return callout_->text();
}

QString ChoiceRefusals::offerText(const QList<OptionChoice> &changes) const
{
    if (changes.isEmpty())
        return {};
    return tr("Als&o change %1").arg(forButton(ChoiceExplanation(session_->options()).changes(changes)));
}

void ChoiceRefusals::applyOffer()
{
    const QList<OptionChoice> changes = session_->chosen().changesThatAllow(explained_);
    callout_->dismiss();
    message_->clear();
    if (changes.isEmpty()) // no remedy any more: something else was chosen since
        return;
    QMap<QString, QString> together = {{explained_.key, explained_.choice}};
    for (const OptionChoice &change : changes)
        together.insert(change.option, change.choice);
    session_->chooseTogether(together);
    Q_EMIT offerAccepted();
}

void ChoiceRefusals::explainJob()
{
    callout_->dismiss();
    Ruling refusal = session_->jobRefusal();
    QList<OptionChoice> changes = session_->chosen().changesThatAllow(refusal);
    // If nothing allows the choice made last, something may allow one made before it.
    for (qsizetype i = 0; changes.isEmpty() && i < session_->jobRefusal().others.size(); ++i) {
        refusal = session_->jobRefusal();
        const OptionChoice other = refusal.others.at(i);
        refusal.others[i] = {refusal.key, refusal.choice};
        refusal.key = other.option;
        refusal.choice = other.choice;
        changes = session_->chosen().changesThatAllow(refusal);
    }
    if (changes.isEmpty())
        refusal = session_->jobRefusal();
    const QString text = ChoiceExplanation(session_->options()).refusal(refusal);
    if (changes.isEmpty()) {
        message_->show(MessageBar::Kind::Warning, text);
        return;
    }
    explained_ = refusal;
    const QString changed = ChoiceExplanation(session_->options()).changes(changes);
    message_->showWithAction(MessageBar::Kind::Warning, text, tr("Chan&ge %1").arg(forButton(changed)),
                             [this] { applyOffer(); });
}

} // namespace printdialog
