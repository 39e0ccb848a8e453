// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "OpenedDialog.h"

#include <QtCore/QObject>
#include <QtCore/QTemporaryDir>

#include <memory>

Q_DECLARE_METATYPE(printdialog::PanelMode)

/// The dialog with the plug-in from its bundle and the built-in printer, driven as a user drives it.
class PrintDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data();
    void init();
    void printsWhatTheUserChose();
    void damagedPhoto();
    void conflicts();
    void returnBelongsToTheField();
    void printsByKeyFromAnywhere();
    void pagesTurnFromAnywhere();
    void openingOptionsAreShown();
    void photosThatCannotBeOpenedAreNamed();
    void pageSize();
    void summaryFollowsTheJob();
    void summaryOfSeveralPhotos();
    void help();
    void tabOrderAndNames();
    void wholeFlowByKeyboard();
    void panelIsToldOnceThatItIsShown();
    void missingFormDisablesOnePanel();
    void missingBundle();
    void escapeClosesOneThing();
    void cancelLeavesNothing();

private:
    std::shared_ptr<testing_support::RecordingFeedback> feedback_;
    std::unique_ptr<QTemporaryDir> config_;
};
