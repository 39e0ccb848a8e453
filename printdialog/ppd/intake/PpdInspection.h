// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Result.h"

#include <QtCore/QByteArray>
#include <QtCore/QStringList>

namespace printdialog {

/// Why a PPD is not used.
enum class PpdFault {
    NotFound,           ///< There is no such file.
    NotReadable,        ///< No permission, an input error, or not a regular file.
    Empty,              ///< Zero bytes.
    TooLarge,           ///< More than 32 MiB.
    NotAPpd,            ///< Something else: another kind of text, an archive, binary data.
    CutOff,             ///< The end is missing.
    TooManyOptions,     ///< More options or groups than any printer has.
    TooManyChoices,     ///< More choices or page sizes than any printer has.
    TooManyConstraints, ///< More constraints, or costlier ones, than any printer has.
    BadKeyword,         ///< An option's keyword that cannot be sent to a printer.
    Malformed,          ///< Breaks the rules of the format in another way.
    NoPageSize,         ///< No page size that can be printed on.
    Harmful,            ///< libcups crashes over it, or never ends.
    NotTried,           ///< It could not be checked whether libcups survives it.
};

/// The limits for a PPD. Far above every real one, and low enough that libcups opens a file at the limits
/// within seconds, although it searches some of its lists from the start for each new entry.
struct PpdLimits
{
    static constexpr qsizetype bytes = qsizetype(32) << 20;
    static constexpr qsizetype lineBytes = 4096;        ///< In a line outside quotes.
    static constexpr qsizetype entryBytes = 250'000;    ///< In an entry with its quoted value.
    static constexpr qsizetype readableLineBytes = 255; ///< libcups fails on a longer line.
    static constexpr qsizetype keywordBytes = 40;       ///< PPD_MAX_NAME without its final NUL.
    static constexpr int options = 2'000;
    static constexpr int groups = 2'000;
    static constexpr int choices = 200'000;
    static constexpr int pageSizes = 4'000;
    static constexpr int customParameters = 4'000;
    static constexpr int constraints = 20'000;
    /// The sum of the choices of the options that the constraints name.
    static constexpr qint64 constraintCost = 50'000'000;
    static constexpr int otherEntries = 100'000; ///< Other than options; also the limit for each language.
    static constexpr int notes = 50;
};

/// A PPD that passed the inspection.
struct PpdInspection
{
    /// What libcups may parse: the same lines, the dropped ones empty, the last one ended, page sizes if it
    /// has none.
    QByteArray bytes;
    /// A sentence for each part that was dropped, at most PpdLimits::notes, then one for the rest.
    QStringList notes;
};

/// Inspects an untrusted PPD before libcups sees it, in time linear in its size. Refuses data that is not a
/// PPD or exceeds a limit; otherwise what libcups accepts is accepted. Drops a single bad line (a choice
/// whose keyword is not printable ASCII or is too long) with a note, so that a queue with an odd PPD stays
/// usable, and closes what never closes. A PPD without page sizes gets A4 and Letter, the usual one of the
/// locale as the default. `name` is the PPD's name for people: a file or a queue. Reentrant. Rules: Adobe's
/// PPD 4.3 as far as libcups follows it.
Result<PpdInspection, PpdFault> inspectPpd(const QByteArray &data, const QString &name);

} // namespace printdialog
