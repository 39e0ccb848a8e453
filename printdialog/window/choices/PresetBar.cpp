// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PresetBar.h"

#include "AlertRole.h"
#include "TextFieldEvents.h"
#include "ViewTexts.h"

#include <QtCore/QEvent>
#include <QtGui/QShortcut>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStackedWidget>
#include <QtWidgets/QToolButton>

#include <algorithm>
#include <functional>
#include <utility>

namespace printdialog {

namespace {

enum Row { Choosing, Naming, Removing };

/// Reports when its list opens.
class NamesBox : public QComboBox
{
public:
    explicit NamesBox(std::function<void()> aboutToOpen)
        : aboutToOpen_(std::move(aboutToOpen))
    {
    }
    void showPopup() override
    {
        aboutToOpen_();
        QComboBox::showPopup();
    }

private:
    std::function<void()> aboutToOpen_;
};

QPushButton *makeButton(const QString &text, const char *name)
{
    auto *button = new QPushButton(text);
    button->setObjectName(QLatin1String(name));
    button->setAutoDefault(false);
    return button;
}

QHBoxLayout *makeRow(QWidget *row)
{
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    return layout;
}

} // namespace

PresetBar::PresetBar(QWidget *parent)
    : QWidget(parent)
    , rows_(new QStackedWidget(this))
    , menu_(new QMenu(this))
    , error_(new QLabel(this))
{
    makeMenu();
    rows_->addWidget(makeChoosingRow());
    rows_->addWidget(makeNamingRow());
    rows_->addWidget(makeRemovingRow());
    rows_->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    error_->setObjectName(QStringLiteral("presetError"));
    pdekit::setAlertRole(error_);
    error_->setTextFormat(Qt::PlainText);
    error_->setWordWrap(true);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(rows_);
    layout->addWidget(error_);
    setFocusProxy(names_);
    connect(new QShortcut(Qt::Key_Escape, rows_->widget(Naming)), &QShortcut::activated, this,
            &PresetBar::endEditing);
    connect(new QShortcut(Qt::Key_Escape, rows_->widget(Removing)), &QShortcut::activated, this,
            &PresetBar::endEditing);
    clearError();
    updateActions();
}

QWidget *PresetBar::makeChoosingRow()
{
    auto *row = new QWidget;
    names_ = new NamesBox([this] { Q_EMIT aboutToChoose(); });
    names_->setObjectName(QStringLiteral("presets"));
    names_->setAccessibleName(tr("Preset"));
    names_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    names_->setMinimumContentsLength(10);
    names_->setPlaceholderText(tr("None", "no preset is in use"));
    manage_ = new QToolButton;
    manage_->setObjectName(QStringLiteral("managePresets"));
    manage_->setText(tr("M&anage"));
    manage_->setToolTip(tr("Save, rename or delete presets; go back to earlier choices"));
    manage_->setPopupMode(QToolButton::InstantPopup);
    manage_->setFocusPolicy(Qt::StrongFocus);
    manage_->setMenu(menu_);
    manage_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    QHBoxLayout *layout = makeRow(row);
    layout->addWidget(names_, 1);
    layout->addWidget(manage_);
    connect(names_, &QComboBox::activated, this, [this](int index) {
        clearError();
        Q_EMIT chosen(names_->itemData(index).toString());
    });
    return row;
}

QWidget *PresetBar::makeNamingRow()
{
    auto *row = new QWidget;
    name_ = new QLineEdit;
    name_->setObjectName(QStringLiteral("presetName"));
    name_->setAccessibleName(tr("Name of the preset"));
    name_->setPlaceholderText(tr("Name of the preset"));
    accept_ = makeButton({}, "presetAccept");
    QPushButton *cancel = makeButton(tr("Cancel"), "presetCancel");
    QHBoxLayout *layout = makeRow(row);
    layout->addWidget(name_, 1);
    layout->addWidget(accept_);
    layout->addWidget(cancel);
    // The field handles Return, so that it does not print.
    connect(pdekit::TextFieldEvents::attach(name_), &pdekit::TextFieldEvents::action, this,
            &PresetBar::acceptName);
    connect(name_, &QLineEdit::textEdited, this, &PresetBar::clearError);
    connect(accept_, &QPushButton::clicked, this, &PresetBar::acceptName);
    connect(cancel, &QPushButton::clicked, this, &PresetBar::endEditing);
    return row;
}

QWidget *PresetBar::makeRemovingRow()
{
    auto *row = new QWidget;
    question_ = new QLabel;
    question_->setTextFormat(Qt::PlainText);
    question_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    QPushButton *confirm = makeButton(tr("Delete"), "presetRemove");
    QPushButton *cancel = makeButton(tr("Cancel"), "presetKeep");
    QHBoxLayout *layout = makeRow(row);
    layout->addWidget(question_, 1);
    layout->addWidget(confirm);
    layout->addWidget(cancel);
    connect(confirm, &QPushButton::clicked, this, [this] { Q_EMIT removeRequested(current_); });
    connect(cancel, &QPushButton::clicked, this, &PresetBar::endEditing);
    return row;
}

void PresetBar::makeMenu()
{
    menu_->setObjectName(QStringLiteral("presetMenu"));
    update_ = menu_->addAction(QString(), this, [this] {
        clearError();
        Q_EMIT updateRequested(current_);
    });
    menu_->addAction(tr("Save &As…"), this, [this] { editName(true); });
    rename_ = menu_->addAction(tr("&Rename…"), this, [this] { editName(false); });
    remove_ = menu_->addAction(tr("&Delete…"), this, &PresetBar::askToRemove);
}

void PresetBar::setNames(const QList<Name> &names)
{
    known_ = names;
    names_->clear();
    names_->addItem(tr("Printer Defaults"), defaultsName());
    if (!names.isEmpty())
        names_->insertSeparator(1);
    for (const Name &each : names)
        names_->addItem(each.name, each.name);
    setCurrent({}, false);
}

void PresetBar::setCurrent(const QString &name, bool isChanged)
{
    const bool isKnown = names_->findData(name) >= 0;
    current_ = isKnown ? name : QString();
    isChanged_ = isKnown && isChanged;
    for (int i = 0; i < names_->count(); ++i) {
        const QString each = names_->itemData(i).toString();
        const QString shown = each == defaultsName() ? tr("Printer Defaults") : each;
        names_->setItemText(i, each == current_ && isChanged_ ? tr("%1 (changed)").arg(shown) : shown);
    }
    names_->setCurrentIndex(names_->findData(name));
    updateActions();
}

void PresetBar::updateActions()
{
    const auto known = std::ranges::find(known_, current_, &Name::name);
    const bool isWritable = known != known_.end() && known->isWritable;
    update_->setText(
        known == known_.end()
            ? tr("&Save")
            : tr("&Save \"%1\"").arg(QString(current_).replace(QLatin1Char('&'), QLatin1String("&&"))));
    update_->setEnabled(isWritable && isChanged_);
    rename_->setEnabled(isWritable);
    remove_->setEnabled(isWritable);
}

void PresetBar::editName(bool isNew)
{
    clearError();
    isNew_ = isNew;
    accept_->setText(isNew ? tr("Save") : tr("Rename"));
    name_->setText(isNew ? QString() : current_);
    name_->selectAll();
    showRow(Naming);
    name_->setFocus(Qt::OtherFocusReason);
}

void PresetBar::acceptName()
{
    const QString name = name_->text();
    clearError();
    if (isNew_)
        Q_EMIT addRequested(name);
    else
        Q_EMIT renameRequested(current_, name);
}

void PresetBar::askToRemove()
{
    clearError();
    question_->setText(tr("Delete \"%1\"?").arg(current_));
    pdekit::setPlainToolTip(question_, current_);
    showRow(Removing);
    rows_->widget(Removing)->findChild<QPushButton *>(QStringLiteral("presetKeep"))->setFocus();
}

void PresetBar::endEditing()
{
    clearError();
    const bool hadFocus = rows_->currentIndex() != Choosing && rows_->isAncestorOf(window()->focusWidget());
    showRow(Choosing);
    if (hadFocus)
        names_->setFocus(Qt::OtherFocusReason);
}

void PresetBar::showRow(int row)
{
    rows_->setCurrentIndex(row);
}

void PresetBar::showError(const QString &text)
{
    error_->setText(text);
    error_->setAccessibleName(text);
    error_->setVisible(true);
    pdekit::announce(error_);
    if (rows_->currentIndex() == Naming)
        name_->setFocus(Qt::OtherFocusReason);
}

QString PresetBar::error() const
{
    return error_->isHidden() ? QString() : error_->text();
}

void PresetBar::clearError()
{
    error_->clear();
    error_->setVisible(false);
}

void PresetBar::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::EnabledChange && !isEnabled())
        endEditing();
    QWidget::changeEvent(event);
}

} // namespace printdialog
