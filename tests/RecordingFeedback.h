// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Feedback.h"

#include <QtCore/QStringList>

/// What panels do to the desktop, noted instead of done.
class RecordingFeedback : public pdekit::Feedback
{
public:
    void beep() override { ++beeps; }
    void alert(const pdekit::Alert &alert) override
    {
        alerts << alert.message + u'|' + alert.information + u'|' + alert.button;
    }
    bool openHelpBook(const pdekit::Bundle & /*bundle*/, const QString &name) override
    {
        helpBooks << name;
        return opensHelp;
    }

    int beeps = 0;
    QStringList alerts;
    QStringList helpBooks;
    bool opensHelp = true;
};
