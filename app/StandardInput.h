// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QCoreApplication>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QTemporaryDir>

#include <optional>

namespace printdialog {

/// The photo or document that another program writes to the standard input, kept in a private file until this
/// object is gone.
class StandardInput
{
    Q_DECLARE_TR_FUNCTIONS(StandardInput)

public:
    /// Replaces "-" among the photos by a file with the content of the standard input, which is read to its
    /// end. Returns a sentence when that fails; nothing without "-".
    std::optional<QString> replaceIn(QStringList &photos);

private:
    std::optional<QString> spool(const QString &path);

    std::optional<QTemporaryDir> folder_;
};

} // namespace printdialog
