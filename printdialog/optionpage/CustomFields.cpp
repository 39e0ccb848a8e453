// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "CustomFields.h"

#include "Feedback.h"
#include "OptionPage.h"
#include "TextFieldEvents.h"

#include <QtGui/QFocusEvent>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>

namespace printdialog {

namespace {

constexpr int fieldCharacters = 10;

} // namespace

CustomFields::CustomFields(OptionPage &page, const QString &key, QWidget *parent)
    : QWidget(parent)
    , page_(page)
    , key_(key)
    , parameters_(page.source().customParameters(key))
{
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setColumnStretch(1, 1);
    for (int row = 0; row < parameters_.size(); ++row) {
        const CustomParameter &parameter = parameters_.at(row);
        auto *field = new QLineEdit(this);
        field->setMinimumWidth(field->fontMetrics().averageCharWidth() * fieldCharacters);
        const QString allowed = allowedText(parameter);
        const QString name = parameters_.size() == 1 ? page.source().optionText(key) : parameter.text;
        field->setAccessibleName(name);
        field->setAccessibleDescription(allowed);
        if (parameter.isSecret())
            field->setEchoMode(QLineEdit::Password);
        if (parameters_.size() > 1) {
            auto *label = new QLabel(parameter.text, this);
            label->setTextFormat(Qt::PlainText);
            label->setBuddy(field);
            grid->addWidget(label, row, 0);
        }
        grid->addWidget(field, row, 1);
        auto *range = new QLabel(allowed, this);
        range->setTextFormat(Qt::PlainText);
        range->setForegroundRole(QPalette::PlaceholderText);
        grid->addWidget(range, row, 2);
        fields_ += field;
        shown_ += QString();
        field->installEventFilter(this);
        auto *events = pdekit::TextFieldEvents::attach(field);
        connect(events, &pdekit::TextFieldEvents::textDidChange, this, [this, field] { apply(field); });
        connect(events, &pdekit::TextFieldEvents::textDidEndEditing, this,
                [this, field] { applyAtEnd(field); });
    }
}

void CustomFields::showChoice(const QString &choice)
{
    if (isSecret(parameters_))
        return; // the values are not kept in the choice
    const auto values = customValues(parameters_, choice);
    for (qsizetype i = 0; i < fields_.size(); ++i) {
        const CustomParameter &parameter = parameters_.at(i);
        const QString text = values ? typedText(parameter, values->value(parameter.name)) : QString();
        QLineEdit *field = fields_.at(i);
        shown_[i] = text;
        // What is being typed stays as it is as long as it says the same.
        const auto typed = typedValue(parameter, field->text());
        const bool isSame = values && typed == customValue(parameter, values->value(parameter.name));
        if (!isSame)
            field->setText(text);
    }
}

void CustomFields::begin()
{
    for (qsizetype i = 0; i < fields_.size(); ++i) {
        const CustomParameter &parameter = parameters_.at(i);
        if (parameter.isNumber() && fields_.at(i)->text().isEmpty())
            fields_.at(i)->setText(typedText(parameter, QString::number(parameter.minimum, 'f', 4)));
    }
    if (!fields_.isEmpty()) {
        fields_.constFirst()->setFocus(Qt::OtherFocusReason);
        fields_.constFirst()->selectAll();
        apply(fields_.constFirst());
    }
}

/// Nothing when one of them is not allowed.
std::optional<CustomValues> CustomFields::typed() const
{
    CustomValues values;
    for (qsizetype i = 0; i < fields_.size(); ++i) {
        const auto value = typedValue(parameters_.at(i), fields_.at(i)->text());
        if (!value)
            return std::nullopt;
        values.insert(parameters_.at(i).name, *value);
    }
    return values;
}

void CustomFields::apply(QLineEdit *field)
{
    const auto values = typed();
    if (!values) {
        if (isSecret(parameters_))
            page_.session().keepSecret(key_, {}); // of what was typed before
        return;
    }
    if (isSecret(parameters_)) {
        page_.session().keepSecret(key_, *values);
        page_.choose(key_, QStringLiteral("Custom"), field);
        return;
    }
    const QString choice = customChoice(parameters_, *values);
    if (choice != page_.choice(key_))
        page_.choose(key_, choice, field);
}

void CustomFields::applyAtEnd(QLineEdit *field)
{
    const qsizetype index = fields_.indexOf(field);
    if (typed()) {
        apply(field);
        if (const auto chosen = page_.choice(key_))
            showChoice(*chosen);
        return;
    }
    if (field->text().isEmpty() && shown_.at(index).isEmpty()) {
        Q_EMIT abandoned();
        return;
    }
    // The range stands beside the field; a refused choice is explained as well.
    const CustomValues refused = {{parameters_.at(index).name, field->text().trimmed()}};
    if (page_.session().rule && parameters_.size() == 1 && !isSecret(parameters_))
        page_.choose(key_, customChoice(parameters_, refused), field);
    else
        pdekit::Feedback::current().beep();
    field->setText(shown_.at(index));
    if (isSecret(parameters_))
        Q_EMIT abandoned();
}

/// Leaving an empty field empty is not an edit.
bool CustomFields::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusOut &&
        static_cast<QFocusEvent *>(event)->reason() != Qt::ActiveWindowFocusReason &&
        static_cast<QFocusEvent *>(event)->reason() != Qt::PopupFocusReason) {
        const auto *field = qobject_cast<QLineEdit *>(watched);
        const qsizetype index = fields_.indexOf(field);
        if (index >= 0 && field->text().isEmpty() && shown_.at(index).isEmpty())
            QMetaObject::invokeMethod(this, &CustomFields::abandoned, Qt::QueuedConnection);
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace printdialog
