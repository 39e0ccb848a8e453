// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ProgramDocument.h"
#include "Result.h"

#include <chrono>
#include <functional>
#include <map>
#include <optional>

namespace printdialog {

/// A job that waits for its document.
struct PreparedJob
{
    PreparedPrint print;
    QString title = {}; ///< The document's, as the program gave it then.
};

enum class TokenFault {
    Unknown, ///< Never given out, used before, or too old.
    Foreign, ///< Given out to another program.
};

/// The jobs that programs have prepared, by the tokens that they were given. A token is a random number, for
/// one program and one document, and lives for a limited time. The caller on the bus is the portal's front
/// end for all programs: only the id that it reports tells them apart.
class PreparedJobs
{
public:
    using Time = std::chrono::steady_clock::time_point;
    using Clock = std::function<Time()>;

    static constexpr std::chrono::minutes lifetime{15};
    static constexpr std::size_t mostOfProgram = 16; ///< The oldest one goes first.
    static constexpr std::size_t most = 256;

    explicit PreparedJobs(const Clock &now = std::chrono::steady_clock::now)
        : now_(now)
    {
    }

    /// Returns the token, which is never 0.
    quint32 add(const QString &program, const PreparedJob &job);
    /// Hands the job over; the token is then used up. A foreign token stays its program's.
    Result<PreparedJob, TokenFault> take(quint32 token, const QString &program);
    /// When the last of them is too old; nothing when there is none.
    std::optional<Time> end();

private:
    struct Entry
    {
        QString program;
        PreparedJob job;
        Time end;
    };
    using Entries = std::map<quint32, Entry>;

    void dropOld();
    void dropOldest(const std::optional<QString> &program, std::size_t mostKept);

    Clock now_;
    Entries entries_;
};

} // namespace printdialog
