// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ChosenOptions.h"
#include "PluginLoader.h"
#include "PpdDocument.h"
#include "PrintDialogPlugin.h"
#include "PrinterDescription.h"
#include "SessionPrinter.h"

#include <QtCore/QHash>
#include <QtCore/QMap>
#include <QtCore/QObject>

namespace printdialog {

class GuardedPanel;
using GuardedPanels = std::vector<std::unique_ptr<GuardedPanel>>;

/// What is sent with a job.
struct JobOptions
{
    QMap<QString, QString> options; ///< option keyword to choice keyword, each one the PPD's
    QStringList dropped;            ///< a sentence for each recorded choice that is none of the PPD's
    QStringList missing; ///< a sentence for each page that has not handed over its choices, which are not
                         ///< among the options then
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
    const GuardedPanels &panels() const { return panels_; }
    /// A sentence for each panel that could not read the job's choices.
    QStringList restoreFailures() const;

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

    /// The user has acted on a control of the panel: where panels keep their choices themselves, they are
    /// taken note of.
    void adoptChoices(GuardedPanel &panel);

    /// What is chosen, with notices of each change.
    const ChosenOptions &chosen() const { return chosen_; }
    /// The job's choice of an option: what is recorded for it, else what is marked in the PPD.
    std::optional<QString> chosen(const QString &key) const { return chosen_.choice(key); }

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

Q_SIGNALS:
    /// A panel has been lost, or could not read the job's choices: a sentence for people. It may come in the
    /// middle of any call of the session, and of an event of the panel's.
    void panelFailed(const QString &sentence);

private:
    bool rule(const QString &key, const QString &choice);
    void savePanels();
    QList<GuardedPanel *> tellPanels(const QString &askedKey);
    static void restore(const QList<GuardedPanel *> &panels);
    Ruling chooseThroughPanel(GuardedPanel &panel, const Ruling &offered);
    Ruling chooseDirectly(const Ruling &offered);
    GuardedPanel *panelFor(const QString &key) const;
    QStringList jobKeys() const;
    void showReplaced(const QList<Ruling> &replaced);

    PrinterDescription printer_;
    PpdDocument ppd_;
    PanelMode mode_;
    ChosenOptions chosen_;
    SessionPrinter sessionPrinter_;
    pdekit::HostInfo callback_;
    std::optional<pdekit::Bundle> bundle_;   ///< of the panels
    GuardedPanels panels_;                   ///< after what they are made from, so that they go first
    QHash<QString, GuardedPanel *> panelOf_; ///< by option
    Ruling lastRuling_;
    Ruling jobRefusal_;
    QStringList changedKeys_; ///< options whose panels have not been told yet
    QStringList begunKeys_;   ///< options whose number was begun and is not marked
};

} // namespace printdialog
