// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "Destination.h"

namespace printdialog {

namespace {

bool isPrinterUri(const QString &name)
{
    return name.startsWith(QLatin1String("ipp://"), Qt::CaseInsensitive) ||
           name.startsWith(QLatin1String("ipps://"), Qt::CaseInsensitive);
}

} // namespace

Destination::Destination(const QString &id)
    : Destination(isPrinterUri(id) ? id : id.section(u'/', 0, 0),
                  isPrinterUri(id) ? QString() : id.section(u'/', 1))
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

bool Destination::isAddress() const
{
    return isPrinterUri(queue);
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
