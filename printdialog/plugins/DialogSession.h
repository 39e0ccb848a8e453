// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ChosenOptions.h"
#include "CustomChoice.h"
#include "IppAttributes.h"
#include "OptionSource.h"
#include "PictureAdjustment.h"
#include "PluginLoader.h"
#include "PrintDialogPlugin.h"
#include "PrinterDescription.h"
#include "SessionPrinter.h"

#include <QtCore/QHash>
#include <QtCore/QMap>
#include <QtCore/QObject>
#include <QtCore/QSet>

#include <array>

namespace printdialog {

class GuardedPanel;
class IppOptions;
class JoinedOptions;
class OptionPage;
class PpdDocument;
using GuardedPanels = std::vector<std::unique_ptr<GuardedPanel>>;

/// A session's options, and what they come from: plug-ins need the PPD, and jobs the attributes.
struct SessionOptions
{
    std::unique_ptr<OptionSource> source;
    PpdDocument *ppd = nullptr;    ///< owned by, or the same as, the source
    IppAttributes attributes = {}; ///< the queue's; empty while they are not known
    IppOptions *ipp = nullptr;     ///< like the PPD
};

/// The options sent with a job.
struct JobOptions
{
    /// Option keyword to choice keyword, both the printer's; options of the job as JobTemplate::sent() spells
    /// them.
    QMap<QString, QString> options;
    /// Custom choices with secret values, such as a PIN, which are only sent: never stored, shown or logged.
    QMap<QString, QString> secrets;
    QStringList dropped; ///< a sentence for each recorded choice that the printer does not have
    /// a sentence for each page that has not handed over its choices, which `options` then lacks
    QStringList missing;
};

/// One opened printer: its options, its panels, and the choices for the next job. To the panels, it is the
/// print system. Main thread only.
class DialogSession : public QObject
{
    Q_OBJECT

public:
    DialogSession(const PrinterDescription &printer, SessionOptions options, PanelMode mode);
    ~DialogSession() override;

    const PrinterDescription &printer() const { return printer_; }
    const OptionSource &options() const { return *options_.source; }
    /// Null for a printer without one.
    const PpdDocument *ppd() const { return options_.ppd; }
    const IppAttributes &attributes() const { return options_.attributes; }
    /// Null for a printer that does not describe itself by its attributes.
    const IppOptions *ipp() const { return options_.ipp; }
    /// Call when they are known after the session was opened. The job's options get what is supported now;
    /// choices stay as far as they still exist, and no change of a choice is signalled.
    void setAttributes(const IppAttributes &attributes);
    /// The options of the job, whatever the printer (see JobTemplate); the others are the printer's.
    const QStringList &jobOptionKeys() const;
    PanelMode mode() const { return mode_; }

    /// Loads the panels that the PPD requests, and restores them; then the dialog's own pages for the options
    /// that none of them shows, if there are any. The session can print without them. Returns nothing on
    /// success or when the PPD requests none.
    std::optional<Failure<PluginFault>> loadPanels();
    const GuardedPanels &panels() const { return panels_; }
    /// The panel that shows the option; null when none does.
    GuardedPanel *panelFor(const QString &key) const;
    /// Whether it is a page of the dialog itself.
    bool isOwnPage(const GuardedPanel &panel) const;
    /// Call when a panel's view was made and shown: it may then know better which options it does not show.
    void noteShown(GuardedPanel &panel);
    /// A sentence for each panel that could not read the job's choices.
    QStringList restoreFailures() const;

    /// Makes a choice as the user would: through the panel that shows the option, or else directly. Secret
    /// values in a custom choice are kept apart from the choices.
    /// `choice` may be any text that stands for one of the option's choices, also as JobTemplate::sent()
    /// spells it. A refused choice changes nothing.
    Ruling choose(const QString &key, const QString &choice);

    /// How options are treated that a set of saved choices does not name.
    enum class Unnamed {
        Kept,    ///< they stay as they are
        Default, ///< they get the PPD's default, as when CUPS prints with the set
    };

    /// Makes saved choices, as far as the printer still has them and allows them together. Returns a ruling
    /// for each one left out. Options of the job that are not known yet are left out without one. The panels
    /// show the choices.
    QList<Ruling> restoreChoices(const QMap<QString, QString> &choices, Unnamed unnamed = Unnamed::Kept);

    /// Makes choices together even if they conflict, through the panels that support them; the panels show
    /// them. For a set that was in force before or is known to be allowed.
    void chooseTogether(const QMap<QString, QString> &choices);

