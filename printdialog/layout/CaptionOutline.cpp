// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "CaptionOutline.h"

#include <QtGui/QFont>
#include <QtGui/QFontMetricsF>

namespace printdialog {

QPainterPath captionOutline(const QStringList &lines, const QRectF &area)
{
    QPainterPath outline;
    if (lines.isEmpty() || area.isEmpty())
        return outline;
    // Laid out large and scaled down, so that whole pixels do not matter.
    constexpr int layoutHeight = 100;
    constexpr double lineHeight = 1.35; // of the letters' size
    QFont font(QStringLiteral("Sans Serif"));
    font.setStyleHint(QFont::SansSerif);
    font.setPixelSize(layoutHeight);
    font.setHintingPreference(QFont::PreferNoHinting);
    const QFontMetricsF metrics(font);
    const double height = area.height() / static_cast<double>(lines.size());
    const double scale = height / lineHeight / layoutHeight;
    for (qsizetype i = 0; i < lines.size(); ++i) {
        const QString line = metrics.elidedText(lines.at(i), Qt::ElideMiddle, area.width() / scale);
        const double middle = area.top() + (static_cast<double>(i) + 0.5) * height;
        QPainterPath letters;
        letters.addText(0, 0, font, line);
        const double width = metrics.horizontalAdvance(line) * scale;
        const double baseline = middle + (metrics.ascent() - metrics.descent()) / 2 * scale;
        outline.addPath(QTransform(scale, 0, 0, scale, area.center().x() - width / 2, baseline).map(letters));
    }
    outline.setFillRule(Qt::WindingFill);
    return outline;
}

} // namespace printdialog
