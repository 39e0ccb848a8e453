// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QByteArrayList>

namespace printdialog {

class PpdDocument;

/// On what terms a queue takes jobs.
struct QueueTerms
{
    bool hasPpd = true;         ///< Without one a job is the photo's own file, without any option.
    QByteArray ppd;             ///< The PPD that the options are chosen from; empty without one.
    QByteArrayList directTypes; ///< What the printer itself gets as it is, see typesTakenAsTheyAre().

    static QueueTerms ofPpd(const PpdDocument &ppd);
    static QueueTerms withoutPpd() { return {false, {}, {}}; }
};

} // namespace printdialog
