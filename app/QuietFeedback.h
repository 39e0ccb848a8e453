// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Feedback.h"

namespace printdialog {

/// The feedback of a run without a window: no beeps, no waiting for the user. Alerts go to the system log.
class QuietFeedback final : public pdekit::Feedback
{
public:
    void beep() override;
    void alert(const pdekit::Alert &alert) override;
    bool openHelpBook(const pdekit::Bundle &bundle, const QString &name) override;
};

} // namespace printdialog
