// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "pdekit_export.h"

#include <QtCore/QString>

#include <memory>

namespace pdekit {

class Bundle;

/// A modal alert with one button.
struct Alert
{
    QString message;
    QString information;
    QString button;
};

/// Output to the user outside a panel's own controls. One instance serves the process; a program or a test
/// may install its own.
class PDEKIT_EXPORT Feedback
{
public:
    virtual ~Feedback();

    virtual void beep() = 0;
    /// Shows the alert and returns when the user has dismissed it.
    virtual void alert(const Alert &alert) = 0;
    /// Opens the start page of the help book `name` in the resources of `bundle`. False: it cannot be opened.
    virtual bool openHelpBook(const Bundle &bundle, const QString &name) = 0;

    /// The current instance; DesktopFeedback unless another was installed.
    static Feedback &current();
    /// Installs `feedback` (null: DesktopFeedback), and returns the previous one.
    static std::shared_ptr<Feedback> install(std::shared_ptr<Feedback> feedback);
};

} // namespace pdekit
