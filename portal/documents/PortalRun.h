// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QObject>

namespace printdialog {

/// A program's document on its way to the printer. Its destructor stops following, and cancels what is being
/// sent.
class PortalRun : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Stops following the job as soon as everything is sent.
    virtual void leave() = 0;

Q_SIGNALS:
    /// @param trouble sentences for people about what is not printed; empty when everything is
    void finished(const QString &trouble);
};

} // namespace printdialog
