// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QStringList>

#include <cups/cups.h>

#include <memory>

namespace printdialog {

struct IppDeleter
{
    void operator()(ipp_t *message) const { ippDelete(message); }
};
using IppPointer = std::unique_ptr<ipp_t, IppDeleter>;

/// Creates a request with the attributes that every request about a printer or job begins with.
/// @param uri of the queue, or of the server ("ipp://localhost/")
IppPointer ippRequest(ipp_op_t operation, const QByteArray &uri);

/// The most values of an attribute that are read; a server may send any number.
constexpr int mostValues = 100;

/// The values of an attribute as texts, unchanged; empty when there is no such attribute. At most mostValues.
QStringList textsOf(ipp_t *answer, const char *attribute);

/// The first value, byte for byte; empty when there is none.
QByteArray textOf(ipp_t *answer, const char *attribute);

} // namespace printdialog
