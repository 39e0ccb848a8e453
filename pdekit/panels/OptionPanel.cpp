// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "OptionPanel.h"

#include "Bundle.h"
#include "ControlValues.h"
#include "Feedback.h"
#include "FormLoader.h"
#include "PrintDialogCallback.h"
#include "PrintSession.h"
#include "RadioMatrix.h"
#include "TextFieldEvents.h"
#include "ViewTags.h"
#include "ViewTexts.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>

#include <cups/ppd.h>
#pragma GCC diagnostic ignored                                                                               \
    "-Wdeprecated-declarations" // CUPS has no successor for a dialog that keeps a PPD

namespace pdekit {

namespace {

const QString on = QStringLiteral("True");
const QString off = QStringLiteral("False");

void localize(QWidget *view, const Bundle &bundle)
{
    if (const auto text = title(view))
        setTitle(view, bundle.localizedString(*text));
    if (auto *label = qobject_cast<QLabel *>(view))
        label->setText(bundle.localizedString(label->text()));
    if (!view->toolTip().isEmpty())
        view->setToolTip(bundle.localizedString(view->toolTip()));
}

void fill(QWidget *control, const ppd_option_t *option, const Bundle &bundle)
{
    auto *popUp = qobject_cast<QComboBox *>(control);
    if (!popUp || popUp->count() > 0 || !option)
        return;
    for (int i = 0; i < option->num_choices; ++i) {
        const ppd_choice_t &choice = option->choices[i];
        popUp->addItem(bundle.localizedString(QString::fromUtf8(choice.text)),
                       QString::fromUtf8(choice.choice));
    }
}

bool fail(QString *error, const QString &reason)
{
    if (error)
        *error = reason;
    return false;
}

} // namespace

struct OptionPanel::Private
{
    PrintDialogCallback &dialog() const { return *qobject_cast<PrintDialogCallback *>(hostInfo.get()); }
    /// Null in a dialog that leaves the choices to the panel.
    ConstraintHandling *ruler() const { return qobject_cast<ConstraintHandling *>(hostInfo.get()); }
    ppd_file_s *ppd() const;
    ppd_option_t *option(const QString &key) const { return ppdFindOption(ppd(), key.toUtf8().constData()); }
    const ppd_choice_t *choice(const QString &key, const QString &text) const;
    std::optional<QString> marked(const QString &key) const
    {
        const ppd_choice_t *found = ppdFindMarkedChoice(ppd(), key.toUtf8().constData());
        return found ? std::optional(QString::fromUtf8(found->choice)) : std::nullopt;
    }
    PPDDictionary *settings() const;
    void prepareView(OptionPanel *panel);
    void follow(QLineEdit *field, const QString &key, OptionPanel *panel);
    void show(const Control &control) const;

