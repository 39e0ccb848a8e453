// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "pdekit_export.h"

#include <QtCore/QtGlobal>

#include <functional>

class QObject;
class QWidget;

namespace pdekit {

/// A program's handler for an exception that a panel has thrown while handling an event for `receiver`,
/// mostly a control of its view. Called inside the catch clause. False: it knows no such panel.
using FailureHandler = std::function<bool(const QObject *receiver)>;

/// Installs `handler` (empty: none), and returns the previous one. Main thread only.
PDEKIT_EXPORT FailureHandler setFailureHandler(FailureHandler handler);

/// Passes the exception being caught to the handler. False: there is no handler, or it does not handle it.
PDEKIT_EXPORT bool handleFailure(const QObject *receiver);

/// The control of the user's act that is being handled, the innermost one; null outside of acts. Lets a
/// dialog that is called by a panel answer beside the control.
PDEKIT_EXPORT QWidget *actingControl();

/// Makes a control the acting one for the lifetime of this object.
class PDEKIT_EXPORT ActingControl
{
public:
    explicit ActingControl(QObject *control);
    ~ActingControl();
    Q_DISABLE_COPY_MOVE(ActingControl)

private:
    QWidget *outer_;
};

/// Runs `action`, which handles an event for `receiver`. Passes its exceptions to the handler, and rethrows
/// those not handled: Qt's event loop does not support exceptions.
template <class Action>
void guardAction(QObject *receiver, Action &&action)
{
    const ActingControl scope(receiver);
    try {
        action();
    } catch (...) {
        if (!handleFailure(receiver))
            throw;
    }
}

} // namespace pdekit
