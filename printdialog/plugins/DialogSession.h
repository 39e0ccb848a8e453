// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ChoiceMarker.h"
#include "PluginLoader.h"
#include "PpdDocument.h"
#include "PrintDialogPlugin.h"
#include "PrinterDescription.h"
#include "SessionPrinter.h"
#include "SessionTicket.h"

#include <QtCore/QMap>
#include <QtCore/QObject>

namespace printdialog {

/// What is sent with a job.
struct JobOptions
{
    QMap<QString, QString> options; ///< option keyword to choice keyword, each one the PPD's
    QStringList dropped;            ///< a sentence for each recorded choice that is none of the PPD's
};

/// One opened printer: its PPD, its panels, and the choices made for the next job. The print system that the
/// panels talk to. Main thread only.
class DialogSession : public QObject
{
    Q_OBJECT

public:
    DialogSession(const PrinterDescription &printer, PpdDocument ppd, PanelMode mode);
    ~DialogSession() override;

    const PrinterDescription &printer() const { return printer_; }
    const PpdDocument &ppd() const { return ppd_; }
    PanelMode mode() const { return mode_; }

    /// Loads the panels that the PPD asks for, and restores them. Without them the session prints all the
    /// same. Nothing when the PPD asks for none or all went well.
    std::optional<Failure<PluginFault>> loadPanels();
    const pdekit::PanelList &panels() const { return panels_; }

    /// Makes a choice as the user would: through the panel that supports the option, else with the print
    /// system itself. `choice` may be any text that stands for one of the option's choices. A choice that is
    /// refused leaves everything as it was.
    Ruling choose(const QString &key, const QString &choice);

    /// What becomes of options that a set of kept choices does not name.
    enum class Unnamed {
        Kept,    ///< they stay as they are
        Default, ///< they take the PPD's default: how CUPS prints with the set
    };

    /// Makes choices that were kept from an earlier time: those that the PPD still has and allows together.
    /// Answers a ruling for each that is left out. The panels show them.
    QList<Ruling> restoreChoices(const QMap<QString, QString> &choices, Unnamed unnamed = Unnamed::Kept);

    /// Makes choices of the PPD together, whatever stands between them, through the panels that support them;
    /// the panels show them. For a set that was there before, or that is known to be allowed.
    void chooseTogether(const QMap<QString, QString> &choices);

    /// Lets the panels' controls show choices that did not come from them.
    void refreshPanels();
    /// The user has left a field of a panel. Where its text was only the beginning of a number, the print
    /// system has let it through without marking it, and the panel shows another choice than the job's: it
    /// shows the marked one again.
    void finishTyping();

    /// The present choice of every option of the PPD that has one.
    QMap<QString, QString> choices();

    /// The changes of other options that would allow a choice that was refused, or settle what makes
    /// jobOptions() fail; nothing when there is no way. See ChoiceMarker::changesThatAllow.
    QList<OptionChoice> changesThatAllow(const Ruling &refusal) const;

    /// The job's choice of an option: what is recorded for it, else what is marked in the PPD.
    std::optional<QString> chosen(const QString &key) const;

    /// The panels' entries, label and text: by panel, and each panel's in the order of its options.
    QList<QPair<QString, QString>> summary();

    /// Ends what is being typed, saves the panels, and checks what they and the user have chosen against the
    /// PPD: the choice of every option that a panel supports, the page size, and whatever else was chosen.
    /// Fails when choices stand in each other's way, or the page size is none of the PPD's. A recorded choice
    /// that is none of the PPD's is dropped; what is printed instead is recorded, and the panels show it.
    Result<JobOptions, Verdict> jobOptions();
    /// What made jobOptions() fail the last time. Its key is the option that was chosen last of those that
    /// stand in each other's way.
    const Ruling &jobRefusal() const { return jobRefusal_; }
    /// The user has chosen an option. Only the dialog sees this when the panels keep their choices
    /// themselves.
    void noteChosen(const QString &key);

Q_SIGNALS:
    /// The print system has refused a choice of the user's.
    void choiceRefused(const printdialog::Ruling &ruling);
    /// A choice of the option has been made.
    void choiceMade(const QString &key);

private:
    bool rule(const QString &key, const QString &choice);
    Ruling mark(const QString &key, const QString &choice);
    void announceChangedMarks(const QString &askedKey);
    Ruling chooseThroughPanel(pdekit::PrintDialogPanel &panel, const Ruling &offered);
    Ruling chooseDirectly(const Ruling &offered);
    pdekit::PrintDialogPanel *panelFor(const QString &key) const;
    QStringList jobKeys() const;
    void replaceDropped(const QList<Ruling> &dropped);

    PrinterDescription printer_;
    PpdDocument ppd_;
    PanelMode mode_;
    ChoiceMarker marker_;
    SessionTicket ticket_;
    SessionPrinter sessionPrinter_;
    pdekit::HostInfo callback_;
    std::optional<pdekit::Bundle> bundle_; ///< of the panels
    pdekit::PanelList panels_;             ///< after what they are made from, so that they go first
    QStringList directKeys_;               ///< options chosen that no panel supports
    QStringList chosenKeys_;               ///< the last one first
    QMap<QString, QString> together_;      ///< being made together, so not weighed one by one
    Ruling lastRuling_;
    Ruling jobRefusal_;
    QHash<QString, QString> knownMarks_; ///< what the panels know to be marked
    QStringList begunKeys_;              ///< options whose number was begun and is not marked
};

} // namespace printdialog
