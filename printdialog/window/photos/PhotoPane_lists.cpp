// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PhotoPane.h"

#include <QtCore/QFileInfo>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QPushButton>

namespace printdialog {

namespace {

QFileDialog *listDialog(const QString &title, QWidget *parent)
{
    auto *dialog =
        new QFileDialog(parent, title, {}, PhotoPane::tr("Print lists") + QLatin1String(" (*.json)"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setDefaultSuffix(QStringLiteral("json"));
    return dialog;
}

} // namespace

void PhotoPane::browseList()
{
    QFileDialog *dialog = listDialog(tr("Open a Print List"), this);
    dialog->setFileMode(QFileDialog::ExistingFile);
    connect(dialog, &QFileDialog::fileSelected, this, &PhotoPane::openList);
    dialog->show();
}

void PhotoPane::openList(const QString &path)
{
    const auto list = PrintList::load(path);
    if (!list)
        return Q_EMIT failed(PhotoOpener::Use::List, {list.failure().text});
    if (list->photos.isEmpty()) {
        Q_EMIT failed(PhotoOpener::Use::List,
                      {tr("The print list \"%1\" is empty.").arg(QFileInfo(path).fileName())});
        return;
    }
    opener_->open(*list, PhotoOpener::Use::List);
}

/// What cannot be opened is missing.
void PhotoPane::appendOfList(const PhotoOpener::Batch &batch)
{
    hasListPhotos_ = true;
    if (batch.isFirst)
        Q_EMIT actBegins();
    act(add_, [&] {
        if (batch.isFirst && batch.use == PhotoOpener::Use::List)
            model_->replace({batch.photos, batch.layout, batch.pages});
        else
            model_->follow(batch.photos);
    });
}

void PhotoPane::saveList()
{
    QFileDialog *dialog = listDialog(tr("Save a Print List"), this);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    connect(dialog, &QFileDialog::fileSelected, this, &PhotoPane::saveListTo);
    dialog->show();
}

void PhotoPane::saveListTo(const QString &path)
{
    if (const auto failure = PrintList::of(arrangement()).save(path)) {
        Q_EMIT failed(PhotoOpener::Use::List, {failure->text});
        return;
    }
    model_->keep(arrangement());
    Q_EMIT listSaved(path);
}

} // namespace printdialog
