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
/// calls it on the main thread, in this order:
///
/// 1. `panelName`, `panelKind`, `supportedPPDOptionKeys`, once each. The answers hold as long as the panel.
/// 2. `restoreValuesAndReturnError`: the job's choices, before anything is asked about them. Choices kept
///    from an earlier time follow by 5, those of the command line by ChoiceReceiver where the panel is one.
/// 3. `panelView` when the page is first shown, followed by `willShow`, once. A run without a window calls
///    neither.
/// 4. From then on, any number of times: `summaryInfo`; `shouldShowHelp`; `shouldHide` before another page
///    or another printer takes the page's place, before it prints, and before the window closes; in a dialog
///    without ConstraintHandling, `saveValuesAndReturnError` after each act of the user's.
/// 5. When choices come from elsewhere (undo, a preset, another option): `saveValuesAndReturnError` first if
///    there are several, `PPDOptionKeyValueDidChangePpdChoice` for each, `restoreValuesAndReturnError`.
/// 6. For a job, or a preset to be saved: `saveValuesAndReturnError`, then `summaryInfo`.
///
/// A panel that throws, in these calls or in an action of its form, is not called again. Its page is closed,
/// and the user sees the exception's what(). Its choices are then missing, which Print reports.
class PrintDialogPanel
{
public:
    /// Localized name of an option to localized text of its choice.
    using Summary = QMap<QString, QString>;

    virtual ~PrintDialogPanel() = default;

    /// The name shown to the user, localized.
    virtual std::optional<QString> panelName() = 0;
    /// A reverse-DNS name that identifies the panel uniquely.
    virtual std::optional<QString> panelKind() const = 0;
    /// The panel's view, made on the first call; null when it has none or it cannot be loaded. It is deleted
    /// with the panel, or with the parent that the dialog gives it, whichever comes first.
    virtual QWidget *panelView() = 0;

    /// Adopts the job's current choices. False: it failed, and `error` (which may be null) receives the
    /// reason, a clause for people such as "the disk is full".
    virtual bool restoreValuesAndReturnError(QString *error) = 0;
    /// Writes the panel's choices to the job's print settings. False: as above, and the user is asked whether
    /// to print without them.
    virtual bool saveValuesAndReturnError(QString *error) = 0;

    virtual void willShow() = 0;
    /// False keeps the panel on the screen; the panel itself says what has to be done first. The user can
    /// still close the window.
    virtual bool shouldHide() = 0;

    /// The panel's entries for the dialog's summary of the job.
    virtual std::optional<Summary> summaryInfo() = 0;
    /// The keywords of the PPD options that the panel handles, in its own order.
    virtual QStringList supportedPPDOptionKeys() = 0;
    /// Notifies the panel that the dialog has changed the choice of an option.
    virtual void PPDOptionKeyValueDidChangePpdChoice(const std::optional<QString> &key,
                                                     const std::optional<QString> &choice) = 0;

    /// False when the panel has opened its own help; true asks the dialog to show the dialog's help.
    virtual bool shouldShowHelp() = 0;
};

} // namespace pdekit

Q_DECLARE_INTERFACE(pdekit::PrintDialogPanel, "org.corvel.pdekit.PrintDialogPanel/2")
