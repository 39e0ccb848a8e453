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
                      {tr("The print list \"%1\" has no photos.").arg(QFileInfo(path).fileName())});
        return;
    }
    QStringList paths;
    for (const PrintList::Entry &entry : list->photos)
        paths += entry.path;
    lists_.append(*list);
    opener_->open(paths, PhotoOpener::Use::List);
}

/// The photos come in the order of the list's; those that cannot be opened are missing.
void PhotoPane::appendOfList(const PhotoOpener::Batch &batch)
{
    PrintList &list = lists_.first();
    QList<PlacedPhoto> placed;
    for (const Photo &photo : batch.photos) {
        while (list.photos.constFirst().path != photo.path())
            list.photos.removeFirst();
        const PrintList::Entry entry = list.photos.takeFirst();
        placed.append({photo, entry.placement, false, entry.copies});
    }
    hasListPhotos_ = true;
    if (batch.isFirst)
        Q_EMIT actBegins();
    act(add_, [&] { batch.isFirst ? model_->replace({placed, list.layout}) : model_->follow(placed); });
}

void PhotoPane::saveList()
{
    QFileDialog *dialog = listDialog(tr("Save the Photos as a Print List"), this);
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
