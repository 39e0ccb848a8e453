// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "BorderPanel.h"

#include <pdekit/ControlValues.h>
#include <pdekit/FormLoader.h>
#include <pdekit/PrintDialogCallback.h>
#include <pdekit/PrintSession.h>
#include <pdekit/ViewTags.h>

#include <QtWidgets/QComboBox>

#include <cups/ppd.h>
#pragma GCC diagnostic ignored                                                                               \
    "-Wdeprecated-declarations" // CUPS has deprecated its PPD interface, without a successor

namespace {

const QString borderKey = QStringLiteral("Border");
constexpr int borderTag = 1;

/// Where the choices of a job are kept when the dialog does not keep the PPD's constraints.
pdekit::PPDDictionary *printSettings(pdekit::PrintDialogCallback &callback)
{
    pdekit::PrintTicket *ticket = nullptr;
    pdekit::PPDDictionary *settings = nullptr;
    const QString type = QString::fromLatin1(pdekit::PMPrintSettingsTicket);
    pdekit::PrintSession *session = callback.printSession();
    if (!session || session->PMSessionGetTicketFromSession(type, &ticket) != pdekit::noErr)
        return nullptr;
    return ticket->PMTicketGetPPDDict(0, 0, &settings) == pdekit::noErr ? settings : nullptr;
}

} // namespace

BorderPanel::BorderPanel(const pdekit::Bundle &bundle, const pdekit::HostInfo &callback)
    : bundle_(bundle)
    , callback_(callback)
{
}

BorderPanel::~BorderPanel()
{
    delete view_;
}

ppd_file_s *BorderPanel::ppd() const
{
    return qobject_cast<pdekit::PrintDialogCallback *>(callback_.get())->ppdFile();
}

BorderPanel::Text BorderPanel::panelName()
{
    return QStringLiteral("Postcard Border");
}

BorderPanel::Text BorderPanel::panelKind() const
{
    return bundle_.identifier() + QLatin1String(".border");
}

QWidget *BorderPanel::panelView()
{
    if (view_)
        return view_;
    view_ = pdekit::loadForm(bundle_, QStringLiteral("border"), this).release();
    auto *popUp = qobject_cast<QComboBox *>(pdekit::viewWithTag(view_, borderTag));
    const ppd_option_t *option = ppdFindOption(ppd(), "Border");
    for (int i = 0; popUp && option && i < option->num_choices; ++i)
        popUp->addItem(QString::fromUtf8(option->choices[i].text),
                       QString::fromLatin1(option->choices[i].choice));
    showChoice();
    return view_;
}

void BorderPanel::showChoice()
{
    if (QWidget *popUp = pdekit::viewWithTag(view_, borderTag))
        pdekit::setStringValue(popUp, border_);
}

// Choices

void BorderPanel::chooseBorder(QObject *popUp)
{
    auto *control = qobject_cast<QWidget *>(popUp);
    markChoiceForPPDOptionKeyFromSender(pdekit::stringValue(control), borderKey, control);
}

bool BorderPanel::markChoiceForPPDOptionKeyFromSender(const Text &choice, const Text &key,
                                                      QWidget * /*sender*/)
{
    auto *dialog = qobject_cast<pdekit::ConstraintHandling *>(callback_.get());
    const bool isTaken = choice && key == borderKey &&
                         (!dialog || dialog->willChangePPDOptionKeyValuePpdChoice(borderKey, *choice));
    if (isTaken)
        border_ = *choice;
    showChoice();
    return isTaken;
}

void BorderPanel::PPDOptionKeyValueDidChangePpdChoice(const Text &key, const Text &choice)
{
    if (key == borderKey)
        border_ = choice.value_or(border_);
    showChoice();
}

bool BorderPanel::restoreValuesAndReturnError(QString * /*error*/)
{
    auto *callback = qobject_cast<pdekit::PrintDialogCallback *>(callback_.get());
    const bool dialogMarks = qobject_cast<pdekit::ConstraintHandling *>(callback_.get());
    const pdekit::PPDDictionary *settings = dialogMarks ? nullptr : printSettings(*callback);
    if (settings && settings->contains(borderKey))
        border_ = settings->value(borderKey);
    else if (const ppd_choice_t *marked = ppdFindMarkedChoice(ppd(), "Border"))
        border_ = QString::fromLatin1(marked->choice);
    showChoice();
    return true;
}

bool BorderPanel::saveValuesAndReturnError(QString * /*error*/)
{
    auto *callback = qobject_cast<pdekit::PrintDialogCallback *>(callback_.get());
    if (qobject_cast<pdekit::ConstraintHandling *>(callback_.get()))
        return true; // the dialog has each choice already
    if (pdekit::PPDDictionary *settings = printSettings(*callback))
        settings->insert(borderKey, border_);
    return true;
}

std::optional<pdekit::PrintDialogPanel::Summary> BorderPanel::summaryInfo()
{
    const ppd_choice_t *choice =
        ppdFindChoice(ppdFindOption(ppd(), "Border"), border_.toLatin1().constData());
    return Summary{{borderKey, choice ? QString::fromUtf8(choice->text) : border_}};
}

QStringList BorderPanel::supportedPPDOptionKeys()
{
    return {borderKey};
}

#include "moc_BorderPanel.cpp"
