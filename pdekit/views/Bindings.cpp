// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "Bindings.h"

#include "ActionGuard.h"
#include "ControlValues.h"
#include "KeyValueObject.h"
#include "RadioMatrix.h"

#include <QtCore/QVariant>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QAbstractSlider>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>

#include <functional>

namespace pdekit {

namespace {

// A pop-up changes before it reports the user's action, which may revert it.
void connectPopUpChange(QComboBox *combo, QObject *context, const std::function<void()> &changed)
{
    QObject::connect(combo, &QComboBox::activated, context, changed);
    QObject::connect(combo, &QComboBox::currentIndexChanged, context, [combo, changed] {
        if (isBeingSet(combo))
            changed();
    });
}

/// Calls `changed` whenever the control's value changes, by the user or a program.
void connectValueChange(QWidget *control, QObject *context, const std::function<void()> &changed)
{
    if (auto *matrix = qobject_cast<RadioMatrix *>(control))
        QObject::connect(matrix, &RadioMatrix::selectionChanged, context, changed);
    else if (auto *slider = qobject_cast<QAbstractSlider *>(control))
        QObject::connect(slider, &QAbstractSlider::valueChanged, context, changed);
    else if (auto *field = qobject_cast<QLineEdit *>(control))
        QObject::connect(field, &QLineEdit::textChanged, context, changed);
    else if (auto *button = qobject_cast<QAbstractButton *>(control))
        QObject::connect(button, &QAbstractButton::toggled, context, changed);
    else if (auto *combo = qobject_cast<QComboBox *>(control))
        connectPopUpChange(combo, context, changed);
}

void bindValue(QWidget *control, KeyValueObject *owner, const QString &key)
{
    const QByteArray property = key.toUtf8();
    const auto follow = [control, owner, property] {
        const std::optional<QString> shown = owner->valueOfBoundControl(control);
        if (shown && owner->property(property.constData()).toString() != *shown)
            owner->setProperty(property.constData(), *shown);
    };
    connectValueChange(control, owner, [control, follow] { guardAction(control, follow); });
    QObject::connect(owner, &KeyValueObject::valueDidChange, control,
                     [control, owner, key, property](const QString &changed) {
                         if (changed != key)
                             return;
                         const QVariant value = owner->property(property.constData());
                         if (!value.isNull() && owner->valueOfBoundControl(control) != value.toString())
                             owner->showValueInBoundControl(control, value.toString());
                     });
    follow();
}

void bindEnabled(QWidget *view, KeyValueObject *owner, const QString &key)
{
    const auto follow = [view, owner, property = key.toUtf8()] {
        view->setEnabled(owner->property(property.constData()).toBool());
    };
    QObject::connect(owner, &KeyValueObject::valueDidChange, view, [key, follow](const QString &changed) {
        if (changed == key)
            follow();
    });
    follow();
}

} // namespace

void bindControls(QWidget *view, KeyValueObject *owner)
{
    QList<QWidget *> views = view->findChildren<QWidget *>();
    views.prepend(view);
    for (QWidget *each : std::as_const(views)) {
        const QStringList keys =
            each->property("valueBinding").toString().split(QLatin1Char(' '), Qt::SkipEmptyParts);
        for (const QString &key : keys)
            bindValue(each, owner, key);
        if (const QString key = each->property("enabledBinding").toString(); !key.isEmpty())
            bindEnabled(each, owner, key);
    }
}

} // namespace pdekit
