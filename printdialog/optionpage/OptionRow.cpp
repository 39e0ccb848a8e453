// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "OptionRow.h"

#include "ChoiceEditor.h"
#include "ControlAction.h"
#include "OptionPage.h"
#include "ViewTags.h"
#include "ViewTexts.h"

#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QToolButton>

#include <algorithm>

namespace printdialog {

OptionRow::OptionRow(OptionPage &page, const QString &key, int tag)
    : page_(page)
    , key_(key)
    , label_(new QLabel(this))
    , editor_(new ChoiceEditor(page, key, tag, this))
    , reset_(new QToolButton(this))
{
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    label_->setTextFormat(Qt::PlainText);
    if (!editor_->isLabelled()) {
        label_->setText(page.source().optionText(key));
        label_->setBuddy(editor_->buddy());
    }
    reset_->setText(QStringLiteral("\u21ba"));
    reset_->setAutoRaise(true);
    reset_->setFocusPolicy(Qt::TabFocus);
    reset_->setObjectName(key + QLatin1String(".reset"));
    pdekit::setTag(reset_, tag + editor_->controls());
    QSizePolicy keepsPlace = reset_->sizePolicy();
    keepsPlace.setRetainSizeWhenHidden(true);
    reset_->setSizePolicy(keepsPlace);
    row->addWidget(label_, 0, Qt::AlignTop);
    row->addLayout(editor_, 1);
    row->addWidget(reset_, 0, Qt::AlignTop);
    pdekit::connectAction(reset_, this, [this] { putBack(); });
    showChoice();
}

int OptionRow::controls() const
{
    return editor_->controls() + 1;
}

void OptionRow::showChoice()
{
    const OptionSource &source = page_.source();
    const auto choice = page_.choice(key_);
    const auto fallback = source.defaultChoice(key_);
    editor_->showChoice(choice);
    const bool differs = fallback && choice && choice != fallback;
    QFont font = this->font();
    font.setBold(differs);
    label_->setFont(font);
    if (editor_->isLabelled())
        editor_->buddy()->setFont(font);
    reset_->setVisible(differs);
    if (differs) {
        const QString text = tr("Put \"%1\" back to \"%2\"", "an option and the printer's default")
                                 .arg(source.optionText(key_), choiceText(source, {key_, *fallback}));
        reset_->setAccessibleName(text);
        pdekit::setPlainToolTip(reset_, text);
    }
}

void OptionRow::setLabelWidth(int width)
{
    label_->setFixedWidth(width);
    // Only where it is needed: a height that depends on the width makes laying out slow.
    label_->setWordWrap(label_->sizeHint().width() > width);
    // In line with the first control's text.
    label_->setMinimumHeight(editor_->buddy() ? editor_->buddy()->sizeHint().height() : 0);
}

bool OptionRow::matches(const QString &text) const
{
    const OptionSource &source = page_.source();
    if (source.optionText(key_).contains(text, Qt::CaseInsensitive) ||
        key_.contains(text, Qt::CaseInsensitive))
        return true;
    const QList<Choice> choices = source.choices(key_);
    return std::ranges::any_of(
        choices, [&text](const Choice &choice) { return choice.text.contains(text, Qt::CaseInsensitive); });
}

void OptionRow::putBack()
{
    if (const auto fallback = page_.source().defaultChoice(key_))
        page_.choose(key_, *fallback, reset_);
}

} // namespace printdialog
