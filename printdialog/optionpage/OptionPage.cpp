// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "OptionPage.h"

#include "Feedback.h"
#include "OptionPageView.h"
#include "PrintDialogCallback.h"
#include "PrintSession.h"

#include <utility>

namespace printdialog {

namespace {

/// The job's print settings; null when there are none.
pdekit::PPDDictionary *settingsOf(const pdekit::HostInfo &hostInfo)
{
    auto *dialog = qobject_cast<pdekit::PrintDialogCallback *>(hostInfo.get());
    pdekit::PrintSession *session = dialog ? dialog->printSession() : nullptr;
    pdekit::PrintTicket *ticket = nullptr;
    pdekit::PPDDictionary *settings = nullptr;
    const QString type = QString::fromLatin1(pdekit::PMPrintSettingsTicket);
    if (!session || session->PMSessionGetTicketFromSession(type, &ticket) != pdekit::noErr || !ticket)
        return nullptr;
    return ticket->PMTicketGetPPDDict(0, 0, &settings) == pdekit::noErr ? settings : nullptr;
}

} // namespace

OptionPage::OptionPage(const OptionSource &source, const pdekit::HostInfo &hostInfo, Session session,
                       const QString &name, const QString &kind)
    : source_(source)
    , hostInfo_(hostInfo)
    , session_(std::move(session))
    , name_(name)
    , kind_(kind)
{
}

OptionPage::~OptionPage()
{
    delete view_;
}

void OptionPage::setKeys(const QStringList &keys)
{
    keys_ = keys;
    shown_ = QSet<QString>(keys_.cbegin(), keys_.cend());
    if (view_)
        view_->setKeys(keys_);
}

std::optional<QString> OptionPage::choice(const QString &key) const
{
    const auto entry = choices_.constFind(key);
    return entry == choices_.cend() ? std::nullopt : std::optional(*entry);
}

// The page

std::optional<QString> OptionPage::panelName()
{
    return name_;
}

std::optional<QString> OptionPage::panelKind() const
{
    return QStringLiteral("org.corvel.print.") + kind_;
}

QWidget *OptionPage::panelView()
{
    if (!view_) {
        view_ = new OptionPageView(*this);
        view_->setKeys(keys_);
    }
    return view_;
}

std::optional<OptionPage::Summary> OptionPage::summaryInfo()
{
    Summary summary;
    for (const QString &key : std::as_const(keys_)) {
        if (const auto chosen = choice(key))
            summary.insert(source_.optionText(key), choiceText(source_, {key, *chosen}));
    }
    return summary;
}

// Choices

void OptionPage::choose(const QString &key, const QString &choice, QWidget *control)
{
    if (!markChoiceForPPDOptionKeyFromSender(choice, key, control) && control)
        pdekit::Feedback::current().beep();
}

bool OptionPage::markChoiceForPPDOptionKeyFromSender(const std::optional<QString> &choice,
                                                     const std::optional<QString> &key, QWidget * /*sender*/)
{
    if (!choice || !key || !shows(*key))
        return false;
    const bool isMade = !session_.rule || session_.rule(*key, *choice);
    if (isMade)
        set(*key, session_.rule ? source_.markedChoice(*key).value_or(*choice) : *choice);
    show(*key);
    return isMade;
}

void OptionPage::PPDOptionKeyValueDidChangePpdChoice(const std::optional<QString> &key,
                                                     const std::optional<QString> &choice)
{
    if (!key || !choice || !shows(*key))
        return;
    set(*key, *choice);
    show(*key);
}

void OptionPage::set(const QString &key, const QString &choice)
{
    choices_.insert(key, choice);
    if (!changed_.contains(key))
        changed_ += key;
}

void OptionPage::show(const QString &key)
{
    if (view_)
        view_->showChoice(key);
}

// The job

bool OptionPage::restoreValuesAndReturnError(QString * /*error*/)
{
    const pdekit::PPDDictionary *settings = session_.rule ? nullptr : settingsOf(hostInfo_);
    changed_.clear();
    for (const QString &key : std::as_const(keys_)) {
        const bool isSet = settings && settings->contains(key);
        const auto before = choice(key);
        if (const auto now = isSet ? std::optional(settings->value(key)) : source_.markedChoice(key))
            choices_.insert(key, *now);
        else
            choices_.remove(key);
        if (choice(key) != before)
            show(key);
    }
    return true;
}

// The cost does not depend on the number of options. One that nobody has chosen stays out of the settings:
// the printer's default applies.
bool OptionPage::saveValuesAndReturnError(QString * /*error*/)
{
    saved_ = std::exchange(changed_, {});
    if (pdekit::PPDDictionary *settings = session_.rule ? nullptr : settingsOf(hostInfo_)) {
        for (const QString &key : std::as_const(saved_))
            settings->insert(key, choices_.value(key));
    }
    return true;
}

} // namespace printdialog
