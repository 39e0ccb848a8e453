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

/// What reaches the user outside of a panel's own controls. One instance serves the process; a program or a
/// test puts its own in place.
class PDEKIT_EXPORT Feedback
{
public:
    virtual ~Feedback();

    virtual void beep() = 0;
    /// Shows the alert and comes back when the user has dismissed it.
    virtual void alert(const Alert &alert) = 0;
    /// Opens the start page of the help book `name` in the resources of `bundle`. False: it cannot be opened.
    virtual bool openHelpBook(const Bundle &bundle, const QString &name) = 0;

    /// The instance in place; the desktop's own unless another was installed.
    static Feedback &current();
    /// Puts `feedback` in place (null: the desktop's own), and answers the one before it.
    static std::shared_ptr<Feedback> install(std::shared_ptr<Feedback> feedback);
};

} // namespace pdekit
