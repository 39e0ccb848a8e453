// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QMap>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>

class QWidget;

namespace pdekit {

/// One page of the print dialog, offered by a plug-in: a QObject that implements this interface. The dialog
/// calls it on the main thread, in any order after construction.
class PrintDialogPanel
{
public:
    /// Localised name of an option to localised text of its choice.
    using Summary = QMap<QString, QString>;

    virtual ~PrintDialogPanel() = default;

    /// The name to show the user, localised.
    virtual std::optional<QString> panelName() = 0;
    /// A reverse-DNS name that tells this panel from every other.
    virtual std::optional<QString> panelKind() const = 0;
    /// The panel's view, made on the first call; null when it has none or it cannot be loaded. It goes with
    /// the panel, or with the widget that the dialog makes its parent, whichever goes first.
    virtual QWidget *panelView() = 0;

    /// Takes over the job's current choices. `error` may be null.
    virtual bool restoreValuesAndReturnError(QString *error) = 0;
    /// Puts the panel's choices into the job's print settings. `error` may be null.
    virtual bool saveValuesAndReturnError(QString *error) = 0;

    virtual void willShow() = 0;
    /// False keeps the panel on the screen.
    virtual bool shouldHide() = 0;

    /// The panel's entries for the dialog's summary of the job.
    virtual std::optional<Summary> summaryInfo() = 0;
    /// The keywords of the PPD options that the panel handles, in its own order.
    virtual QStringList supportedPPDOptionKeys() = 0;
    /// Tells the panel that the dialog has changed the choice of an option.
    virtual void PPDOptionKeyValueDidChangePpdChoice(const std::optional<QString> &key,
                                                     const std::optional<QString> &choice) = 0;

    /// False when the panel has opened its own help; true asks the dialog for help of the dialog's.
    virtual bool shouldShowHelp() = 0;
};

} // namespace pdekit

Q_DECLARE_INTERFACE(pdekit::PrintDialogPanel, "org.corvel.pdekit.PrintDialogPanel/2")
