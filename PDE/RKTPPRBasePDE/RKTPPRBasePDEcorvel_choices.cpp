// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ControlValues.h"
#include "CupsPpd.h"
#include "Feedback.h"
#include "NumericText.h"
#include "PrintDialogCallback.h"
#include "RKTPPRBasePDEcorvel.h"
#include "RadioMatrix.h"
#include "SystemLog.h"
#include "ViewTags.h"
#include "ViewTexts.h"

#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QWidget>

#include <algorithm>
#include <cmath>

namespace {

const QString loneMinus = QStringLiteral("-");

} // namespace

// The action: the user has acted on a control

void RKTPPRBasePDEcorvel::changePrinterSetting(QObject *object)
{
    auto *sender = qobject_cast<QWidget *>(object);
    if (!sender || !pdekit::isControl(sender))
        return;
    const int tag = pdekit::tag(sender);
    const Text key = ppdOptionKeyForTag(tag);
    const Text choice = newChoiceForSender(sender);
    if (tag == defaultsTag) {
        setDefaults();
        updateUI();
    } else if (tag == enablerTag) {
        setControlsEnabledByToggle(sender);
        const bool on = pdekit::state(sender).value_or(0) != 0;
        markChoiceForPPDOptionKeyFromSender(on ? QStringLiteral("True") : QStringLiteral("False"), key,
                                            sender);
    } else {
        markChoiceForPPDOptionKeyFromSender(choice, key, sender);
    }
}

void RKTPPRBasePDEcorvel::sendPrinterCommand(QObject * /*sender*/)
{
}

void RKTPPRBasePDEcorvel::controlTextDidChange(QWidget *object)
{
    changePrinterSetting(object);
}

void RKTPPRBasePDEcorvel::controlTextDidEndEditing(QWidget *object)
{
    if (pdekit::stringValue(object) == loneMinus)
        pdekit::setStringValue(object, QStringLiteral("0"));
}

// The control's choice

RKTPPRBasePDEcorvel::Text RKTPPRBasePDEcorvel::newChoiceForSender(QWidget *sender)
{
    if (qobject_cast<pdekit::RadioMatrix *>(sender))
        return cellChoice(sender);
    Text text = pdekit::stringValue(sender);
    if (!text || !pdekit::isTextField(sender) || *text == loneMinus)
        return text;
    return QString::number(pdekit::leadingInteger(*text));
}

RKTPPRBasePDEcorvel::Text RKTPPRBasePDEcorvel::cellChoice(QWidget *sender) const
{
    if (!sender)
        return std::nullopt;
    const auto *matrix = qobject_cast<pdekit::RadioMatrix *>(sender);
    return ppdChoiceForTag(matrix ? pdekit::RadioMatrix::cellTag(matrix->selectedCell())
                                  : pdekit::tag(sender));
}

// From the choice to the record, or back to the control

bool RKTPPRBasePDEcorvel::markChoiceForPPDOptionKeyFromSender(const Text &choice, const Text &key,
                                                              QWidget *sender)
{
    if (!choice || !key) {
        rejectChoiceForPPDOptionKeyFromSender(choice, key, sender);
        return false;
    }
    if (!validateChoiceForPPDOptionKeyFromSender(*choice, *key, sender)) {
        rejectChoiceForPPDOptionKeyFromSender(choice, key, sender);
        return true; // the result only means that a choice and a key were given
    }
    if (useConstraintHandling_ && !offerToPrintSystem(*choice, *key, sender))
        return false;
    setChoiceForKey(choice, key);
    if (sender)
        updateControlWithValue(sender, displayStringForValueForPPDOptionKey(*choice, *key));
    return true;
}

bool RKTPPRBasePDEcorvel::validateChoiceForPPDOptionKeyFromSender(const QString &choice,
                                                                  const QString & /*key*/, QWidget *sender)
{
    if (!sender || !pdekit::isTextField(sender))
        return true;
    const double value = pdekit::leadingDouble(choice);
    // A field without a slider beside it has the empty range at 0. Tick marks are not a limit: a value
    // between two of them is used unchanged.
    const QWidget *slider = pdekit::viewWithTag(sender->parentWidget(), foldedTag(pdekit::tag(sender)));
    const double maximum = slider ? pdekit::maxValue(slider).value_or(0.0) : 0.0;
    const double minimum = slider ? pdekit::minValue(slider).value_or(0.0) : 0.0;
    return !(value > maximum) && !(minimum > value);
}

bool RKTPPRBasePDEcorvel::offerToPrintSystem(const QString &choice, const QString &key, QWidget *sender)
{
    auto *printSystem = qobject_cast<pdekit::ConstraintHandling *>(pdePluginCallbackObject_.get());
    if (printSystem->willChangePPDOptionKeyValuePpdChoice(key, choice))
        return true;
    pdekit::Feedback::current().beep();
    pdekit::systemLog(
        QStringLiteral("The print system rejected the user selected choice %1 for PPD Option %2")
            .arg(choice, key));
    updateControlWithValue(sender, markedChoice(key));
    return false;
}

void RKTPPRBasePDEcorvel::rejectChoiceForPPDOptionKeyFromSender(const Text & /*choice*/, const Text &key,
                                                                QWidget *sender)
{
    pdekit::Feedback::current().beep();
    Text kept = recordedChoice(key);
    if (useConstraintHandling_ && key) {
        if (const Text marked = markedChoice(*key))
            kept = marked;
    }
    updateControlWithValue(sender, kept);
}

void RKTPPRBasePDEcorvel::setToolTipFromSender(const QString &toolTip, QWidget *sender)
{
    if (sender)
        pdekit::setPlainToolTip(sender, toolTip);
}

// What is recorded, and what is marked

RKTPPRBasePDEcorvel::Text RKTPPRBasePDEcorvel::markedChoice(const QString &key) const
{
    const ppd_choice_t *marked = ppd_ ? ppdFindMarkedChoice(ppd_, key.toUtf8().constData()) : nullptr;
    return marked ? Text(QString::fromUtf8(marked->choice)) : std::nullopt;
}

RKTPPRBasePDEcorvel::Text RKTPPRBasePDEcorvel::recordedChoice(const Text &key) const
{
    if (!key || !choiceDict_)
        return std::nullopt;
    const auto entry = choiceDict_->constFind(*key);
    return entry == choiceDict_->cend() ? std::nullopt : Text(*entry);
}

RKTPPRBasePDEcorvel::Text RKTPPRBasePDEcorvel::presentChoice(const QString &key) const
{
    const Text recorded = recordedChoice(key);
    return recorded ? recorded : markedChoice(key);
}

bool RKTPPRBasePDEcorvel::isOn(const QString &key) const
{
    return presentChoice(key).value_or(QString()).compare(QLatin1String("True"), Qt::CaseInsensitive) == 0;
}

double RKTPPRBasePDEcorvel::presentNumber(const QString &key, double least, double greatest) const
{
    for (const Text &choice : {recordedChoice(key), markedChoice(key)}) {
        bool isNumber = false;
        const double number = choice.value_or(QString()).toDouble(&isNumber);
        if (isNumber && std::isfinite(number)) // "nan" and "inf" count as numbers for Qt
            return std::clamp(number, least, greatest);
    }
    return 0;
}
