// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "OpenedDialog.h"

/// The dialog with the plug-in from its bundle and the built-in printer, driven as a user drives it.
class PrintDialogTest : public testing_support::WindowTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data() { addModes(); }
    void printsWhatTheUserChose();
    void damagedPhoto();
    void stopsWhilePhotosAreChecked();
    void changedPhotoIsLeftOut();
    void printsAllPhotosOrNone();
    void printsByKeyFromAnywhere();
    void pagesTurnFromAnywhere();
    void openingOptionsAreShown();
    void photosThatCannotBeOpenedAreNamed();
    void summaryFollowsTheJob();
    void summaryOfSeveralPhotos();
    void help();
    void tabOrderAndNames();
    void wholeFlowByKeyboard();
    void panelIsToldOnceThatItIsShown();
    void missingFormDisablesOnePanel();
    void missingBundle();
    void escapeClosesOneThing();
};
