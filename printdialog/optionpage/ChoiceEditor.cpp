// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ChoiceEditor.h"

#include "ControlAction.h"
#include "ControlValues.h"
#include "CustomFields.h"
#include "OptionPage.h"
#include "ViewTags.h"
#include "ViewTexts.h"

#include <QtGui/QStandardItemModel>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>

namespace printdialog {

namespace {

constexpr int listCharacters = 14;
const QString customItem = QStringLiteral("Custom");

/// Escapes ampersands, which would underline the next letter of a button's text.
QString forButton(QString text)
{
    return text.replace(u'&', QLatin1String("&&"));
}

/// These mean that none of the others is chosen.
bool isNone(const QString &key, const QString &keyword)
{
    constexpr QLatin1String ippNone("3"); // RFC 8011, 5.2.6
    return (key == QLatin1String("finishings") && keyword == ippNone) || keyword == QLatin1String("None") ||
           keyword == QLatin1String("none") || keyword == QLatin1String("Off") ||
           keyword == QLatin1String("False");
}

} // namespace

ChoiceEditor::ChoiceEditor(OptionPage &page, const QString &key, int tag, QWidget *row)
    : page_(page)
    , key_(key)
    , row_(row)
    , tag_(tag)
{
    setContentsMargins(0, 0, 0, 0);
    switch (page.source().kind(key)) {
    case OptionKind::Boolean:
        makeCheckBox();
        break;
    case OptionKind::PickMany:
        makeMany();
        break;
    case OptionKind::PickOne:
        makeList();
        break;
    }
}

void ChoiceEditor::take(QWidget *control)
{
    pdekit::setTag(control, tag_ + controls_++);
    control->setObjectName(key_);
    if (!buddy_)
        buddy_ = control;
}

void ChoiceEditor::makeCheckBox()
{
    check_ = new QCheckBox(forButton(page_.source().optionText(key_)), row_);
    addWidget(check_);
    take(check_);
    for (const auto &[choice, isOn] :
         {std::pair(QStringLiteral("True"), true), std::pair(QStringLiteral("False"), false)}) {
        const QString reason = page_.session().equipmentRefusal(key_, choice);
        if (reason.isEmpty())
            continue;
        excluded_ = choice;
        check_->setText(tr("%1 (%2)", "an option or choice, and why it is not available")
                            .arg(check_->text(), forButton(reason)));
    }
    pdekit::connectAction(check_, this, [this] {
        page_.choose(key_, check_->isChecked() ? QStringLiteral("True") : QStringLiteral("False"), check_);
    });
}

void ChoiceEditor::makeList()
{
    list_ = new QComboBox(row_);
    list_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    list_->setMinimumContentsLength(listCharacters);
    list_->setFocusPolicy(Qt::StrongFocus); // not by the wheel, which scrolls the page
    addWidget(list_);
    take(list_);
    const auto *items = qobject_cast<QStandardItemModel *>(list_->model());
    const QList<Choice> choices = page_.source().choices(key_);
    for (const Choice &choice : choices) {
        const QString reason = page_.session().equipmentRefusal(key_, choice.keyword);
        list_->addItem(
            reason.isEmpty()
                ? choice.text
                : tr("%1 (%2)", "an option or choice, and why it is not available").arg(choice.text, reason),
            choice.keyword);
        if (!reason.isEmpty() && items)
            items->item(list_->count() - 1)->setEnabled(false);
    }
    if (!page_.source().customParameters(key_).isEmpty()) {
        list_->addItem(tr("Custom…"), customItem);
        custom_ = new CustomFields(page_, key_, row_);
        addWidget(custom_);
        for (QLineEdit *field : custom_->fields())
            take(field);
        custom_->hide();
        connect(custom_, &CustomFields::abandoned, this, [this] {
            const bool isAmongFields = custom_->isAncestorOf(QApplication::focusWidget());
            if (!isAmongFields)
                showChoice(page_.choice(key_));
        });
    }
    pdekit::connectAction(list_, this, [this] { chooseFromList(); });
}

void ChoiceEditor::makeMany()
{
    const QList<Choice> choices = page_.source().choices(key_);
    for (const Choice &choice : choices) {
        if (isNone(key_, choice.keyword))
            continue; // as no box is checked
        auto *box = new QCheckBox(forButton(choice.text), row_);
        box->setProperty("choice", choice.keyword);
        const QString reason = page_.session().equipmentRefusal(key_, choice.keyword);
        if (!reason.isEmpty()) {
            box->setProperty("isExcluded", true);
            box->setText(tr("%1 (%2)", "an option or choice, and why it is not available")
                             .arg(box->text(), forButton(reason)));
        }
        box->setAccessibleName(tr("%1: %2", "an option and one of its choices")
                                   .arg(page_.source().optionText(key_), choice.text));
        addWidget(box);
        take(box);
        many_ += box;
        pdekit::connectAction(box, this, [this, box] { chooseMany(box); });
    }
}

void ChoiceEditor::chooseFromList()
{
    const QString keyword = list_->currentData().toString();
    if (custom_ && keyword == customItem) {
        custom_->show();
        custom_->begin();
        return;
    }
    page_.choose(key_, keyword, list_);
}

void ChoiceEditor::chooseMany(QCheckBox *box)
{
    QStringList keywords;
    for (const QCheckBox *each : std::as_const(many_)) {
        if (each->isChecked())
            keywords += each->property("choice").toString();
    }
    if (keywords.isEmpty()) {
        const QList<Choice> choices = page_.source().choices(key_);
        const auto none = std::ranges::find_if(
            choices, [this](const Choice &choice) { return isNone(key_, choice.keyword); });
        // Without such a choice one of the others always applies: the job could not say that none does.
        keywords += none == choices.cend() ? box->property("choice").toString() : none->keyword;
    }
    page_.choose(key_, keywords.join(u','), box);
}

void ChoiceEditor::showChoice(const std::optional<QString> &choice)
{
    if (check_) {
        pdekit::setState(check_, choice == QLatin1String("True") ? 1 : 0);
        // What the equipment rules out can be taken back where it is a default.
        check_->setEnabled(excluded_.isEmpty() || choice == excluded_);
    }
    if (!many_.isEmpty())
        showMany(choice.value_or(QString()));
    if (!list_)
        return;
    const bool isListed = choice && page_.source().choice(key_, *choice);
    const bool isCustom = custom_ && choice && !isListed && isCustomChoice(*choice);
    list_->setCurrentIndex(choice ? list_->findData(isCustom ? customItem : *choice) : -1);
    if (custom_) {
        custom_->showChoice(choice.value_or(QString()));
        custom_->setVisible(isCustom);
    }
}

void ChoiceEditor::showMany(const QString &choice)
{
    const QStringList keywords = choice.split(u',');
    for (QCheckBox *box : std::as_const(many_)) {
        const bool isChosen = keywords.contains(box->property("choice").toString());
        pdekit::setState(box, isChosen ? 1 : 0);
        box->setEnabled(isChosen || !box->property("isExcluded").toBool());
    }
}

} // namespace printdialog
