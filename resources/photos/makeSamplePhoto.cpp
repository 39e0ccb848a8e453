// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

// Draws the sample photo: a quiet landscape over a test chart, 6 x 4 inches at 300 dpi. It is stored turned,
// with EXIF orientation 6, so that it also shows who forgets to turn it back.

#include "ExifJpeg.h"
#include "Landscape.h"

#include <array>
#include <cmath>
#include <cstdio>

#include <QtCore/QSaveFile>
#include <QtGui/QGuiApplication>
#include <QtGui/QImage>
#include <QtGui/QPainter>

using namespace Qt::StringLiterals;

namespace {

constexpr int imageWidth = 1800;
constexpr int imageHeight = 1200;
constexpr int sceneHeight = 800;

void drawTitle(QPainter &painter)
{
    QFont font(u"DejaVu Sans"_s);
    font.setPixelSize(58);
    font.setWeight(QFont::ExtraLight);
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(QPointF(70, 122), u"Corvel sample photo"_s);
    font.setPixelSize(22);
    font.setWeight(QFont::Normal);
    painter.setFont(font);
    painter.setPen(QColor(255, 255, 255, 200));
    painter.drawText(QPointF(74, 164), u"6 × 4 in · 300 dpi · sRGB"_s);
}

void drawRamps(QPainter &painter, const QRectF &area)
{
    constexpr int steps = 21;
    const double height = (area.height() - 4 * 12) / 5;
    for (int step = 0; step < steps; ++step) {
        const int level = 255 * step / (steps - 1);
        const double left = std::round(area.left() + area.width() * step / steps);
        const double right = std::round(area.left() + area.width() * (step + 1) / steps);
        painter.fillRect(QRectF(left, area.top(), right - left, height), QColor(level, level, level));
    }
    double top = area.top() + height + 12;
    for (const QColor &middle :
         {QColor(128, 128, 128), QColor(230, 0, 18), QColor(0, 150, 60), QColor(0, 70, 200)}) {
        QLinearGradient ramp(area.topLeft(), area.topRight());
        ramp.setStops({{0, Qt::black}, {0.5, middle}, {1, Qt::white}});
        painter.fillRect(QRectF(area.left(), top, area.width(), height), ramp);
        top += height + 12;
    }
}

void drawStar(QPainter &painter, const QRectF &area)
{
    constexpr int spokes = 48;
    painter.setBrush(Qt::white);
    painter.drawEllipse(area);
    painter.setBrush(Qt::black);
    for (int spoke = 0; spoke < spokes; ++spoke)
        painter.drawPie(area, 16 * 360 * spoke / spokes, 16 * 180 / spokes);
}

/// Pairs of black and white lines, 1 to 4 pixels wide, upright on the left and level on the right.
void drawLinePairs(QPainter &painter, QRect area)
{
    const int size = (area.height() - 3 * 12) / 4;
    painter.setRenderHint(QPainter::Antialiasing, false);
    for (int width = 1; width <= 4; ++width) {
        const QRect upright(area.left(), area.top() + (width - 1) * (size + 12), size, size);
        const QRect level = upright.translated(size + 12, 0);
        painter.fillRect(upright, Qt::white);
        painter.fillRect(level, Qt::white);
        for (int at = 0; at + width <= size; at += 2 * width) {
            painter.fillRect(upright.left() + at, upright.top(), width, size, Qt::black);
            painter.fillRect(level.left(), level.top() + at, size, width, Qt::black);
        }
    }
    painter.setRenderHint(QPainter::Antialiasing);
}

void drawPatches(QPainter &painter, const QRectF &area)
{
    const std::array<QColor, 6> saturated{QColor(228, 0, 20),  QColor(255, 196, 0), QColor(0, 158, 62),
                                          QColor(0, 166, 214), QColor(24, 60, 190), QColor(206, 0, 120)};
    const std::array<QColor, 6> skin{QColor(250, 222, 204), QColor(236, 190, 160), QColor(214, 160, 122),
                                     QColor(176, 118, 82),  QColor(128, 80, 54),   QColor(82, 50, 36)};
    const double size = (area.width() - 2 * 14) / 3;
    const double rowHeight = (area.height() - 3 * 14) / 4;
    for (std::size_t i = 0; i < saturated.size(); ++i) {
        const std::size_t column = i % 3;
        const std::size_t row = i / 3;
        const QRectF patch(area.left() + double(column) * (size + 14),
                           area.top() + double(row) * (rowHeight + 14), size, rowHeight);
        painter.setBrush(saturated[i]);
        painter.drawRoundedRect(patch, 8, 8);
        const QPointF middle = patch.translated(0, 2 * (rowHeight + 14)).center();
        const double radius = rowHeight / 2 + 4;
        QRadialGradient light(middle, radius, middle - QPointF(radius, radius) * 0.4);
        light.setStops({{0, skin[i].lighter(118)}, {0.45, skin[i]}, {1, skin[i].darker(175)}});
        painter.setBrush(light);
        painter.drawEllipse(middle, radius, radius);
    }
}

void drawChart(QPainter &painter)
{
    painter.fillRect(0, sceneHeight, imageWidth, imageHeight - sceneHeight, QColor(242, 241, 238));
    painter.setPen(Qt::NoPen);
    drawRamps(painter, QRectF(70, 860, 640, 270));
    drawStar(painter, QRectF(760, 860, 270, 270));
    drawLinePairs(painter, QRect(1080, 860, 130, 270));
    drawPatches(painter, QRectF(1270, 860, 460, 270));
}

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 2) {
        std::fputs("Usage: makeSamplePhoto FILE.jpg\n", stderr);
        return 2;
    }
    QImage image(imageWidth, imageHeight, QImage::Format_RGB32);
    drawLandscape(image, sceneHeight);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    drawTitle(painter);
    drawChart(painter);
    painter.end();

    const QByteArray jpeg = turnedJpeg(image);
    QSaveFile file(arguments[1]);
    if (jpeg.isEmpty() || !file.open(QIODevice::WriteOnly) || file.write(jpeg) != jpeg.size() ||
        !file.commit()) {
        std::fprintf(stderr, "The sample photo could not be written to %s: %s.\n", qPrintable(arguments[1]),
                     qPrintable(jpeg.isEmpty() ? u"this Qt writes no JPEG"_s : file.errorString()));
        return 1;
    }
    return 0;
}
