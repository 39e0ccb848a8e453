// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "SheetLayout.h"

#include <QtWidgets/QWidget>

class QCheckBox;
class QComboBox;
class QLabel;
class QHBoxLayout;

namespace printdialog {

class MixedSpinBox;

/// The controls for how the photos share sheets. Those that mean nothing for a kind of layout are hidden.
class LayoutBar : public QWidget
{
    Q_OBJECT

public:
    explicit LayoutBar(QWidget *parent = nullptr);

    /// What is there to be laid out: the layouts that suit it are offered first, and those of documents only
    /// with pages.
    void setContent(bool hasPhotos, bool hasPages);
    /// Whether only the kind of layout is shown, and its numbers.
    void setCompact(bool isCompact);
    /// Shows the layout; no signal is emitted.
    void showLayout(const SheetLayout &layout);
    /// Fields in which more than one event belongs to an act of the user's.
    QList<QWidget *> fields() const;

Q_SIGNALS:
    /// The user has chosen.
    void layoutChosen(const printdialog::SheetLayout &layout, QWidget *control);

private:
    void connectControls();
    void fillKinds();
    void chooseKind();

    QComboBox *kind_;
    MixedSpinBox *rows_;
    MixedSpinBox *columns_;
    MixedSpinBox *stripPhotos_;
    QComboBox *caption_;
    QCheckBox *repeats_;
    MixedSpinBox *gap_;
    QCheckBox *marks_;
    SheetLayout layout_;
    bool hasPhotos_ = true;
    bool hasPages_ = false;
    bool isCompact_ = false;
};

} // namespace printdialog
