// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "pdekit_export.h"

#include <QtCore/QtGlobal>

#include <functional>

class QObject;
class QWidget;

namespace pdekit {

/// What a program does about an exception that a panel has thrown while it dealt with an event for
/// `receiver`, a control of its view mostly. It is called inside the catch clause. False: it knows of no such
/// panel.
using FailureHandler = std::function<bool(const QObject *receiver)>;

/// Puts `handler` in place (empty: none), and answers the one before it. Main thread only.
PDEKIT_EXPORT FailureHandler setFailureHandler(FailureHandler handler);

/// Offers the exception that is being caught to the handler. False: there is none, or it does not deal with
/// it.
PDEKIT_EXPORT bool handleFailure(const QObject *receiver);

/// What the user's act that is being dealt with was on, the innermost one: a control; null outside of acts.
/// For a dialog that is asked by a panel and answers beside the control.
PDEKIT_EXPORT QWidget *actingControl();

/// Makes a control the acting one, until it goes.
class PDEKIT_EXPORT ActingControl
{
public:
    explicit ActingControl(QObject *control);
    ~ActingControl();
    Q_DISABLE_COPY_MOVE(ActingControl)

private:
    QWidget *outer_;
};

/// Runs `action`, which deals with an event for `receiver`. What it throws goes to the handler, and on to the
/// caller only where that does not deal with it: Qt's event loop lets no exception through.
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
