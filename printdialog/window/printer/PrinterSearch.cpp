// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PrinterSearch.h"

#include <QtGui/QFocusEvent>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QCompleter>
#include <QtWidgets/QLineEdit>

namespace printdialog {

namespace {

/// Searches the words, and completes to the item's text.
class WordsCompleter : public QCompleter
{
public:
    WordsCompleter(QAbstractItemModel *model, QObject *parent)
        : QCompleter(model, parent)
    {
        setCompletionRole(PrinterSearch::wordsRole);
        setCaseSensitivity(Qt::CaseInsensitive);
        setFilterMode(Qt::MatchContains);
    }
    QString pathFromIndex(const QModelIndex &index) const override
    {
        return index.data(Qt::DisplayRole).toString();
    }
};

} // namespace

PrinterSearch::PrinterSearch(QComboBox *list)
    : QObject(list)
    , list_(list)
{
    const QString awaited = list->placeholderText();
    list->setEditable(true);
    list->setInsertPolicy(QComboBox::NoInsert);
    list->setCompleter(new WordsCompleter(list->model(), list));
    QLineEdit *field = list->lineEdit();
    field->setPlaceholderText(awaited);
    field->setAccessibleName(tr("Printer"));
    field->setAccessibleDescription(tr("Type a part of its name, place or model to find it"));
    field->setToolTip(field->accessibleDescription());
    // The list has the focus, and hands the keys on to its field.
    list->installEventFilter(this);
    field->installEventFilter(this);
}

bool PrinterSearch::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusOut) {
        const auto reason = static_cast<QFocusEvent *>(event)->reason();
        if (reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason)
            showCurrent();
    } else if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        const bool isSearching = list_->lineEdit()->text() != list_->itemText(list_->currentIndex());
        if (isSearching && (key == Qt::Key_Return || key == Qt::Key_Enter)) {
            chooseFirst(); // and not the dialog's default button
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}

void PrinterSearch::chooseFirst()
{
    const QString typed = list_->lineEdit()->text().trimmed();
    const int found =
        typed.isEmpty() ? -1 : list_->findData(typed, wordsRole, Qt::MatchContains | Qt::MatchWrap);
    list_->completer()->popup()->hide();
    if (found >= 0) {
        list_->setCurrentIndex(found);
        Q_EMIT list_->activated(found);
    }
    showCurrent();
}

void PrinterSearch::showCurrent()
{
    list_->setEditText(list_->itemText(list_->currentIndex()));
}

} // namespace printdialog
