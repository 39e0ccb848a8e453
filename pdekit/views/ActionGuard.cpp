// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ActionGuard.h"

#include <QtWidgets/QWidget>

#include <utility>

namespace pdekit {

namespace {

FailureHandler &currentHandler()
{
    static auto *const handler = new FailureHandler; // outlives every panel
    return *handler;
}

QWidget *acting = nullptr; // used on the main thread only

} // namespace

QWidget *actingControl()
{
    return acting;
}

ActingControl::ActingControl(QObject *control)
    : outer_(std::exchange(acting, qobject_cast<QWidget *>(control)))
{
}

ActingControl::~ActingControl()
{
    acting = outer_;
}

FailureHandler setFailureHandler(FailureHandler handler)
{
    return std::exchange(currentHandler(), std::move(handler));
}

bool handleFailure(const QObject *receiver)
{
    return currentHandler() && currentHandler()(receiver);
}

} // namespace pdekit
