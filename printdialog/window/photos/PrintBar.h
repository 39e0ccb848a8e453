// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ArrangementModel.h"

#include <QtWidgets/QWidget>

class QComboBox;
class QLineEdit;
class QPushButton;

namespace printdialog {

class CustomPageFields;
class MixedSpinBox;

/// The print of the selected photos: its size, the photo's scale on it, its border, and how many are printed.
class PrintBar : public QWidget
{
    Q_OBJECT

public:
    explicit PrintBar(QWidget *parent = nullptr);

    /// Shows what the selected photos have in common; no signal is emitted.
    void showPhotos(const ArrangementModel &photos);
    /// Whether the printer places the photos itself: then only the copies can be chosen.
    void setPlacedByPrinter(bool isPlaced);
    /// Puts the focus into the number of copies.
    void beginCopies();
    /// Ends what is being typed. False when it is not possible; refused() then says so.
    bool finish();
    /// Fields in which more than one event belongs to an act of the user's.
    QList<QWidget *> fields() const;

Q_SIGNALS:
    /// The user has chosen something for the selected photos.
    void edited(const printdialog::ArrangementModel::Edit &edit, QWidget *control);
    /// All photos are to be like the current one.
    void allWanted();
    /// A size was typed that no print can have: a sentence for people.
    void refused(const QString &text, QLineEdit *field);

private:
    void addSizes();
    void chooseSize(int index);
    void showSize(const ArrangementModel &photos);
    void showBorder(const ArrangementModel &photos);
    void chooseColor();

    QComboBox *size_;
    CustomPageFields *customSize_;
    MixedSpinBox *scale_;
    MixedSpinBox *border_;
    QPushButton *borderColor_;
    MixedSpinBox *copies_;
    QPushButton *all_;
    QColor color_ = Qt::white;
    QList<int> shownSelection_;
    QSizeF typedFrom_;      ///< The size that typing begins with, in points.
    bool isTyping_ = false; ///< A size is typed, although it may be one of the known ones.
};

} // namespace printdialog
