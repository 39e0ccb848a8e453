// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PhotoPane.h"

#include "DroppedFiles.h"
#include "PasswordPrompt.h"

#include <QtCore/QFileInfo>
#include <QtGui/QDragEnterEvent>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QPushButton>

// Photos and documents from files.

namespace printdialog {

void PhotoPane::addFiles(const QStringList &paths)
{
    QStringList photos;
    for (const QString &path : paths)
        PrintList::isListName(path) ? openList(path) : photos.append(path);
    opener_->open(photos, PhotoOpener::Use::Added);
}

void PhotoPane::append(const PhotoOpener::Batch &batch)
{
    QList<Photo> photos;
    photos.reserve(batch.photos.size());
    for (const PlacedPhoto &placed : batch.photos) {
        check(placed.photo);
        photos += placed.photo;
    }
    if (batch.use == PhotoOpener::Use::Initial)
        return model_->append(photos);
    if (batch.use != PhotoOpener::Use::Added)
        return appendOfList(batch);
    if (batch.isFirst)
        Q_EMIT actBegins();
    act(add_, [&] { model_->add(photos, batch.isFirst); });
}

void PhotoPane::askPassword(const QString &path, bool isRefused)
{
    auto *prompt = new PasswordPrompt(path, isRefused, window());
    connect(prompt, &QDialog::finished, opener_, [opener = opener_, prompt](int result) {
        result == QDialog::Accepted ? opener->unlock(prompt->password()) : opener->leaveOut();
    });
    prompt->open();
}

QString PhotoPane::failureText(const QStringList &sentences)
{
    constexpr int most = 3;
    QStringList lines = sentences.first(qMin<qsizetype>(most, sentences.size()));
    if (const auto others = static_cast<int>(sentences.size() - lines.size()); others > 0)
        lines += tr("%n more file(s) cannot be printed.", nullptr, others);
    return lines.join(u'\n');
}

void PhotoPane::browse()
{
    const PlacedPhoto *current = model_->currentPhoto();
    const QString folder = current ? QFileInfo(current->photo.path()).path() : QString();
    const QString filters = tr("Photos and documents") + QLatin1String(" (*);;") + tr("PDF documents") +
                            QLatin1String(" (*.pdf *.PDF)");
    const QStringList paths =
        QFileDialog::getOpenFileNames(this, tr("Add Photos or Documents"), folder, filters);
    if (!paths.isEmpty())
        addFiles(paths);
}

void PhotoPane::dragEnterEvent(QDragEnterEvent *event)
{
    if (!droppedFiles(*event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void PhotoPane::dropEvent(QDropEvent *event)
{
    const QStringList paths = droppedFiles(*event->mimeData());
    if (paths.isEmpty())
        return;
    event->acceptProposedAction();
    addFiles(paths);
}

} // namespace printdialog
