// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Bundle.h"
#include "ChildProcess.h"
#include "ChoiceReceiver.h"
#include "InputStream.h"
#include "KeyValueObject.h"
#include "PendingWaits.h"
#include "PrintDialogPanel.h"

#include <QtCore/QHash>
#include <QtCore/QPointer>

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>

struct ppd_file_s;
struct veltaTaskContext_s;

namespace pdekit {
class PrintDialogCallback;
class RadioMatrix;
} // namespace pdekit

/// The base of the plug-in's panels: the shared parts of the dialog's protocol, of the path from a control to
/// a recorded choice and back, and of the access to the print system. A concrete panel only overrides hooks.
///
/// A panel works in one of two modes, fixed at construction. Constraint-handling mode: the dialog owns the
/// PPD, marks choices in it and rules on each; the panel reads the marks and never writes the print settings.
/// Print-settings mode: the panel takes the PPD from the print session and keeps its choices in the print
/// settings itself.
///
/// Controls are found by tag: option controls 1, 2, 3, ...; the partner that shows the same value as control
/// N at N ^ 80; the defaults button 16; the enabler check box 32. A null control is allowed: it does nothing
/// and has no choice. Members without arguments can be called by name (QMetaObject). Main thread only.
class RKTPPRBasePDEcorvel : public pdekit::KeyValueObject,
                            public pdekit::PrintDialogPanel,
                            public pdekit::ChoiceReceiver
{
    Q_OBJECT
    Q_INTERFACES(pdekit::PrintDialogPanel pdekit::ChoiceReceiver)

public:
    static constexpr int defaultsTag = 16;
    static constexpr int enablerTag = 32;
    static constexpr int partnerBits = 80;

    /// A choice or a key that may be missing.
    using Text = std::optional<QString>;

    RKTPPRBasePDEcorvel() = default;
    ~RKTPPRBasePDEcorvel() override;
    Q_DISABLE_COPY_MOVE(RKTPPRBasePDEcorvel)

    /// Makes a panel of the class for the dialog's callback object; null when the printer has no PPD.
    template <class Panel>
    static std::unique_ptr<Panel> make(const std::shared_ptr<QObject> &callback)
    {
        auto panel = std::make_unique<Panel>();
        if (!panel->initWithCallback(callback))
            panel.reset();
        return panel;
    }

    /// Called once, right after construction. False: there is no PPD, and the panel cannot be used.
    virtual bool initWithCallback(const std::shared_ptr<QObject> &callback);

    // Print settings and PPD.
    /// The bytes of the printer's PPD file, without a terminating NUL.
    Q_INVOKABLE virtual std::optional<QByteArray> ppdDataCopy();
    /// "usb://" while the printer's own URI is unknown.
    Q_INVOKABLE virtual QString printerDeviceURI();

    // Hooks and operations on a loaded view.
    virtual Text ppdOptionKeyForTag(int tag) const;
    virtual void enableTextFieldsForEditingInView(QWidget *view);
    /// True when the view's own title or text was replaced.
    virtual bool localizeStringsInViewAndSubviewsResizeTofit(QWidget *view, bool subviews, bool resize);
    virtual void setChoiceForKey(const Text &choice, const Text &key);
    virtual Text ppdChoiceForTag(int cellTag) const;

    // From a control to a recorded choice.
    virtual Text newChoiceForSender(QWidget *sender);
    virtual void setToolTipFromSender(const QString &toolTip, QWidget *sender);
    virtual bool validateChoiceForPPDOptionKeyFromSender(const QString &choice, const QString &key,
                                                         QWidget *sender);
    virtual void rejectChoiceForPPDOptionKeyFromSender(const Text &choice, const Text &key, QWidget *sender);
    virtual QString displayStringForValueForPPDOptionKey(const QString &value, const QString &key) const;
    /// True when a choice and a key were given and the print system did not refuse. A typed number that is
    /// out of range is reverted, and the result is still true.
    bool markChoiceForPPDOptionKeyFromSender(const Text &choice, const Text &key, QWidget *sender) override;

    // From the recorded choices to the controls.
    /// The tag of the radio cell for the choice; 0 when there is none.
    virtual int tagForStringValue(const Text &value) const;
    Q_INVOKABLE bool shouldShowHelp() override;
    /// Non-zero enables the option controls.
    virtual int enablerState(QWidget *enabler) const;
    virtual void setControlsEnabledByToggle(QWidget *enabler);
    virtual void updateControlWithValue(QWidget *control, const Text &value);
    Q_INVOKABLE virtual void updateUI();
    Q_INVOKABLE virtual void setDefaults();

    // Actions.
    /// The hook for an immediate printer command; does nothing.
    Q_INVOKABLE virtual void sendPrinterCommand(QObject *sender);
    /// The action of every control of a printer setting.
    Q_INVOKABLE virtual void changePrinterSetting(QObject *sender);
    /// The user has left the text field `object`.
    virtual void controlTextDidEndEditing(QWidget *object);
    /// The user has changed the text of the field `object`.
    virtual void controlTextDidChange(QWidget *object);

    // The backend runner.
    /// Interrupts the backend every millisecond until it ends, and releases it. A backend that ignores
    /// interrupts would block the dialog forever, so after 5 seconds it is killed, which is logged to the
    /// system log.
    Q_INVOKABLE virtual void killCurrentTask();
    virtual void bytesAvailableForStreamIN(pdekit::InputStream *stream);
    virtual void streamINHandleEvent(pdekit::InputStream *stream, quintptr event);
    /// Waits, within limits, for the command's completion while the event loop runs.
    virtual void streamERRHandleEvent(pdekit::InputStream *stream, quintptr event);
    /// The streams' delegate: dispatches to the two above.
    virtual void streamHandleEvent(pdekit::InputStream *stream, quintptr event);
    /// Starts the backend "velta" with the arguments, and writes the record's command to it. 0: done, or no
    /// pipe could be created; 1: refused (no arguments, no executable backend); -1: another run is in
    /// progress. Throws PlatformException when the backend cannot be launched. `context` is required.
    virtual std::int32_t performTaskwithVeltaWithArgsAndContext(const std::optional<QStringList> &arguments,
                                                                veltaTaskContext_s *context);
    /// The same in utility mode, for the printer's device URI.
    virtual std::int32_t performUtilityTaskWithVeltaTaskContext(veltaTaskContext_s *context);

    // The form's bindings.
    std::optional<QString> valueOfBoundControl(QWidget *control) override;
    void showValueInBoundControl(QWidget *control, const QString &value) override;

    // The dialog's protocol.
    Q_INVOKABLE void willShow() override;
    Q_INVOKABLE bool shouldHide() override;
    bool saveValuesAndReturnError(QString *error) override;
    bool restoreValuesAndReturnError(QString *error) override;
    Q_INVOKABLE QStringList supportedPPDOptionKeys() override;
    void PPDOptionKeyValueDidChangePpdChoice(const Text &key, const Text &choice) override;
    /// The name of the form in the plug-in's bundle.
    Q_INVOKABLE virtual Text nibName();
    Q_INVOKABLE QWidget *panelView() override;
    Q_INVOKABLE Text panelName() override;
    Q_INVOKABLE Text panelKind() const override;
    Q_INVOKABLE std::optional<Summary> summaryInfo() override;

    // The path to the print settings of a dialog without constraint handling.
    /// The print session's PPD record, owned by the session; null when it is not available.
    Q_INVOKABLE virtual ppd_file_s *getPPDOnTiger();
    /// True writes the recorded choices to the print settings, false reads them from there.
    virtual void usePPDSettingsFromPrintSettingsOnTiger(bool write);
    Q_INVOKABLE virtual void getPPDSettingsFromPrintSettingsOnTiger();
    Q_INVOKABLE virtual void writePPDSettingsToPrintSettingsOnTiger();

protected:
    /// `tag`, or the tag of the option control that it is the partner of.
    static int foldedTag(int tag) { return (tag & partnerBits) != 0 ? tag ^ partnerBits : tag; }

    /// The keyword of the choice marked in the PPD.
    Text markedChoice(const QString &key) const;
    Text recordedChoice(const Text &key) const;
    /// The recorded choice, or else the marked one.
    Text presentChoice(const QString &key) const;
    /// Whether the present choice is "True".
    bool isOn(const QString &key) const;
    /// The recorded choice as a number, limited to the range. What is recorded while a number is typed, such
    /// as "-", may not be one: then the marked choice counts, and 0 when that is not a number either.
    double presentNumber(const QString &key, double least, double greatest) const;
    /// The choice of a radio group's selected cell, or that for the tag of any other control.
    Text cellChoice(QWidget *sender) const;
    /// Selects the cell for the choice.
    void selectCell(pdekit::RadioMatrix *matrix, const Text &value);

    /// One pass of a wait: runs the event loop until an event of one of the backend's streams, or for a
    /// second. False when there is no stream.
    virtual bool runEventLoopOnce();
    /// Sends the backend SIGINT, if it runs.
    virtual void interruptBackend();

    /// How long killCurrentTask interrupts the backend.
    std::chrono::milliseconds longestKill_{5000};

    std::shared_ptr<QObject> pdePluginCallbackObject_; ///< the dialog's
    Text thePDEName_;                                  ///< filled by the concrete panel's panelName
    std::optional<pdekit::Bundle> pdeBundle_;          ///< holds the concrete panel's class
    std::optional<QHash<QString, QString>> choiceDict_;
    std::optional<QStringList> supportedPPDOptionKeys_;
    bool useConstraintHandling_ = false;
    bool waitForCommandCompletion_ = false; ///< from a launch to the first end of one of its streams
    Text deviceURI_;
    ppd_file_s *ppd_ = nullptr;                      ///< borrowed from the dialog or the session
    std::unique_ptr<pdekit::ChildProcess> task_;     ///< the backend of the current or the last run
    std::unique_ptr<pdekit::InputStream> streamIN_;  ///< the backend's standard output, until its end
    std::unique_ptr<pdekit::InputStream> streamERR_; ///< the backend's standard error, until its end
    QPointer<QWidget> PDEView_;

private:
    pdekit::PrintDialogCallback *callback() const;
    void completeCommand();
    void waitForCompletion();
    void takeDownBackend();
    bool offerToPrintSystem(const QString &choice, const QString &key, QWidget *sender);

    PendingWaits pendingWaits_;
    bool isDrivingWaits_ = false; ///< a handler further up the stack drives the pending waits
    std::uint64_t streamEvents_ = 0;
};
