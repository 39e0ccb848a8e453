// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "RKTPPRBasePDEcorvel.h"

#include "CatchPIPE.h"
#include "CupsPpd.h"
#include "Feedback.h"
#include "FormLoader.h"
#include "PlatformException.h"
#include "PrintDialogCallback.h"
#include "SystemLog.h"

#include <QtWidgets/QWidget>

using pdekit::systemLog;

bool RKTPPRBasePDEcorvel::initWithCallback(const std::shared_ptr<QObject> &callbackObject)
{
    if (!installCatchPIPE())
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
