// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Result.h"

#include <optional>

namespace printdialog {

/// Why settings or presets could not be saved or read.
enum class SettingsFault {
    NotReadable, ///< the file exists and cannot be read, or is too large
    NotWritable, ///< the folder cannot be created, or the file cannot be written or replaced
    Busy,        ///< another program keeps the file locked
    BadName,     ///< a preset cannot have this name
    NameTaken,   ///< a preset with this name exists
    NotThere,    ///< no preset with this name exists
    ReadOnly,    ///< the preset is the system's, not the user's
    TooLong,     ///< CUPS could not read the preset's line
};

/// Nothing on success.
using SettingsFailure = std::optional<Failure<SettingsFault>>;

} // namespace printdialog
