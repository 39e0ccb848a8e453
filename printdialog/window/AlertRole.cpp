// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "AlertRole.h"

#include "ChoiceCallout.h"
#include "MessageBar.h"

#include <QtWidgets/QAccessibleWidget>

namespace printdialog {

namespace {

QAccessibleInterface *makeAlert(const QString & /*className*/, QObject *object)
{
    if (qobject_cast<MessageBar *>(object) || qobject_cast<ChoiceCallout *>(object))
        return new QAccessibleWidget(static_cast<QWidget *>(object), QAccessible::AlertMessage);
    return nullptr;
}

} // namespace

void installAlertRole()
{
    QAccessible::installFactory(makeAlert);
}

void announce(QWidget *alert)
{
    QAccessibleEvent told(alert, QAccessible::Alert);
    QAccessible::updateAccessibility(&told);
    // On the accessibility bus an alert is told by its appearance, also when it only says something else now.
    QAccessibleEvent shown(alert, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&shown);
}

} // namespace printdialog