    Bundle bundle;
    HostInfo hostInfo;
    Page page;
    QMap<QString, QString> choices; ///< option keyword to choice keyword
    QPointer<QWidget> view;
};

/// The dialog's own, or else the print session's.
ppd_file_s *OptionPanel::Private::ppd() const
{
    ppd_file_s *record = dialog().ppdFile();
    PrintSession *session = dialog().printSession();
    if (!record && session && session->GetPPDRefFromSession(&record) != noErr)
        return nullptr;
    return record;
}

/// The PPD's choice for the text: by keyword, or as the same number. Null when there is none.
const ppd_choice_t *OptionPanel::Private::choice(const QString &key, const QString &text) const
{
    ppd_option_t *found = option(key);
    if (!found)
        return nullptr;
    if (const ppd_choice_t *choice = ppdFindChoice(found, text.toUtf8().constData()))
        return choice;
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    for (int i = 0; isNumber && i < found->num_choices; ++i) {
        bool isChoiceNumber = false;
        if (QByteArray(found->choices[i].choice).toDouble(&isChoiceNumber) == number && isChoiceNumber)
            return found->choices + i;
    }
    return nullptr;
}

/// The job's print settings; null when there are none.
PPDDictionary *OptionPanel::Private::settings() const
{
    PrintSession *session = dialog().printSession();
    PrintTicket *ticket = nullptr;
    PPDDictionary *settings = nullptr;
    const QString type = QString::fromLatin1(PMPrintSettingsTicket);
    if (!session || session->PMSessionGetTicketFromSession(type, &ticket) != noErr || !ticket)
        return nullptr;
    return ticket->PMTicketGetPPDDict(0, 0, &settings) == noErr ? settings : nullptr;
}

OptionPanel::OptionPanel(const Bundle &bundle, const HostInfo &hostInfo, const Page &page)
    : d_(new Private{bundle, hostInfo, page, {}, {}})
{
}

OptionPanel::~OptionPanel()
{
    delete d_->view;
}

const Bundle &OptionPanel::bundle() const
{
    return d_->bundle;
}

QString OptionPanel::choice(const QString &key) const
{
    return d_->choices.value(key);
}

// The page

std::optional<QString> OptionPanel::panelName()
{
    return d_->bundle.localizedString(d_->page.name);
}

std::optional<QString> OptionPanel::panelKind() const
{
    return d_->bundle.identifier() + QLatin1Char('.') + d_->page.kind;
}

QWidget *OptionPanel::panelView()
{
    if (!d_->view) {
        d_->view = loadForm(d_->bundle, d_->page.form, this).release();
        if (d_->view)
            d_->prepareView(this);
    }
    return d_->view;
}

void OptionPanel::Private::prepareView(OptionPanel *panel)
{
    const QList<QWidget *> views = view->findChildren<QWidget *>();
    for (QWidget *each : views)
        localize(each, bundle);
    for (const Control &control : std::as_const(page.controls)) {
        QWidget *widget = viewWithTag(view, control.tag);
        fill(widget, option(control.key), bundle);
        if (auto *field = qobject_cast<QLineEdit *>(widget))
            follow(field, control.key, panel);
    }
    panel->showChoices();
}

/// A typed text that is a choice applies at once. Any other text may be the beginning of one until the field
/// is left.
void OptionPanel::Private::follow(QLineEdit *field, const QString &key, OptionPanel *panel)
{
    auto *events = TextFieldEvents::attach(field);
    connect(events, &TextFieldEvents::textDidChange, panel, [this, field, key, panel] {
        if (const ppd_choice_t *typed = choice(key, field->text());
            typed && field->text() == QLatin1String(typed->choice))
            panel->choose(field);
    });
    connect(events, &TextFieldEvents::textDidEndEditing, panel, [field, panel] { panel->choose(field); });
}

void OptionPanel::Private::show(const Control &control) const
{
    QWidget *widget = viewWithTag(view, control.tag);
    const auto chosen = choices.constFind(control.key);
    if (!widget || chosen == choices.constEnd())
        return;
    if (auto *matrix = qobject_cast<RadioMatrix *>(widget))
        matrix->selectCellWithTag(control.cells.key(*chosen));
    else if (qobject_cast<QCheckBox *>(widget))
        setState(widget, *chosen == on ? 1 : 0);
    else
        setStringValue(widget, *chosen);
}

void OptionPanel::showChoices()
{
    for (const Control &control : std::as_const(d_->page.controls))
        d_->show(control);
}

void OptionPanel::willShow()
{
    showChoices();
}

bool OptionPanel::shouldHide()
{
    return true;
}

bool OptionPanel::shouldShowHelp()
{
    const QJsonValue book = d_->bundle.infoValue(QStringLiteral("CFBundleHelpBookName"));
    return !book.isString() || !Feedback::current().openHelpBook(d_->bundle, book.toString());
}

// Choices

void OptionPanel::choose(QObject *sender)
{
    auto *widget = qobject_cast<QWidget *>(sender);
    const int wanted = widget ? tag(widget) : noTag;
    for (const Control &control : std::as_const(d_->page.controls)) {
        if (control.tag != wanted)
            continue;
        std::optional<QString> choice;
        if (const auto *matrix = qobject_cast<const RadioMatrix *>(widget))
            choice = control.cells.value(RadioMatrix::cellTag(matrix->selectedCell()));
        else if (qobject_cast<const QCheckBox *>(widget))
            choice = state(widget) == 0 ? off : on;
        else
            choice = stringValue(widget);
        markChoiceForPPDOptionKeyFromSender(choice, control.key, widget);
        return;
    }
}

void OptionPanel::chooseDefaults(QObject * /*button*/)
{
    const QStringList keys = supportedPPDOptionKeys();
    for (const QString &key : keys) {
        if (const ppd_option_t *option = d_->option(key))
            markChoiceForPPDOptionKeyFromSender(QString::fromUtf8(option->defchoice), key, nullptr);
    }
}

bool OptionPanel::markChoiceForPPDOptionKeyFromSender(const std::optional<QString> &choice,
                                                      const std::optional<QString> &key, QWidget *sender)
{
    bool isMade = choice && key && supportedPPDOptionKeys().contains(*key);
    if (isMade) {
        // Uses the PPD's spelling if it has the choice. Otherwise the dialog is still asked, so that it
        // explains the refusal.
        const ppd_choice_t *known = d_->choice(*key, *choice);
        const QString keyword = known ? QString::fromUtf8(known->choice) : *choice;
        ConstraintHandling *ruler = d_->ruler();
        isMade = ruler ? ruler->willChangePPDOptionKeyValuePpdChoice(*key, keyword) : known != nullptr;
        if (isMade)
            d_->choices.insert(*key, ruler ? d_->marked(*key).value_or(keyword) : keyword);
    }
    if (!isMade && sender)
        Feedback::current().beep();
    showChoices();
    return isMade;
}

void OptionPanel::PPDOptionKeyValueDidChangePpdChoice(const std::optional<QString> &key,
                                                      const std::optional<QString> &choice)
{
    if (key && choice && supportedPPDOptionKeys().contains(*key))
        d_->choices.insert(*key, *choice);
    showChoices();
}

QStringList OptionPanel::supportedPPDOptionKeys()
{
    QStringList keys;
    for (const Control &control : std::as_const(d_->page.controls))
        keys += control.key;
    keys.removeDuplicates();
    return keys;
}

// The job

bool OptionPanel::restoreValuesAndReturnError(QString *error)
{
    if (!d_->ppd())
        return fail(error, tr("the printer has no PPD file"));
    const PPDDictionary *settings = d_->ruler() ? nullptr : d_->settings();
    if (!settings && !d_->ruler())
        return fail(error, tr("the job has no print settings"));
    const QStringList keys = supportedPPDOptionKeys();
    for (const QString &key : keys) {
        const bool isSet = settings && settings->contains(key);
        if (const auto choice = isSet ? std::optional(settings->value(key)) : d_->marked(key))
            d_->choices.insert(key, *choice);
    }
    showChoices();
    return true;
}

bool OptionPanel::saveValuesAndReturnError(QString *error)
{
    if (d_->ruler())
        return true; // the dialog has each choice already
    PPDDictionary *settings = d_->settings();
    if (!settings)
        return fail(error, tr("the job has no print settings"));
    settings->insert(d_->choices);
    return true;
}

std::optional<PrintDialogPanel::Summary> OptionPanel::summaryInfo()
{
    Summary summary;
    const QStringList keys = supportedPPDOptionKeys();
    for (const QString &key : keys) {
        const ppd_option_t *option = d_->option(key);
        const ppd_choice_t *choice = d_->choice(key, d_->choices.value(key));
        if (option && choice)
            summary.insert(d_->bundle.localizedString(key, QString::fromUtf8(option->text)),
                           d_->bundle.localizedString(QString::fromUtf8(choice->text)));
    }
    return summary;
}

} // namespace pdekit
