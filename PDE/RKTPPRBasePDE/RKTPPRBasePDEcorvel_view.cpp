// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ControlValues.h"
#include "RKTPPRBasePDEcorvel.h"
#include "RadioMatrix.h"
#include "TextFieldEvents.h"
#include "ViewTags.h"
#include "ViewTexts.h"

#include <QtGui/QPalette>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QLineEdit>

namespace {

constexpr int firstTextFieldTag = 80;

/// The strings table's text for `text`, if it has a different one.
std::optional<QString> translation(const pdekit::Bundle &bundle, const QString &text)
{
    QString localized = bundle.localizedString(text);
    if (localized == text)
        return std::nullopt;
    return localized;
}

std::optional<QString> toolTipTranslation(const pdekit::Bundle &bundle, const QString &toolTip)
{
    return toolTip.isEmpty() ? std::nullopt : translation(bundle, toolTip);
}

/// A radio cell has no tool tip: the visible one belongs to its matrix.
bool isCell(const QWidget *view)
{
    return qobject_cast<const QAbstractButton *>(view) &&
           qobject_cast<const pdekit::RadioMatrix *>(view->parentWidget());
}

QList<QWidget *> childrenOf(QWidget *view)
{
    if (const auto *matrix = qobject_cast<pdekit::RadioMatrix *>(view)) {
        const QList<QAbstractButton *> cells = matrix->cells();
        return {cells.cbegin(), cells.cend()};
    }
    return view->findChildren<QWidget *>(Qt::FindDirectChildrenOnly);
}

bool localizeOwnText(QWidget *view, const pdekit::Bundle &bundle)
{
    if (const auto title = pdekit::title(view)) {
        const auto localized = translation(bundle, *title);
        return localized && pdekit::setTitle(view, *localized);
    }
    if (const auto text = pdekit::stringValue(view)) {
        const auto localized = translation(bundle, *text);
        return localized && pdekit::setStringValue(view, *localized);
    }
    return false;
}

/// White in any theme, with a readable text color.
void paperWhite(QWidget *field)
{
    QPalette palette = field->palette();
    palette.setColor(QPalette::Base, Qt::white);
    for (const auto group : {QPalette::Active, QPalette::Inactive})
        palette.setColor(group, QPalette::Text, Qt::black);
    palette.setColor(QPalette::Disabled, QPalette::Text, Qt::darkGray);
    field->setPalette(palette);
}

} // namespace

bool RKTPPRBasePDEcorvel::localizeStringsInViewAndSubviewsResizeTofit(QWidget *view, bool subviews,
                                                                      bool resize)
{
    if (!view)
        return false;
    bool changed = false;
    if (subviews) {
        auto *matrix = qobject_cast<pdekit::RadioMatrix *>(view);
        const QList<QWidget *> children = childrenOf(view);
        for (QWidget *child : children) {
            // Only the last child counts: a container's result is that of its last child.
            changed = localizeStringsInViewAndSubviewsResizeTofit(child, true, resize);
            auto *cell = matrix ? qobject_cast<QAbstractButton *>(child) : nullptr;
            if (!cell)
                continue;
            if (const auto toolTip = toolTipTranslation(*pdeBundle_, matrix->toolTipForCell(cell)))
                matrix->setToolTipForCell(*toolTip, cell);
        }
    }
    if (localizeOwnText(view, *pdeBundle_))
        changed = true;
    if (!isCell(view)) {
        if (const auto toolTip = toolTipTranslation(*pdeBundle_, view->toolTip()))
            view->setToolTip(*toolTip);
    }
    if (resize && changed)
        pdekit::sizeToFit(view);
    return changed;
}

void RKTPPRBasePDEcorvel::enableTextFieldsForEditingInView(QWidget *view)
{
    int tag = firstTextFieldTag;
    for (;;) {
        QWidget *found = pdekit::viewWithTag(view, tag++);
        if (!found)
            found = pdekit::viewWithTag(view, tag++);
        if (!found)
            return;
        auto *field = qobject_cast<QLineEdit *>(found);
        if (!field)
            continue;
        auto *events = pdekit::TextFieldEvents::attach(field);
        connect(events, &pdekit::TextFieldEvents::textDidChange, this,
                [this, field] { controlTextDidChange(field); });
        connect(events, &pdekit::TextFieldEvents::textDidEndEditing, this,
                [this, field] { controlTextDidEndEditing(field); });
        paperWhite(field);
        connect(events, &pdekit::TextFieldEvents::action, this,
                [this, field] { changePrinterSetting(field); });
        field->setReadOnly(false);
    }
}
