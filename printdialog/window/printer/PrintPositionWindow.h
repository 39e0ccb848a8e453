// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QPoint>
#include <QtWidgets/QDialog>

class QDoubleSpinBox;
class QLabel;
class QPushButton;

namespace printdialog {

/// Where a printer prints on a paper: how far everything is moved, in tenths of a millimeter, and a test page
/// to measure it. What is changed applies at once, and is kept for the printer and the paper size
/// (PrintPositions). Not modal.
class PrintPositionWindow : public QDialog
{
    Q_OBJECT

public:
    explicit PrintPositionWindow(QWidget *parent);

    /// Shows the position of this printer and paper.
    /// @param paper the choice keyword of the paper size; `printerText` and `paperText` are names for people
    void setPaper(const QString &printer, const QString &printerText, const QString &paper,
                  const QString &paperText);
    /// Why no test page can be printed now; empty when it can.
    void setWhyNoTest(const QString &reason);

Q_SIGNALS:
    void testPageWanted();

private:
    QDoubleSpinBox *addField(const char *name, double least, double most, double value);
    void apply();
    void correct();
    void showFailure(const QString &sentence);
    void showPosition(const QPoint &tenths);

    QString printer_;
    QString paper_;
    QLabel *heading_;
    QDoubleSpinBox *right_;
    QDoubleSpinBox *down_;
    QPushButton *test_;
    QDoubleSpinBox *fromLeft_;
    QDoubleSpinBox *fromTop_;
    QPushButton *correct_;
    QLabel *failure_;
};

} // namespace printdialog
