// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ControlAction.h"

#include "ControlValues.h"
#include "RadioMatrix.h"

#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QAbstractSlider>
#include <QtWidgets/QComboBox>

namespace pdekit {

bool connectAction(QWidget *control, QObject *context, const std::function<void()> &action)
{
    if (auto *slider = qobject_cast<QAbstractSlider *>(control)) {
        // Not actionTriggered: an assistive tool sets the value itself.
        QObject::connect(slider, &QAbstractSlider::valueChanged, context, [slider, action] {
            if (!isBeingSet(slider))
                action();
        });
        return true;
    }
    if (auto *button = qobject_cast<QAbstractButton *>(control)) {
        QObject::connect(button, &QAbstractButton::clicked, context, action);
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
