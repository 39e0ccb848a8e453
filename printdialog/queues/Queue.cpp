// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "Queue.h"

#include <QtCore/QCoreApplication>

namespace printdialog {

Queue Queue::builtIn()
{
    Queue queue;
    queue.name = Destination::builtIn().queue;
    queue.info = QCoreApplication::translate("Queue", "Built-in printer (files)");
    queue.state = State::Idle;
    queue.acceptsJobs = true;
    queue.isBuiltIn = true;
    return queue;
}

Queue Queue::at(const Destination &address)
{
    Queue queue;
    queue.name = address.queue;
    queue.info = address.queue;
    queue.uri = address.queue;
    queue.acceptsJobs = true;
    return queue;
}

} // namespace printdialog
