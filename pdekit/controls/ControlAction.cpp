// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ControlAction.h"

#include "ActionGuard.h"
#include "ControlValues.h"
#include "RadioMatrix.h"

#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QAbstractSlider>
#include <QtWidgets/QComboBox>

#include <utility>

namespace pdekit {

namespace {

// A click also toggles a button; an assistive tool only toggles it. Both count as one action.
void connectButton(QAbstractButton *button, QObject *context, const std::function<void()> &action)
{
    const auto acted = std::make_shared<bool>(false);
    QObject::connect(button, &QAbstractButton::pressed, context, [acted] { *acted = false; });
    QObject::connect(button, &QAbstractButton::toggled, context, [button, action, acted](bool on) {
        // A radio button is switched off because another one was selected.
        if (isBeingSet(button) || (!on && button->autoExclusive()))
            return;
        *acted = true;
        action();
    });
    QObject::connect(button, &QAbstractButton::clicked, context, [action, acted] {
        if (!std::exchange(*acted, false))
            action();
    });
}

} // namespace

bool connectAction(QWidget *control, QObject *context, const std::function<void()> &unguarded)
{
    const auto action = [control, unguarded] {
        guardAction(control, unguarded);
    };
    if (auto *slider = qobject_cast<QAbstractSlider *>(control)) {
        // Not actionTriggered: an assistive tool sets the value directly.
        QObject::connect(slider, &QAbstractSlider::valueChanged, context, [slider, action] {
            if (!isBeingSet(slider))
                action();
        });
        return true;
    }
    if (auto *button = qobject_cast<QAbstractButton *>(control)) {
        connectButton(button, context, action);
        return true;
    }
    if (auto *matrix = qobject_cast<RadioMatrix *>(control)) {
        QObject::connect(matrix, &RadioMatrix::cellClicked, context, action);
        return true;
    }
    if (auto *combo = qobject_cast<QComboBox *>(control)) {
        QObject::connect(combo, &QComboBox::activated, context, action);
        return true;
    }
    return false;
}

} // namespace pdekit
