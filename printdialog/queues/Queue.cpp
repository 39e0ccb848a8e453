// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "Queue.h"

#include <QtCore/QCoreApplication>

namespace printdialog {

QString Queue::id() const
{
    return instance.isEmpty() ? name : name + u'/' + instance;
}

Queue Queue::builtIn()
{
    Queue queue;
    queue.name = QStringLiteral("built-in");
    queue.info = QCoreApplication::translate("Queue", "Built-in printer (files)");
    queue.state = State::Idle;
    queue.acceptsJobs = true;
    queue.isBuiltIn = true;
    return queue;
}

bool Queue::isBuiltInId(const QString &id)
{
    return id.section(u'/', 0, 0) == builtIn().name;
}

} // namespace printdialog
