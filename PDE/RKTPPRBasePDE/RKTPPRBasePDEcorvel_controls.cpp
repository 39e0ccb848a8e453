// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ControlValues.h"
#include "CupsPpd.h"
#include "RKTPPRBasePDEcorvel.h"
#include "RadioMatrix.h"
#include "ViewTags.h"
#include "ViewTexts.h"

#include <QtWidgets/QWidget>

namespace {

constexpr int firstPartnerTag = 81;

QWidget *siblingWithTag(const QWidget *control, int tag)
{
    return pdekit::viewWithTag(control->parentWidget(), tag);
}

} // namespace

// Hooks

RKTPPRBasePDEcorvel::Text RKTPPRBasePDEcorvel::ppdOptionKeyForTag(int /*tag*/) const
{
    return std::nullopt;
}

RKTPPRBasePDEcorvel::Text RKTPPRBasePDEcorvel::ppdChoiceForTag(int /*cellTag*/) const
{
    return std::nullopt;
}

int RKTPPRBasePDEcorvel::tagForStringValue(const Text & /*value*/) const
{
    return 0;
}

QString RKTPPRBasePDEcorvel::displayStringForValueForPPDOptionKey(const QString &value,
                                                                  const QString & /*key*/) const
{
    return value;
}

int RKTPPRBasePDEcorvel::enablerState(QWidget *enabler) const
{
    return pdekit::state(enabler).value_or(0);
}

// From the recorded choices to the controls

void RKTPPRBasePDEcorvel::updateControlWithValue(QWidget *control, const Text &value)
{
    if (!control || !value || !pdekit::isControl(control))
        return;
    const int tag = pdekit::tag(control);
    if (tag == enablerTag) {
        pdekit::setState(control, value->compare(QLatin1String("True"), Qt::CaseInsensitive) == 0 ? 1 : 0);
        setControlsEnabledByToggle(control);
        return;
    }
    if (auto *matrix = qobject_cast<pdekit::RadioMatrix *>(control)) {
        selectCell(matrix, value);
        return;
    }
    pdekit::setStringValue(control, *value);
    pdekit::setPlainToolTip(control, *value);
    if (QWidget *partner = siblingWithTag(control, tag ^ partnerBits)) {
        pdekit::setStringValue(partner, *value);
        pdekit::setPlainToolTip(partner, *value);
    }
}

void RKTPPRBasePDEcorvel::selectCell(pdekit::RadioMatrix *matrix, const Text &value)
{
    matrix->selectCellWithTag(tagForStringValue(value));
    matrix->setToolTip(QString());
}

std::optional<QString> RKTPPRBasePDEcorvel::valueOfBoundControl(QWidget *control)
{
    return newChoiceForSender(control);
}

void RKTPPRBasePDEcorvel::showValueInBoundControl(QWidget *control, const QString &value)
{
    updateControlWithValue(control, value);
}

void RKTPPRBasePDEcorvel::updateUI()
{
    QWidget *view = panelView();
    if (!view)
        return;
    // Two contiguous ranges of tags: the option controls from 1, then those from the enabler.
    bool atEnabler = false;
    for (int tag = 1;; ++tag) {
        QWidget *control = pdekit::viewWithTag(view, tag);
        if (control && pdekit::isControl(control)) {
            updateControlWithValue(control, recordedChoice(ppdOptionKeyForTag(tag)));
            continue;
        }
        if ((tag & enablerTag) != 0 || atEnabler)
            return;
        atEnabler = true;
        tag = enablerTag - 1;
    }
}

void RKTPPRBasePDEcorvel::setControlsEnabledByToggle(QWidget *enabler)
{
    if (!enabler)
        return;
    const bool enabled = static_cast<signed char>(enablerState(enabler)) != 0;
    bool atPartners = false;
    for (int tag = 1;;) {
        QWidget *view = siblingWithTag(enabler, tag++);
        if (view) {
            view->setEnabled(enabled);
            continue;
        }
        // The first tag after the gap decides whether the partners follow: not when it has one of their bits.
        if ((tag & partnerBits) != 0 || atPartners)
            return;
        atPartners = true;
        tag = firstPartnerTag;
    }
}

void RKTPPRBasePDEcorvel::setDefaults()
{
    const QStringList keys = supportedPPDOptionKeys();
    for (const QString &key : keys) {
        const ppd_option_t *option = ppd_ ? ppdFindOption(ppd_, key.toUtf8().constData()) : nullptr;
        if (option)
            markChoiceForPPDOptionKeyFromSender(QString::fromUtf8(option->defchoice), key, nullptr);
    }
}
