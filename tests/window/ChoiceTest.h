// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "OpenedDialog.h"

#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QRadioButton>

Q_DECLARE_METATYPE(printdialog::PanelMode)
/// Choices in the window: refused with a way out, taken back, kept for the next time.
class ChoiceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data();
    void initTestCase();
    void init();
    void refusalIsExplainedBesideItsControl_data();
    void refusalIsExplainedBesideItsControl();
    void screenReaderIsTold();
    void calloutGoesByKeyAndByTheNextChoice();
    void offerMakesTheChoiceAndOneStep();
    void noOfferWithoutAWay();
    void refusedPageSize();
    void conflictOfTheJobIsSettled();
    void undoAndRedo();
    void oneActIsOneStep();
    void undoOfChoicesThatAllowEachOtherOnlyTogether();
    void revertIsAStep();
    void numberLeftUnfinished_data();
    void numberLeftUnfinished();
    void printingKeepsTheChoices();
    void cancelKeepsNothing();
    void keptChoicesThatConflict();

private:
    printdialog::PrintDialogSetup setup(printdialog::PanelMode mode) const;
    static QRadioButton *radio(const testing_support::OpenedDialog &opened, const QString &name)
    {
        return opened.find<QRadioButton>(name);
    }
    static void pressUndo(const testing_support::OpenedDialog &opened)
    {
        QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : opened.dialog.get(),
                        Qt::Key_Z, Qt::ControlModifier);
    }
    static void pressRedo(const testing_support::OpenedDialog &opened)
    {
        QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : opened.dialog.get(),
                        Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    }

    QTemporaryDir folder_;
    std::unique_ptr<QTemporaryDir> config_;
};
