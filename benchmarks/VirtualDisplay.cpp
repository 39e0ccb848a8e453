// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "VirtualDisplay.h"

VirtualDisplay::VirtualDisplay(const QSize &pixels)
{
    server_.start(QStringLiteral("Xvfb"),
                  {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                   QStringLiteral("0"), QStringLiteral("%1x%2x24").arg(pixels.width()).arg(pixels.height()),
                   QStringLiteral("-nolisten"), QStringLiteral("tcp")});
    if (server_.waitForReadyRead(10000))
        name_ = QLatin1Char(':') + QString::fromLatin1(server_.readLine().trimmed());
}

VirtualDisplay::~VirtualDisplay()
{
    server_.terminate();
    server_.waitForFinished();
}

std::optional<QProcessEnvironment> VirtualDisplay::environment() const
{
    if (name_.isEmpty())
        return std::nullopt;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DISPLAY"), name_);
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    environment.insert(QStringLiteral("GDK_BACKEND"), QStringLiteral("x11"));
    return environment;
}
