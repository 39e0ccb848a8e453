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
    NotReadable,        ///< No permission, an input error, or no regular file at all.
    Empty,              ///< No byte in it.
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
    NotTried,           ///< It could not be found out whether libcups survives it.
};

/// What a PPD may hold at most. Far above every real one, and low enough that libcups, which searches some of
/// its lists from the start for each new entry, opens a file at the limit within seconds.
struct PpdLimits
{
    static constexpr qsizetype bytes = qsizetype(32) << 20;
    static constexpr qsizetype lineBytes = 4096;        ///< Of a line outside quotes.
    static constexpr qsizetype entryBytes = 250'000;    ///< Of an entry with its quoted value.
    static constexpr qsizetype readableLineBytes = 255; ///< libcups gives up at a line that is longer.
    static constexpr qsizetype keywordBytes = 40;       ///< PPD_MAX_NAME without its final NUL.
    static constexpr int options = 2'000;
    static constexpr int groups = 2'000;
    static constexpr int choices = 200'000;
    static constexpr int pageSizes = 4'000;
    static constexpr int customParameters = 4'000;
    static constexpr int constraints = 20'000;
    static constexpr qint64 constraintCost =
        50'000'000;                              ///< Sum of the choices of the options that they name.
    static constexpr int otherEntries = 100'000; ///< Beside options; as many again for each language.
    static constexpr int notes = 50;
};

/// A PPD that passed.
struct PpdInspection
{
    QByteArray bytes; ///< What libcups may parse: the same lines, the dropped ones empty, the last one ended.
    QStringList
        notes; ///< One sentence for each thing that was dropped, at most PpdLimits::notes and a last one.
};

/// Looks at an untrusted PPD before libcups does, without libcups, in time linear in its size. Refuses what
/// is no PPD, ends within a quoted value or is too much; drops a single bad line (a choice whose keyword is
/// not printable ASCII or is too long) with a note, so that an odd PPD keeps its queue. `name` is what people
/// call the PPD: a file, a queue. Reentrant. Rules: Adobe's PPD specification 4.3 as far as libcups keeps it.
Result<PpdInspection, PpdFault> inspectPpd(const QByteArray &data, const QString &name);

} // namespace printdialog
