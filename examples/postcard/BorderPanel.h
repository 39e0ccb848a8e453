// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <pdekit/Bundle.h>
#include <pdekit/ChoiceReceiver.h>
#include <pdekit/KeyValueObject.h>
#include <pdekit/PrintDialogPanel.h>
#include <pdekit/PrintDialogPlugin.h>

#include <QtCore/QPointer>
#include <QtWidgets/QWidget>

struct ppd_file_s;

/// A panel with one pop-up, for the PPD option "Border". When the dialog keeps the PPD's constraints, it is
/// asked before each choice; else the panel keeps its choice until it is told to save it.
class BorderPanel : public pdekit::KeyValueObject,
                    public pdekit::PrintDialogPanel,
                    public pdekit::ChoiceReceiver
{
    Q_OBJECT
    Q_INTERFACES(pdekit::PrintDialogPanel pdekit::ChoiceReceiver)

public:
    using Text = std::optional<QString>;

    BorderPanel(const pdekit::Bundle &bundle, const pdekit::HostInfo &callback);
    ~BorderPanel() override;

    /// The action of the pop-up.
    Q_INVOKABLE void chooseBorder(QObject *popUp);

    Text panelName() override;
    Text panelKind() const override;
    QWidget *panelView() override;
    bool restoreValuesAndReturnError(QString *error) override;
    bool saveValuesAndReturnError(QString *error) override;
    void willShow() override {}
    bool shouldHide() override { return true; }
    std::optional<Summary> summaryInfo() override;
    QStringList supportedPPDOptionKeys() override;
    void PPDOptionKeyValueDidChangePpdChoice(const Text &key, const Text &choice) override;
    bool shouldShowHelp() override { return true; }

    bool markChoiceForPPDOptionKeyFromSender(const Text &choice, const Text &key, QWidget *sender) override;

private:
    ppd_file_s *ppd() const;
    void showChoice();

    pdekit::Bundle bundle_;
    pdekit::HostInfo callback_;
    QString border_; ///< the choice's keyword
    QPointer<QWidget> view_;
};
