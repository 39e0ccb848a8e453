// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Result.h"

#include <QtCore/QString>

namespace printdialog {

/// Why the files of a job could not be left in their folder.
enum class OutputFault {
    PhotoUnusable, ///< The photo cannot be decoded.
    PageUnusable,  ///< The page cannot be printed on.
    NotAFolder,    ///< A part of the folder's path is a file.
    FolderMissing, ///< The folder is not there and cannot be made.
    NotWritable,   ///< No permission to write there.
    NameTaken,     ///< A folder stands where a file should go.
    NameTooLong,   ///< Longer than the file system allows.
    DiskFull,      ///< No space left, or no more for this user.
    WriteFailed,   ///< Any other error of the system.
};

/// The failure for an error number of the system that came up with a file or folder.
Failure<OutputFault> outputFailure(int error, const QString &path);

} // namespace printdialog
