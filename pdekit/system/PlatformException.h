// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "pdekit_export.h"

#include <QtCore/QString>

#include <exception>

namespace pdekit {

/// The exception that the platform's services throw. A guard around a platform call catches only this class.
class PDEKIT_EXPORT PlatformException : public std::exception
{
public:
    explicit PlatformException(const QString &description)
        : description_(description)
        , utf8_(description.toUtf8())
    {
    }

    ~PlatformException() override;

    const QString &description() const { return description_; }
    const char *what() const noexcept override { return utf8_.constData(); }

private:
    QString description_;
    QByteArray utf8_;
};

} // namespace pdekit
