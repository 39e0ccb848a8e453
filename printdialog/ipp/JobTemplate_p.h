// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

namespace printdialog::job_options {

inline const QString title = QStringLiteral("job-name");
inline const QString hold = QStringLiteral("job-hold-until");
inline const QString priority = QStringLiteral("job-priority");
inline const QString sheets = QStringLiteral("job-sheets"); // as sent
inline const QStringList bothSheets = {QStringLiteral("job-sheets-start"), QStringLiteral("job-sheets-end")};
inline const QString account = QStringLiteral("job-account-id");
inline const QString accountUser = QStringLiteral("job-accounting-user-id");
inline const QString password = QStringLiteral("job-password");
inline const QString sides = QStringLiteral("sides");
inline const QString collation = QStringLiteral("multiple-document-handling");

inline const QString noSheet = QStringLiteral("none");
inline const QString noValue = QStringLiteral("None"); // of a title, an account or a password
inline const QStringList namedPriorities = {QStringLiteral("1"), QStringLiteral("50"), QStringLiteral("100")};

} // namespace printdialog::job_options
