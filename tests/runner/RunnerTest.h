// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QObject>

class RunnerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void record();
    void runs_data();
    void runs();
    void drains();
    void inheritsItsInput();
    void endsWithinThePause();
    void pausesAfterTheLaunch();
    void everyByteArrives();
    void offlineStopsTheBackend_data();
    void offlineStopsTheBackend();
    void interruptsEndInTime();
    void closedInputRaisesNothing();
    void backendIsLookedFor_data();
    void backendIsLookedFor();
    void refusals();
    void readsPieces();
    void leavesTheLastBackendToItself();
    void silenceAfterOneLine();
    void waitsNest_data();
    void waitsNest();
    void waitsEndWithTheirRun_data();
    void waitsEndWithTheirRun();
    void errorsWait();
    void errorsReadNothing();
    void waitsPaintAndTakeNoInput();
    void floods_data();
    void floods();
    void descriptorsRunOut_data();
    void descriptorsRunOut();
    void destroyedWhileRunning_data();
    void destroyedWhileRunning();
    void launchFails();
};
