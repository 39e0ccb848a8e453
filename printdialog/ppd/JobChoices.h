// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QMap>
#include <QtCore/QString>

namespace printdialog {

class CheckedPpd;

/// Whether CUPS turns the job option, which is none of a PPD's own, into choices of the PPD: "media".
bool isMappedByCups(const QString &jobOption);

/// The choices of the PPD that CUPS makes of a job's options, where they differ from the PPD's defaults:
/// "media=iso_a4_210x297mm" is PageSize=A4. libcups decides, as it does for the filters that print a job; it
/// skips what the PPD does not have.
QMap<QString, QString> choicesOfJob(const CheckedPpd &ppd, const QMap<QString, QString> &jobOptions);

} // namespace printdialog
