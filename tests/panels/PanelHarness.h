// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Bundle.h"
#include "ControlValues.h"
#include "PrintDialogCallback.h"
#include "PrintSession.h"
#include "Printer.h"
#include "RKTPPRBasePDEcorvel.h"
#include "RecordingFeedback.h"
#include "Rows.h"
#include "ViewTags.h"

#include <QtWidgets/QDialog>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSlider>

/// Makes what a panel keeps to itself visible to a test, and notes in which order its actions come.
template <class Panel>
class Opened : public Panel
{
public:
    using Panel::choiceDict_;
    using Panel::pdeBundle_;
    using Panel::PDEView_;
    using Panel::useConstraintHandling_;

    QString recorded(const QString &key) const { return this->recordedChoice(key).value_or(QString()); }
    void changePrinterSetting(QObject *sender) override
    {
        events << QStringLiteral("change");
        Panel::changePrinterSetting(sender);
    }
    void controlTextDidEndEditing(QWidget *field) override
    {
        events << QStringLiteral("end");
        Panel::controlTextDidEndEditing(field);
    }

    QStringList events;
};

class FakeTicket : public pdekit::PrintTicket
{
public:
    pdekit::Status PMTicketGetPPDDict(int firstNode, int secondNode,
                                      pdekit::PPDDictionary **dictionary) override
    {
        if (firstNode != 0 || secondNode != 0)
            return -50;
        *dictionary = hasDictionary ? &options : nullptr; // even when the status is an error
        return status;
    }

    pdekit::PPDDictionary options;
    pdekit::Status status = pdekit::noErr;
    bool hasDictionary = true;
};

class FakeSession : public pdekit::PrintSession
{
public:
    pdekit::Status GetPPDRefFromSession(ppd_file_s **place) override
    {
        *place = ppd; // even when the status is an error
        return ppdStatus;
    }
    pdekit::Status PMSessionGetTicketFromSession(const QString &type, pdekit::PrintTicket **place) override
    {
        if (type != QLatin1String("PMPrintSettingsTicket"))
            return -50;
        *place = &ticket;
        return ticketStatus;
    }

    FakeTicket ticket;
    ppd_file_s *ppd = nullptr;
    pdekit::Status ppdStatus = pdekit::noErr;
    pdekit::Status ticketStatus = pdekit::noErr;
};

class FakePrinter : public pdekit::Printer
{
public:
    std::optional<QUrl> PMPrinterCopyDescriptionURL(const QString &type) override
    {
        return type == QLatin1String("PMPPDDescriptionType") ? description : std::nullopt;
    }
    std::optional<QByteArray> PMCopyPPDData(const QUrl &url) override
    {
        return url == description ? data : std::nullopt;
    }
    std::optional<pdekit::URLReference> PMPrinterCopyDeviceURI() override { return deviceUri; }

    std::optional<QUrl> description;
    std::optional<QByteArray> data;
    std::optional<pdekit::URLReference> deviceUri;
};

/// A dialog that leaves the choices to the print settings.
class SettingsCallback : public QObject, public pdekit::PrintDialogCallback
{
    Q_OBJECT
    Q_INTERFACES(pdekit::PrintDialogCallback)

public:
    pdekit::PrintSession *printSession() override { return session; }
    pdekit::Printer *PMPrinter() override { return printer; }
    ppd_file_s *ppdFile() override { return ppd; }

    pdekit::PrintSession *session = nullptr;
    pdekit::Printer *printer = nullptr;
    ppd_file_s *ppd = nullptr;
};

/// A dialog that owns the PPD: it marks what it allows, and refuses the options that the test names.
class ConstraintCallback : public SettingsCallback, public pdekit::ConstraintHandling
{
    Q_OBJECT
    Q_INTERFACES(pdekit::ConstraintHandling)

public:
    bool willChangePPDOptionKeyValuePpdChoice(const QString &key, const QString &choice) override;

    QStringList refused; ///< option keywords
    QStringList offers;  ///< "key=choice"
};

/// A bundle in the folder, of which nothing is there but its Info.json.
std::optional<pdekit::Bundle> emptyBundle(const QString &folder, const QByteArray &identifier);

enum class Mode { Constraint, Settings };
Q_DECLARE_METATYPE(Mode)

/// A test that runs in each mode, which is mode_ then.
class ModesTest : public QObject
{
    Q_OBJECT

protected Q_SLOTS:
    void initTestCase_data();
    void init();

protected:
    Mode mode_ = Mode::Constraint;
};

/// The dialog's side of one panel: a real PPD, the callback object, the log, what the user hears, and a
/// window with a default button.
class PanelHarness
{
public:
    explicit PanelHarness(Mode mode)
        : PanelHarness(mode, colorPpd())
    {
    }
    PanelHarness(Mode mode, const QByteArray &ppd);
    ~PanelHarness();
    Q_DISABLE_COPY_MOVE(PanelHarness)

    /// The color panel's options, -25 to 25 each with the text "Level N", and `more`.
    static QByteArray colorPpd(const QByteArray &more = {});
    static QByteArray ppdHead();
    static QByteArray ppdOption(const QByteArray &key, const QByteArray &defaultChoice,
                                const QList<QByteArray> &choices);

    template <class Panel>
    std::unique_ptr<Opened<Panel>> make()
    {
        return RKTPPRBasePDEcorvel::make<Opened<Panel>>(callback);
    }
    /// Puts the panel's view into the window and shows it with its values, as a dialog does.
    void show(RKTPPRBasePDEcorvel &panel);

    QWidget *control(int tag) const { return pdekit::viewWithTag(view, tag); }
    QSlider *slider(int tag) const { return qobject_cast<QSlider *>(control(tag)); }
    QLineEdit *field(int tag) const { return qobject_cast<QLineEdit *>(control(tag)); }
    /// Types into the field, in the place of what it holds.
    void type(int tag, const QString &keys) const;
    QString marked(const QString &key) const;
    void mark(const QString &key, const QString &choice);

    FakeSession session;
    FakePrinter printer;
    std::shared_ptr<SettingsCallback> callback;
    ConstraintCallback *constraints = nullptr; ///< null in print-settings mode
    std::shared_ptr<RecordingFeedback> feedback = std::make_shared<RecordingFeedback>();
    QStringList log;
    QDialog window;
    QPushButton *printButton;
    int printed = 0;
    QWidget *view = nullptr;

private:
    struct PpdCloser
    {
        void operator()(ppd_file_s *ppd) const;
    };
    std::unique_ptr<ppd_file_s, PpdCloser> ppd_;
    std::shared_ptr<pdekit::Feedback> feedbackBefore_;
    std::function<void(const QString &)> sinkBefore_;
};
