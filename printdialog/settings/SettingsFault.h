// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Result.h"

#include <optional>

namespace printdialog {

/// Why settings or presets could not be kept, or read.
enum class SettingsFault {
    NotReadable, ///< the file is there and cannot be read, or is too large to be one of these
    NotWritable, ///< the folder cannot be made, or the file cannot be written or put in place
    Busy,        ///< another program keeps the file locked
    BadName,     ///< no preset can have this name
    NameTaken,   ///< there is a preset of this name
    NotThere,    ///< there is no preset of this name
    ReadOnly,    ///< the preset is the system's, not the user's
    TooLong,     ///< CUPS could not read the preset's line
};

/// Nothing when it went well.
using SettingsFailure = std::optional<Failure<SettingsFault>>;

} // namespace printdialog
