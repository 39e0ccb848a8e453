// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QList>
#include <QtCore/QString>

#include <chrono>
#include <optional>

namespace printdialog {

/// An estimate of the time that the rest of a run takes, from what the run has seen so far. The first sheet,
/// for which a printer warms up, and a single slow one hardly change it.
class RemainingTime
{
public:
    using Time = std::chrono::milliseconds;

    /// Sheets are done. They may have been done earlier, and be noticed together.
    /// @param sinceStart of the run
    /// @param done all that are done by now
    void note(Time sinceStart, int done);
    /// Nothing before two sheets are done.
    std::optional<Time> forSheets(int left) const;

    /// "less than a minute", "about 4 minutes", "about 2 hours"
    static QString text(Time time);

private:
    /// Sheets that were done in about one moment share the time since the moment before.
    struct Moment
    {
        Time end;
        int done;
    };

    QList<Moment> moments_;
};

} // namespace printdialog
