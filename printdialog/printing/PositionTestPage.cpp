// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PositionTestPage.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QLocale>
#include <QtGui/QPainter>

namespace printdialog {

namespace {

struct TestPageText
{
    Q_DECLARE_TR_FUNCTIONS(PositionTestPage)
};

constexpr double dotsPerInch = 300;

} // namespace

QImage positionTestPage(const PageGeometry &page)
{
    constexpr double scale = dotsPerInch / pointsPerInch;
    QImage picture((page.imageable.size() * scale).toSize(), QImage::Format_RGB32);
    if (picture.isNull())
        return picture;
    picture.fill(Qt::white);
    constexpr double dotsPerMeter = dotsPerInch / 0.0254;
    picture.setDotsPerMeterX(qRound(dotsPerMeter));
    picture.setDotsPerMeterY(qRound(dotsPerMeter));

    QPainter painter(&picture);
    painter.scale(scale, scale);
    painter.translate(-page.imageable.topLeft());
    constexpr double line = positionLine * pointsPerMillimeter;
    const QRectF sheet(QPointF(0, 0), page.size);
    painter.setPen(QPen(Qt::black, 0.3));
    painter.drawLine(QPointF(line, page.imageable.top()), QPointF(line, page.imageable.bottom()));
    painter.drawLine(QPointF(page.imageable.left(), line), QPointF(page.imageable.right(), line));

    constexpr double textSize = 8;
    QFont font = painter.font();
    font.setPixelSize(static_cast<int>(textSize * 4));
    const auto write = [&](const QPointF &place, const QString &text) {
        painter.save();
        painter.translate(place);
        painter.scale(0.25, 0.25);
        painter.setFont(font);
        painter.drawText(QRectF(0, 0, (sheet.width() - place.x() - textSize) * 4, sheet.height() * 4),
                         Qt::TextWordWrap, text);
        painter.restore();
    };
    const QString length = QLocale().toString(positionLine, 'f', 1);
    write({line + textSize, line + textSize},
          TestPageText::tr(
              "The vertical line is %1 mm from the left edge, and the horizontal one %1 mm from the top "
              "edge, if "
              "the printer prints in its place. Measure both, and type what you measured.")
              .arg(length));
    return picture;
}

} // namespace printdialog
