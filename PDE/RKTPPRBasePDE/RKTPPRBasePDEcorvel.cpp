// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "RKTPPRBasePDEcorvel.h"

#include "CupsPpd.h"
#include "Feedback.h"
#include "FormLoader.h"
#include "PlatformException.h"
#include "PrintDialogCallback.h"
#include "SignalLog.h"
#include "SystemLog.h"

#include <QtWidgets/QWidget>

#include <array>
#include <csignal>
#include <cstddef>
#include <cstring>

using pdekit::systemLog;

namespace {

/// Appends the decimal digits of a number; snprintf(3) is not async-signal-safe.
std::size_t appendNumber(char *text, std::size_t length, int number)
{
    std::array<char, 12> digits;
    std::size_t count = 0;
    do {
        digits[count++] = static_cast<char>('0' + number % 10);
        number /= 10;
    } while (number > 0 && count < digits.size());
    while (count > 0)
        text[length++] = digits[--count];
    return length;
}

void catchPIPE(int signal)
{
    constexpr char begin[] = "caught a signal ";
    std::array<char, sizeof begin + 16> line;
    std::size_t length = sizeof begin - 1;
    std::memcpy(line.data(), begin, length);
    length = appendNumber(line.data(), length, signal);
    line[length++] = '\n';
    pdekit::systemLogFromSignal(line.data(), length);
}

/// Installs `catchPIPE` as the process's handler for SIGPIPE, so that a write to a child that has ended fails
/// instead of ending the process. False: it could not be installed.
bool registerPipeHandler()
{
    pdekit::prepareSignalLog();
    struct sigaction action = {};
    action.sa_handler = &catchPIPE;
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    return sigaction(SIGPIPE, &action, nullptr) == 0;
}

} // namespace

bool RKTPPRBasePDEcorvel::initWithCallback(const std::shared_ptr<QObject> &callbackObject)
{
    if (!registerPipeHandler())
        systemLog(QStringLiteral("error registering for SIGPIPE handler\n"));
    pdePluginCallbackObject_ = callbackObject;
    pdeBundle_ = pdekit::Bundle::bundleForClass(*metaObject());
    useConstraintHandling_ = qobject_cast<pdekit::ConstraintHandling *>(callbackObject.get()) != nullptr;
    if (useConstraintHandling_) {
        ppd_ = callback() ? callback()->ppdFile() : nullptr;
    } else {
        ppd_ = getPPDOnTiger();
        try {
            panelView();
        } catch (const pdekit::PlatformException &exception) {
            systemLog(QStringLiteral("caught an exception %1").arg(exception.description()));
        }
    }
    return ppd_ != nullptr;
}

RKTPPRBasePDEcorvel::~RKTPPRBasePDEcorvel()
{
    pdePluginCallbackObject_.reset();
    pdeBundle_.reset();
    thePDEName_.reset();
    choiceDict_.reset();
    supportedPPDOptionKeys_.reset();
    deviceURI_.reset();
    takeDownBackend();
    delete PDEView_;
}

pdekit::PrintDialogCallback *RKTPPRBasePDEcorvel::callback() const
{
    return qobject_cast<pdekit::PrintDialogCallback *>(pdePluginCallbackObject_.get());
}

// The dialog's protocol

QWidget *RKTPPRBasePDEcorvel::panelView()
{
    if (PDEView_)
        return PDEView_;
    const Text name = nibName();
    if (!name)
        return PDEView_;
    PDEView_ = pdekit::loadForm(*pdeBundle_, *name, this).release();
    if (PDEView_) {
        localizeStringsInViewAndSubviewsResizeTofit(PDEView_, true, false);
        enableTextFieldsForEditingInView(PDEView_);
    } else {
        systemLog(QStringLiteral("Failed to load nib named %1").arg(*name));
    }
    return PDEView_;
}

RKTPPRBasePDEcorvel::Text RKTPPRBasePDEcorvel::nibName()
{
    return std::nullopt;
}

RKTPPRBasePDEcorvel::Text RKTPPRBasePDEcorvel::panelName()
{
    return std::nullopt;
}

RKTPPRBasePDEcorvel::Text RKTPPRBasePDEcorvel::panelKind() const
{
    return std::nullopt;
}

void RKTPPRBasePDEcorvel::willShow()
{
    updateUI();
}

bool RKTPPRBasePDEcorvel::shouldHide()
{
    return true;
}

bool RKTPPRBasePDEcorvel::restoreValuesAndReturnError(QString * /*error*/)
{
    if (useConstraintHandling_) {
        const QStringList keys = supportedPPDOptionKeys();
        for (const QString &key : keys) {
            if (const Text choice = markedChoice(key))
                setChoiceForKey(choice, key);
        }
    } else {
        getPPDSettingsFromPrintSettingsOnTiger();
        const qsizetype recorded = choiceDict_ ? choiceDict_->size() : 0;
        if (recorded != supportedPPDOptionKeys().size())
            setDefaults();
    }
    updateUI();
    return true;
}

bool RKTPPRBasePDEcorvel::saveValuesAndReturnError(QString * /*error*/)
{
    if (!useConstraintHandling_)
        writePPDSettingsToPrintSettingsOnTiger();
    return true;
}

QStringList RKTPPRBasePDEcorvel::supportedPPDOptionKeys()
{
    if (!supportedPPDOptionKeys_) {
        QStringList keys;
        for (int tag = 1; const Text key = ppdOptionKeyForTag(tag); ++tag)
            keys.append(*key);
        supportedPPDOptionKeys_ = keys;
    }
    return *supportedPPDOptionKeys_;
}

void RKTPPRBasePDEcorvel::PPDOptionKeyValueDidChangePpdChoice(const Text &key, const Text &choice)
{
    if (key && choice && supportedPPDOptionKeys().contains(*key))
        setChoiceForKey(choice, key);
}

std::optional<pdekit::PrintDialogPanel::Summary> RKTPPRBasePDEcorvel::summaryInfo()
{
    Summary summary;
    const QStringList keys = supportedPPDOptionKeys();
    for (const QString &key : keys) {
        QString choice;
        if (useConstraintHandling_) {
            const ppd_choice_t *marked = ppdFindMarkedChoice(ppd_, key.toUtf8().constData());
            if (!marked)
                continue;
            choice = QString::fromUtf8(marked->text);
        } else {
            choice = recordedChoice(key).value_or(QString());
        }
        summary.insert(pdeBundle_->localizedString(key), pdeBundle_->localizedString(choice));
    }
    return summary;
}

bool RKTPPRBasePDEcorvel::shouldShowHelp()
{
    const QJsonValue book = pdeBundle_->infoValue(QStringLiteral("CFBundleHelpBookName"));
    return !book.isString() || !pdekit::Feedback::current().openHelpBook(*pdeBundle_, book.toString());
}
