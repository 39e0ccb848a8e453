// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "CustomChoice.h"

#include <QtWidgets/QWidget>

#include <array>
#include <optional>

class QLabel;
class QLineEdit;

namespace printdialog {

/// The width and the height of a page that is not listed, with the range that is possible. A length within
/// the range applies while it is typed. A field that is left with anything else shows its last length again.
class CustomPageFields : public QWidget
{
    Q_OBJECT

public:
    explicit CustomPageFields(QWidget *parent = nullptr);

    /// Nothing: no custom page is possible.
    void setRange(const std::optional<CustomPageRange> &range);
    /// The size of this sheet, or the nearest in the range, as the fields show it; in points.
    QSizeF nearest(const QSizeF &points) const;
    /// Shows the custom page's size, in points. What is being typed stays as long as it stands for the same.
    void showSize(const QSizeF &points);
    /// Puts the focus into the first field.
    void begin();
    /// Ends what is being typed. False when it is not possible; refused() then says so.
    bool finish();

    const std::array<QLineEdit *, 2> &fields() const { return fields_; }

Q_SIGNALS:
    /// The user has typed a size that is in the range, in points.
    void sizeTyped(const QSizeF &points, QLineEdit *field);
    /// The field was left with a text that is not a length in the range. `text` is a sentence for people.
    void refused(const QString &text, QLineEdit *field);

private:
    enum Side { Width, Height };

    void apply(Side side);
    bool applyAtEnd(Side side);
    double length(Side side) const;
    std::optional<double> typed(Side side) const;

    std::array<CustomParameter, 2> parameters_;
    std::array<QLineEdit *, 2> fields_ = {};
    QLabel *unit_;
    QLabel *rangeText_;
    QSizeF points_; ///< as last shown or typed
};

} // namespace printdialog
