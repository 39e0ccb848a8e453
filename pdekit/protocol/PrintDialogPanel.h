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
/// 3. `panelView` when the page is first to be seen, and `willShow` then, once. A run without a window asks
///    for neither.
/// 4. From then on, any number of times: `summaryInfo`; `shouldShowHelp`; `shouldHide` before another page
///    or another printer takes the page's place, before it prints, and before the window closes; in a dialog
///    without ConstraintHandling, `saveValuesAndReturnError` after each act of the user's.
/// 5. When choices come from elsewhere (undo, a preset, another option): `saveValuesAndReturnError` first if
///    there are several, `PPDOptionKeyValueDidChangePpdChoice` for each, `restoreValuesAndReturnError`.
/// 6. For a job, or a preset to be saved: `saveValuesAndReturnError`, then `summaryInfo`.
///
/// A panel that throws anything, in these calls or in an action of its form, is called no more: its page is
/// closed, and the user is told with the exception's what(). Its choices are missing then, which Print says.
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

    /// Takes over the job's current choices. False: it cannot, and `error` (which may be null) gets the
    /// reason, a clause for people such as "the disk is full".
    virtual bool restoreValuesAndReturnError(QString *error) = 0;
    /// Puts the panel's choices into the job's print settings. False as above: the user is asked whether to
    /// print without them.
    virtual bool saveValuesAndReturnError(QString *error) = 0;

    virtual void willShow() = 0;
    /// False keeps the panel on the screen. The panel itself says what has to be done first. The user can
    /// close the window all the same.
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
