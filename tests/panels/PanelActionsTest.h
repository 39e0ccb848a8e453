// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QObject>

/// What the user does to the controls, in both modes: the widgets get real events.
class PanelActionsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data();
    void typing_data();
    void typing();
    void returnEndsEditingThenActs_data();
    void returnEndsEditingThenActs();
    void leavingTheField();
    void movingTheSlider();
    void enablerAndDefaultsButton();
    void refusal();
    void numbersOutOfRange_data();
    void numbersOutOfRange();
    void choiceOrKeyMissing();
    void choiceOfTheProgram();
    void radioGroup();
    void mixedEnablerIsTrue();
    void sendersThatAreNoControls();
};
