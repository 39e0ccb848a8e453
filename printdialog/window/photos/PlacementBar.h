// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ArrangementModel.h"

#include <QtWidgets/QWidget>

class QComboBox;
class QPushButton;
class QToolButton;

namespace printdialog {

/// Turns the photo by a quarter.
void turnPhoto(PlacedPhoto &photo);

/// The first controls for the selected photos: how they are scaled, and a turn by hand; and the button that
/// opens the others.
class PlacementBar : public QWidget
{
    Q_OBJECT

public:
    explicit PlacementBar(QWidget *parent = nullptr);

    /// Shows what the selected photos have in common; no signal is emitted.
    void showPhotos(const ArrangementModel &photos);
    /// Whether the printer places the photos itself: then nothing can be chosen here, and the controls say
    /// why.
    void setPlacedByPrinter(bool isPlaced);
    /// Asks for the other controls.
    void showMore();

Q_SIGNALS:
    /// The user has chosen something for the selected photos.
    void edited(const printdialog::ArrangementModel::Edit &edit, QWidget *control);
    /// Whether the other controls are wanted.
    void moreWanted(bool areWanted);

private:
    void enable();

    QComboBox *scaling_;
    QPushButton *turn_;
    QToolButton *more_;
    QString turnHint_;
    bool hasPhotos_ = false;
    bool isPlacedByPrinter_ = false;
};

} // namespace printdialog
