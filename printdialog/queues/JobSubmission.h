// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "QueueFault.h"

#include <QtCore/QByteArray>
#include <QtCore/QMap>
#include <QtCore/QString>

#include <chrono>

namespace printdialog {

/// What is printed: a file, or bytes at hand.
struct SubmittedDocument
{
    QString path;        ///< Read while it is sent; empty: data is sent instead.
    QByteArray data;     ///< Sent byte for byte.
    QByteArray mimeType; ///< For example "image/jpeg"; the server chooses its filters by it.
    QString name;        ///< The document's name as the server shows it.
};

/// Sends one document as a job of its own and returns the job's id. Blocks until the server has taken all of
/// it: for a worker, or the command line. A job that cannot be finished is cancelled.
///
/// Every option goes out exactly as given, and nothing else but the number of copies. An option whose keyword
/// or value could be read as something else by the server (control characters above all) is refused before
/// anything is sent; titles and names are cleaned. Failures: NoServer, NotFound, NotAccepting, Refused,
/// TimedOut, Failed.
/// @param queue a queue's id
/// @param options keyword to choice, both as in the PPD; not "copies"
/// @param patience how long the server may be silent at each step
Result<int, QueueFault> submitJob(const QString &queue, const QString &title,
                                  const SubmittedDocument &document, const QMap<QString, QString> &options,
                                  int copies, std::chrono::milliseconds patience = std::chrono::seconds(30));

} // namespace printdialog
