// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "Adjustment.h"
#include "Bundle.h"
#include "OptionPanel.h"
#include "PlatformException.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>
#include <QtCore/QFile>

#include <limits>
#include <stdexcept>

namespace {

/// Adds the call to the file CORVEL_TEST_CALLS, and fails where CORVEL_TEST_FAULT is "call:how". False: the
/// call is to report a failure.
bool note(const QString &call)
{
    if (QFile file(qEnvironmentVariable("CORVEL_TEST_CALLS")); file.open(QIODevice::Append))
        file.write(call.toUtf8() + '\n');
    const QStringList fault = qEnvironmentVariable("CORVEL_TEST_FAULT").split(u':');
    if (fault.size() != 2 || fault.at(0) != call)
        return true;
    if (fault.at(1) == QLatin1String("platform"))
        throw pdekit::PlatformException(QStringLiteral("no paper feed"));
    if (fault.at(1) == QLatin1String("std"))
        throw std::runtime_error("no paper feed.");
    if (fault.at(1) == QLatin1String("int"))
        throw 7;
    return false;
}

bool answer(bool isDone, QString *error)
{
    if (!isDone && error)
        *error = QStringLiteral("the disk is full.");
    return isDone;
}

} // namespace

/// The panel of two pop-ups, which notes what the dialog calls.
class RecordingPanel : public pdekit::OptionPanel, public pdekit::AdjustmentSource
{
    Q_OBJECT
    Q_INTERFACES(pdekit::AdjustmentSource)

public:
    using pdekit::OptionPanel::OptionPanel;

    std::optional<QString> panelName() override
    {
        note(QStringLiteral("name"));
        return OptionPanel::panelName();
    }
    QWidget *panelView() override
    {
        note(QStringLiteral("view"));
        return OptionPanel::panelView();
    }
    bool restoreValuesAndReturnError(QString *error) override
    {
        return answer(note(QStringLiteral("restore")) && OptionPanel::restoreValuesAndReturnError(error),
                      error);
    }
    bool saveValuesAndReturnError(QString *error) override
    {
        const bool isSaved = OptionPanel::saveValuesAndReturnError(error);
        return answer(note(QStringLiteral("save")) && isSaved, error); // it fails when it has written
    }
    void willShow() override
    {
        note(QStringLiteral("willShow"));
        if (qEnvironmentVariable("CORVEL_TEST_FAULT").startsWith(QLatin1String("event")))
            QCoreApplication::postEvent(this, new QEvent(QEvent::User));
        OptionPanel::willShow();
    }
    bool shouldHide() override { return note(QStringLiteral("shouldHide")); }
    std::optional<Summary> summaryInfo() override
    {
        note(QStringLiteral("summary"));
        return OptionPanel::summaryInfo();
    }
    void PPDOptionKeyValueDidChangePpdChoice(const std::optional<QString> &key,
                                             const std::optional<QString> &choice) override
    {
        note(QStringLiteral("didChange"));
        OptionPanel::PPDOptionKeyValueDidChangePpdChoice(key, choice);
    }
    bool shouldShowHelp() override
    {
        note(QStringLiteral("help"));
        return OptionPanel::shouldShowHelp();
    }
    bool markChoiceForPPDOptionKeyFromSender(const std::optional<QString> &choice,
                                             const std::optional<QString> &key, QWidget *sender) override
    {
        note(sender ? QStringLiteral("act") : QStringLiteral("choice"));
        return OptionPanel::markChoiceForPPDOptionKeyFromSender(choice, key, sender);
    }
    /// When it fails: all that an adjustment must not be.
    pdekit::Adjustment adjustment() override
    {
        constexpr double infinity = std::numeric_limits<double>::infinity();
        pdekit::Adjustment adjustment;
        if (qEnvironmentVariableIsSet("CORVEL_TEST_LOOK"))
            adjustment.matrix = {}; // all black
        if (qEnvironmentVariable("CORVEL_TEST_FAULT").startsWith(QLatin1String("adjustment")) &&
            !note(QStringLiteral("adjustment"))) {
            adjustment.curves[0] = {0, std::numeric_limits<double>::quiet_NaN()};
            adjustment.matrix[1][1] = infinity;
            adjustment.sharpeningRadius = infinity;
            adjustment.sharpeningAmount = 1;
        }
        return adjustment;
    }

protected:
    bool event(QEvent *event) override
    {
        if (event->type() == QEvent::User)
            note(QStringLiteral("event"));
        return OptionPanel::event(event);
    }
};

class RecordingPlugin : public QObject, public pdekit::PrintDialogPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID PrintDialogPlugin_iid FILE "Info.json")
    Q_INTERFACES(pdekit::PrintDialogPlugin)

public:
    bool initWithBundle(const pdekit::Bundle &bundle) override
    {
        bundle_ = bundle;
        return note(QStringLiteral("init"));
    }
    std::optional<pdekit::PanelList> PDEPanelsForTypeWithHostInfo(const QString & /*type*/,
                                                                  const pdekit::HostInfo &hostInfo) override
    {
        note(QStringLiteral("panels"));
        pdekit::PanelList panels;
        const QString option = qEnvironmentVariable("CORVEL_TEST_OPTION", QStringLiteral("Border"));
        panels.push_back(std::make_unique<RecordingPanel>(
            *bundle_, hostInfo,
            pdekit::OptionPanel::Page{option,
                                      QStringLiteral("border"),
                                      QStringLiteral("border"),
                                      {{1, option}, {2, QStringLiteral("Tone")}}}));
        return panels;
    }

private:
    std::optional<pdekit::Bundle> bundle_;
};

#include "RecordingPlugin.moc"
