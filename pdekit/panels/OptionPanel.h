// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ChoiceReceiver.h"
#include "KeyValueObject.h"
#include "PrintDialogPanel.h"
#include "PrintDialogPlugin.h"
#include "pdekit_export.h"

#include <QtCore/QMap>
#include <QtCore/QPointer>

#include <memory>

namespace pdekit {

/// A page of controls for PPD options, which a table assigns to each other. It implements restore, save,
/// defaults, summary and a program's choices, both when the dialog rules on choices (ConstraintHandling) and
/// when the panel keeps them until it is saved. Usable without subclassing; a subclass overrides what its
/// page does differently.
///
/// The form's controls name their action in the property `action`: "choose", and "chooseDefaults" for a
/// button that chooses the PPD's defaults. A text field needs no action. Button titles, labels and tool tips
/// of the form are keys of the bundle's strings table, as are the page's name and the texts of the PPD. Main
/// thread only.
class PDEKIT_EXPORT OptionPanel : public KeyValueObject, public PrintDialogPanel, public ChoiceReceiver
{
    Q_OBJECT
    Q_INTERFACES(pdekit::PrintDialogPanel pdekit::ChoiceReceiver)

public:
    /// A control of the form and its option. Several controls may show one option, such as a slider and a
    /// text field.
    ///
    ///     pop-up        its items' data, or else texts, are the choices; one without items gets the PPD's
    ///     check box     "True" and "False"
    ///     radio group   (RadioMatrix) the choices of `cells`
    ///     slider, text field   the number that it shows
    struct Control
    {
        int tag;                       ///< of the control
        QString key;                   ///< the option's keyword
        QMap<int, QString> cells = {}; ///< for a radio group: the choice of each cell's tag
    };

    struct Page
    {
        QString name;            ///< for the user
        QString kind;            ///< after the bundle's identifier and a full stop, the panel's kind
        QString form;            ///< the name of the form in the bundle
        QList<Control> controls; ///< in the order of the summary
    };

    /// @param hostInfo as the dialog passed it to the plug-in
    OptionPanel(const Bundle &bundle, const HostInfo &hostInfo, const Page &page);
    ~OptionPanel() override;

    /// Handles the user's choice in the control. If it is refused, beeps, and the control shows the previous
    /// choice.
    Q_INVOKABLE void choose(QObject *control);
    Q_INVOKABLE void chooseDefaults(QObject *button);

    std::optional<QString> panelName() override;
    std::optional<QString> panelKind() const override;
    QWidget *panelView() override;
    /// Fails without a PPD, or without print settings when the choices are stored there.
    bool restoreValuesAndReturnError(QString *error) override;
    bool saveValuesAndReturnError(QString *error) override;
    void willShow() override;
    bool shouldHide() override;
    std::optional<Summary> summaryInfo() override;
    QStringList supportedPPDOptionKeys() override;
    void PPDOptionKeyValueDidChangePpdChoice(const std::optional<QString> &key,
                                             const std::optional<QString> &choice) override;
    /// Opens the bundle's help book, see "CFBundleHelpBookName".
    bool shouldShowHelp() override;
    bool markChoiceForPPDOptionKeyFromSender(const std::optional<QString> &choice,
                                             const std::optional<QString> &key, QWidget *sender) override;

protected:
    const Bundle &bundle() const;
    /// The keyword of the option's current choice; empty when there is none.
    QString choice(const QString &key) const;
    /// Makes the view's controls show the current choices.
    void showChoices();

private:
    struct Private;
    std::unique_ptr<Private> d_;
};

} // namespace pdekit
