// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Result.h"

#include <QtCore/QString>

namespace printdialog {

/// Why the files of a job could not be written to their folder.
enum class OutputFault {
    PhotoUnusable, ///< The photo cannot be decoded.
    PageUnusable,  ///< The page size is not usable.
    NotAFolder,    ///< A part of the folder's path is a file.
    FolderMissing, ///< The folder does not exist and cannot be created.
    NotWritable,   ///< No permission to write there.
    NameTaken,     ///< A file of that name that is not replaced, or a folder.
    NameTooLong,   ///< Longer than the file system allows.
    DiskFull,      ///< No space left, or the user's quota is used up.
    WriteFailed,   ///< Any other system error.
};

/// The failure for an errno that occurred with a file or folder.
Failure<OutputFault> outputFailure(int error, const QString &path);

} // namespace printdialog
