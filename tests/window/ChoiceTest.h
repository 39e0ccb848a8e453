// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "OpenedDialog.h"

/// Choices in the window: refused with a way out, taken back, kept for the next time.
class ChoiceTest : public testing_support::WindowTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data() { addModes(); }
    void initTestCase();
    void refusalIsExplainedBesideItsControl_data();
    void refusalIsExplainedBesideItsControl();
    void refusalOutlastsTheRestOfItsAct();
    void screenReaderIsTold();
    void calloutGoesByKeyAndByTheNextChoice();
    void offerMakesTheChoiceAndOneStep();
    void noOfferWithoutAWay();
    void refusedPageSize();
    void conflictOfTheJobIsSettled();
    void undoAndRedo();
    void oneActIsOneStep();
    void photosStepsOutliveThePrinter();
    void undoOfChoicesThatAllowEachOtherOnlyTogether();
    void revertIsAStep();
    void numberLeftUnfinished_data();
    void numberLeftUnfinished();
    void printingKeepsTheChoices();
    void cancelKeepsNothing();
    void keptChoicesThatConflict();

private:
    printdialog::PrintDialogSetup setup() const;
    QTemporaryDir folder_;
};
