// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PreviewWidget.h"

#include "PhotoPlacement.h"

#include <QtCore/QPointer>
#include <QtCore/QThreadPool>
#include <QtGui/QPainter>

#include <algorithm>

namespace printdialog {

namespace {

constexpr int margin = 16;
constexpr QSize decodedBound(1600, 1600);

} // namespace

PreviewWidget::PreviewWidget(QWidget *parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void PreviewWidget::setPhoto(const Photo &photo)
{
    photo_ = photo;
    image_ = {};
    isUnreadable_ = false;
    const quint64 number = ++number_;
    setAccessibleName(tr("Preview of %1").arg(photo.fileName()));
    update();
    QThreadPool::globalInstance()->start([photo, number, self = QPointer<PreviewWidget>(this)] {
        const QImage image = photo.preview(decodedBound);
        QMetaObject::invokeMethod(qApp, [self, number, image] {
            if (self)
                self->take(number, image);
        });
    });
}

void PreviewWidget::take(quint64 number, const QImage &image)
{
    if (number != number_)
        return;
    image_ = image;
    isUnreadable_ = image.isNull();
    update();
    Q_EMIT ready();
}

void PreviewWidget::setPage(const PageGeometry &page)
{
    page_ = page;
    update();
}

QSize PreviewWidget::sizeHint() const
{
    return {360, 420};
}

QSize PreviewWidget::minimumSizeHint() const
{
    return {200, 220};
}

QString PreviewWidget::text() const
{
    if (photo_.storedSize().isEmpty())
        return tr("No photo");
    return isUnreadable_ ? tr("This photo cannot be shown") : QString();
}

void PreviewWidget::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    if (!page_.size.isEmpty())
        paintPage(painter);
    if (const QString words = text(); !words.isEmpty()) {
        painter.resetTransform();
        painter.setPen(page_.size.isEmpty() ? palette().color(QPalette::WindowText) : QColor(Qt::darkGray));
        painter.drawText(rect().adjusted(margin, margin, -margin, -margin),
                         Qt::AlignCenter | Qt::TextWordWrap, words);
    }
}

// In points from here on: one transformation stands between the page and the screen. A photo that lies on its
// side on the page is shown upright, and the page lies on its side instead.
void PreviewWidget::paintPage(QPainter &painter) const
{
    const bool hasPhoto = !image_.isNull();
    const PhotoPlacement placement =
        hasPhoto ? PhotoPlacement::fit(photo_.orientedSize(), page_) : PhotoPlacement();
    const bool isTurned = placement.quarterTurns != 0;
    const QSizeF seen = isTurned ? page_.size.transposed() : page_.size;
    const QRectF room = QRectF(rect()).adjusted(margin, margin, -margin, -margin);
    const double scale = std::min(room.width() / seen.width(), room.height() / seen.height());
    if (scale <= 0.0)
        return;
    painter.translate(room.center());
    painter.scale(scale, scale);
    if (isTurned)
        painter.rotate(-90);
    painter.translate(-page_.size.width() / 2, -page_.size.height() / 2);

    const QRectF sheet(QPointF(0, 0), page_.size);
    const double pixel = 1.0 / scale;
    for (int i = 4; i > 0; --i)
        painter.fillRect(sheet.adjusted(-i * pixel, -i * pixel, i * pixel, (i + 2) * pixel),
                         QColor(0, 0, 0, 18));
    painter.fillRect(sheet, Qt::white); // paper is white in every theme

    if (!hasPhoto)
        return;
    painter.save();
    painter.setClipRect(sheet);
    painter.setTransform(placement.toPage(), true);
    painter.drawImage(QRectF(0, 0, 1, 1), image_);
    painter.restore();
    if (page_.imageable != sheet) {
        painter.setPen(QPen(QColor(120, 120, 120, 160), 0, Qt::DashLine));
        painter.drawRect(page_.imageable);
    }
}

} // namespace printdialog
