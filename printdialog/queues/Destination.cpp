// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "Destination.h"

namespace printdialog {

Destination::Destination(const QString &id)
    : Destination(id.section(u'/', 0, 0), id.section(u'/', 1))
{
}

Destination::Destination(const QString &queueName, const QString &instanceName)
    : queue(queueName)
    , instance(instanceName)
{
}

QString Destination::id() const
{
    return instance.isEmpty() ? queue : queue + u'/' + instance;
}

bool Destination::isBuiltIn() const
{
    return queue == builtIn().queue;
}

Destination Destination::builtIn()
{
    return {QStringLiteral("built-in"), {}};
}

} // namespace printdialog
