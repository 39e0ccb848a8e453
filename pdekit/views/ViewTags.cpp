// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ViewTags.h"

#include <QtCore/QEvent>
#include <QtCore/QHash>
#include <QtCore/QVariant>
#include <QtWidgets/QWidget>

namespace pdekit {

namespace {

constexpr char tagName[] = "tag";

/// A cache of tags. QObject::property() first compares the name with about a hundred properties of the class,
/// and each change searches all views of a panel for a tag.
QHash<const QWidget *, int> &knownTags()
{
    static auto *const tags = new QHash<const QWidget *, int>; // outlives every view
    return *tags;
}

int tagProperty(const QWidget *view)
{
    return view->dynamicPropertyNames().contains(tagName) ? view->property(tagName).toInt() : noTag;
}

/// Keeps its view's cached tag up to date, and drops it with the view.
class TagWatch final : public QObject
{
public:
    explicit TagWatch(QWidget *view)
        : QObject(view)
        , view_(view)
    {
        view->installEventFilter(this);
    }

    TagWatch(const TagWatch &) = delete;
    TagWatch &operator=(const TagWatch &) = delete;
    ~TagWatch() override { knownTags().remove(view_); }

    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        if (event->type() == QEvent::DynamicPropertyChange)
            knownTags().insert(view_, tagProperty(view_));
        return false;
    }

private:
    QWidget *view_;
};

} // namespace

int tag(const QWidget *view)
{
    if (const auto known = knownTags().constFind(view); known != knownTags().constEnd())
        return *known;
    const int tag = tagProperty(view);
    if (tag != noTag) {
        new TagWatch(const_cast<QWidget *>(view)); // owned by the view
        knownTags().insert(view, tag);
    }
    return tag;
}

void setTag(QWidget *view, int tag)
{
    view->setProperty(tagName, tag);
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
