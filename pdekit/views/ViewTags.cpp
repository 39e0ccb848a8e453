// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ViewTags.h"

#include <QtCore/QVariant>
#include <QtWidgets/QWidget>

namespace pdekit {

namespace {

constexpr char tagProperty[] = "tag";

} // namespace

int tag(const QWidget *view)
{
    // QObject::property() compares the name with each of the class's own properties first, some hundred,
    // which was half the time of showing a panel's choices.
    if (!view->dynamicPropertyNames().contains(tagProperty))
        return noTag;
    return view->property(tagProperty).toInt();
}

void setTag(QWidget *view, int tag)
{
    view->setProperty(tagProperty, tag);
}

QWidget *viewWithTag(QWidget *view, int wanted)
{
    if (!view || tag(view) == wanted)
        return view;
    for (QObject *child : view->children()) {
        if (!child->isWidgetType())
            continue;
        if (QWidget *found = viewWithTag(static_cast<QWidget *>(child), wanted))
            return found;
    }
    return nullptr;
}

} // namespace pdekit
