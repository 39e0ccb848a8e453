// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "AlertRole.h"

#include <QtWidgets/QAccessibleWidget>

namespace pdekit {

namespace {

constexpr char alertProperty[] = "isAlert";

QAccessibleInterface *makeAlert(const QString & /*className*/, QObject *object)
{
    if (!object->isWidgetType() || !object->property(alertProperty).toBool())
        return nullptr;
    return new QAccessibleWidget(static_cast<QWidget *>(object), QAccessible::AlertMessage);
}

} // namespace

void setAlertRole(QWidget *view)
{
    static const bool isInstalled = (QAccessible::installFactory(makeAlert), true);
    Q_UNUSED(isInstalled)
    view->setProperty(alertProperty, true);
}

void announce(QWidget *alert)
{
    QAccessibleEvent changed(alert, QAccessible::Alert);
    QAccessible::updateAccessibility(&changed);
    // The accessibility bus reports an alert when it appears, so a changed text is reported as appearing,
    // too.
    QAccessibleEvent shown(alert, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&shown);
}

} // namespace pdekit
