// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "CommandLine.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>

#include <optional>

// The parts of CommandLine.

namespace printdialog {

inline QString latin1(const char *text)
{
    return QString::fromLatin1(text);
}

struct CommandLineText
{
    Q_DECLARE_TR_FUNCTIONS(CommandLine)
};

/// Why a command line is wrong; nothing while it is right.
using UsageFailure = std::optional<Failure<UsageFault>>;

inline Failure<UsageFault> usageFault(UsageFault reason, const QString &text)
{
    return {reason, text, {}};
}

/// The option's name, without its dashes.
inline QString portalOption(PortalUse use)
{
    return use == PortalUse::Start ? QStringLiteral("use-for-all-programs")
                                   : QStringLiteral("stop-using-for-all-programs");
}

/// Every option with its value's name.
void addCommandLineOptions(QCommandLineParser &parser);
/// What the options and arguments say, with commandLineContradiction().
UsageFailure readCommandLineValues(const QCommandLineParser &parser, CommandLine &line);
/// Options that do not go together, and what is missing.
UsageFailure commandLineContradiction(const CommandLine &line);

} // namespace printdialog