    /// Makes the panels' controls show choices that were made elsewhere.
    void refreshPanels();
    /// Call when the user has left a text field of a panel. The beginning of a number is accepted while it is
    /// typed but not marked. If the field was left like that, the panel shows the marked choice again.
    void finishTyping();

    /// Call when the user has acted on a control of the panel. In settings mode, saves the panel and adopts
    /// its choices.
    void adoptChoices(GuardedPanel &panel);

    /// The choices, with a signal for each change.
    const ChosenOptions &chosen() const { return chosen_; }
    /// The job's choice of an option: the recorded one, or else the one marked in the PPD.
    std::optional<QString> chosen(const QString &key) const { return chosen_.choice(key); }

    /// The panels' entries, label and text, ordered by panel and then by the panel's options.
    QList<QPair<QString, QString>> summary();

    /// What the panels' choices do to the picture; nothing when no panel says.
    std::optional<PictureAdjustment> adjustment();
    /// The print's resolution, in dots to the inch.
    double dotsPerInch() const;
    /// The ICC profile of the paper that the printer names for the chosen options; empty when there is none.
    QByteArray paperProfile() const;

    /// Ends any typing, saves the panels, and checks against the PPD: the choice of every option that a panel
    /// supports, the page size, and all others that were chosen. Fails when choices conflict, or when the PPD
    /// does not have the page size. A recorded choice that the printer does not have is dropped; its
    /// replacement is recorded, and the panels show it.
    Result<JobOptions, Verdict> jobOptions();
    /// Why jobOptions() failed the last time. Its key is the latest chosen of the options that conflict.
    const Ruling &jobRefusal() const { return jobRefusal_; }

Q_SIGNALS:
    /// A page was added to panels(), at that index.
    void pageAdded(qsizetype index);
    /// jobOptionKeys() may be others now, or have other choices.
    void jobOptionsChanged();
    /// A panel has been lost, or could not read the job's choices: a sentence for people. May be emitted
    /// during any call of the session and during an event of the panel.
    void panelFailed(const QString &sentence);

private:
    /// A page of the dialog itself; null before it has an option.
    struct OwnPage
    {
        OptionPage *page = nullptr;
        GuardedPanel *panel = nullptr; ///< the same page
    };

    std::optional<Failure<PluginFault>> loadPluginPanels();
    GuardedPanel *addPanel(pdekit::PanelPointer made, qsizetype index);
    void updateOwnPages();
    void updateOwnPage(OwnPage &own, const QStringList &keys);
    QStringList keysForOwnPages() const;
    QList<GuardedPanel *> panelsWith(const QString &key) const;

    bool rule(const QString &key, const QString &choice, const GuardedPanel *asker);
    void savePanels();
    QList<GuardedPanel *> reportChanges(const QString &askedKey, const GuardedPanel *asker);
    Ruling keepSecret(const QString &key, const QString &choice);
    static void restore(const QList<GuardedPanel *> &panels);
    Ruling chooseOne(const QString &key, const QString &choice);
    QMap<QString, QString> spelledHere(const QMap<QString, QString> &choices) const;
    Ruling chooseThroughPanel(GuardedPanel &panel, const Ruling &offered);
    Ruling chooseDirectly(const Ruling &offered);
    QStringList jobKeys() const;
    void showReplaced(const QList<Ruling> &replaced);

    PrinterDescription printer_;
    SessionOptions options_;
    JoinedOptions &joined_; ///< is options_.source
    PanelMode mode_;
    ChosenOptions chosen_;
    SessionPrinter sessionPrinter_;
    pdekit::HostInfo callback_;
    std::optional<pdekit::Bundle> bundle_; ///< the panels' bundle
    GuardedPanels panels_; ///< after the members that panels refer to, so that panels are destroyed first
    QHash<QString, GuardedPanel *> panelOf_; ///< the plug-in's panel, by option
    std::array<OwnPage, 2> ownPages_;        ///< for the options of the printer, and of the job
    QHash<QString, CustomValues> secrets_;   ///< by option
    Ruling lastRuling_;
    Ruling jobRefusal_;
    QSet<QString> loggedProblems_;     ///< of the panels' adjustments
    QStringList changedKeys_;          ///< options whose panels are not notified yet
    QStringList begunKeys_;            ///< options whose number is incomplete and not marked
    mutable QString paperProfileName_; ///< of the file that was read last
    mutable QByteArray paperProfile_;
};

} // namespace printdialog
