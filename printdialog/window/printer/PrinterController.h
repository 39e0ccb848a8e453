// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "DialogSession.h"
#include "PrinterSelection.h"
#include "Queue.h"
#include "SessionOpening.h"

#include <QtCore/QMap>
#include <QtCore/QObject>

#include <memory>
#include <optional>

namespace printdialog {

class OptionsFetcher;
class PrinterChooser;
struct FetchedOptions;
struct RememberedQueue;

/// Opens the printer that is chosen: asks for its PPD, makes its session, and remembers it for the next time.
/// PrinterChooser lists the printers, and PrinterSelection says which of them is shown.
class PrinterController : public QObject
{
    Q_OBJECT

public:
    struct Request
    {
        std::optional<Destination> printer; ///< see PrintDialogSetup
        std::optional<QString> ppdFile;
        PanelMode mode = PanelMode::Constraint;
        bool remembers = true;
    };

    /// Reads which printer was used last, and asks the print server for the PPD of the one that is asked for:
    /// it answers while the window is being made.
    explicit PrinterController(const Request &request);
    ~PrinterController() override;

    /// Opens the first printer. The chooser must outlive this object.
    void start(PrinterChooser *chooser);
    /// Starts to look for the print server's queues.
    void search();

    /// The printer that is shown. Its id is empty while the one asked for is being looked for.
    const Queue &queue() const { return queue_; }
    /// Null while there is none.
    DialogSession *session() const { return session_.get(); }
    /// Why it cannot be printed on; empty when it can.
    QString whyNotReady() const { return whyNotReady_; }
    /// Whether the user has chosen the printer in this window. What the window was opened with does not hold
    /// for it then.
    bool wasChosenHere() const;
    /// Whether the options shown are those of an earlier run; the printer's attributes may still come.
    bool hasOldOptions() const;
    /// The preset with which the built-in printer was asked for; mostly empty.
    QString builtInPreset() const { return wasChosenHere() ? QString() : builtInPreset_; }

    /// The printer is being printed on.
    void notePrinted();
    /// The print server has other options of the printer than those shown: asks for them.
    void renewOptions(const Destination &destination, const QString &reason);

Q_SIGNALS:
    /// Another printer is shown, without its session yet.
    void printerChanged();
    /// The options of the printer are awaited.
    void optionsAwaited();
    /// The print server has news of the printer that is shown, see queue().
    void queueUpdated();
    /// The printer of an earlier time is shown, before the print server has confirmed it.
    void unconfirmedShown();
    /// The session is about to be deleted.
    void sessionClosing();
    /// There is another session, whose panels are not loaded yet.
    void sessionOpened();
    /// The printer's options have changed: these choices were made from those before, without its defaults.
    /// @param hadAttributes whether the job's options were among those before
    void sessionReplaced(const QMap<QString, QString> &choices, bool hadAttributes);
    /// The session shown does not have these attributes of the printer yet.
    void attributesArrived(const printdialog::IppAttributes &attributes);
    /// The print server has confirmed the printer. @param doubt what whyNotReady() was
    void confirmed(const QString &doubt);
    /// The printer cannot be used: whyNotReady().
    void unusable();
    /// whyNotReady() has changed.
    void readinessChanged();
    /// A sentence about the search; the printer that is shown can be used.
    void warned(const QString &text);

private:
    void openFirst();
    void open(const Queue &queue);
    void openRemembered(const RememberedQueue &remembered);
    void updateQueue(const Queue &queue);
    void reportSearchFailure(const QString &text);
    void makeUnusable(const QString &reason);
    void awaitOptions(const QString &id);
    void remember();

    void fetchOptions(const std::optional<CheckedPpd> &known = std::nullopt);
    void useOptions(const FetchedOptions &options);
    void use(SessionResult session);
    void confirm(const IppAttributes &attributes);
    void setSession(std::unique_ptr<DialogSession> session);
    void replaceSession(SessionResult session);
    void closeSession(const QString &reason);

    Request request_;
    QString builtInPreset_;
    std::unique_ptr<RememberedQueue> remembered_; ///< to begin with
    OptionsFetcher *fetcher_;
    PrinterChooser *chooser_ = nullptr;
    Queue queue_;
    QString whyNotReady_;
    std::unique_ptr<DialogSession> session_;
};

} // namespace printdialog
