// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "BackendRun.h"

// What comes of each pass of the event loop is a script: '.': silence; 'e': an error event, which begins a
// wait; 'E': the command ends.

/// The waits as they would be with a stack that has no end.
struct NestedWaits
{
    QByteArray script = {};
    int passes = 0;
    QList<int> interrupts = {}; ///< after which pass
    bool hasEnded = false;

    void wait()
    {
        for (int pass = 0; pass < 11; ++pass) {
            if (hasEnded)
                return;
            const char outcome = script[passes++];
            hasEnded = outcome == 'E';
            if (outcome == 'e')
                wait();
        }
        if (!hasEnded)
            interrupts << passes << passes;
    }
};

/// The real ones.
class ScriptedPanel : public RunnerPanel
{
public:
    explicit ScriptedPanel(const QByteArray &script)
        : script_(script)
    {
        waitForCommandCompletion_ = true;
    }

    QList<int> interrupts;

protected:
    bool runEventLoopOnce() override
    {
        const char outcome = script_[passes++];
        waitForCommandCompletion_ = outcome != 'E';
        if (outcome == 'e')
            streamERRHandleEvent(nullptr, pdekit::StreamEventErrorOccurred);
        return true;
    }
    void interruptBackend() override { interrupts << passes; }

private:
    QByteArray script_;
};
