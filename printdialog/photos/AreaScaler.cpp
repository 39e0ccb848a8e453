// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "AreaScaler.h"

#include <algorithm>
#include <cmath>

namespace printdialog {

AreaScaler::AreaScaler(const QSizeF &picture, const ScaledPart &wanted, int components)
    : image_(wanted.part.size(), components == 1 ? QImage::Format_Grayscale8 : QImage::Format_RGB888)
    , row_(static_cast<std::size_t>(wanted.part.width() * components))
    , sums_(row_.size())
    , components_(components)
{
    const double across = picture.width() / wanted.whole.width();
    const double down = picture.height() / wanted.whole.height();
    share_ = static_cast<float>(1 / (across * down));
    const QRect &part = wanted.part;
    needed_.setCoords(static_cast<int>(part.x() * across), static_cast<int>(part.y() * down), 0, 0);
    for (int x = part.left(); x <= part.right(); ++x)
        columns_.push_back(span(x * across, (x + 1) * across, needed_.left()));
    for (int y = part.top(); y <= part.bottom(); ++y)
        rows_.push_back(span(y * down, (y + 1) * down, needed_.top()));
    needed_.setSize(QSize(columns_.back().last + 1, rows_.back().last + 1));
}

AreaScaler::Span AreaScaler::span(double from, double to, int origin)
{
    constexpr double rounding = 1e-6; // which must not add a pixel
    const int first = static_cast<int>(from + rounding);
    const int last = std::max(first, static_cast<int>(std::ceil(to - rounding)) - 1);
    Span span{first - origin, last - origin, static_cast<float>(std::min(to, first + 1.0) - from),
              static_cast<float>(to - last)};
    if (first == last)
        span.ofLast = 0; // counted once
    return span;
}

void AreaScaler::addRow(const unsigned char *row)
{
    float *out = row_.data();
    for (const Span &span : columns_) {
        const unsigned char *first = row + std::ptrdiff_t(span.first) * components_;
        const unsigned char *last = row + std::ptrdiff_t(span.last) * components_;
        for (int i = 0; i < components_; ++i, ++first, ++last) {
            int whole = 0;
            for (const unsigned char *pixel = first + components_; pixel < last; pixel += components_)
                whole += *pixel;
            *out++ = static_cast<float>(*first) * span.ofFirst + static_cast<float>(*last) * span.ofLast +
                     static_cast<float>(whole);
        }
    }
    while (out_ < image_.height()) {
        const Span &span = rows_[static_cast<std::size_t>(out_)];
        if (y_ < span.first)
            break;
        add(row_, y_ == span.first ? span.ofFirst : y_ == span.last ? span.ofLast : 1);
        if (y_ < span.last)
            break;
        finishRow();
    }
    ++y_;
}

void AreaScaler::add(const std::vector<float> &row, float weight)
{
    for (std::size_t i = 0; i < row.size(); ++i)
        sums_[i] += row[i] * weight;
}

void AreaScaler::finishRow()
{
    unsigned char *out = image_.scanLine(out_++);
    for (float &sum : sums_) {
        *out++ = static_cast<unsigned char>(std::min(sum * share_ + 0.5F, 255.0F));
        sum = 0;
    }
}

} // namespace printdialog
