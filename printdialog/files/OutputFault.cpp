// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "OutputFault.h"

#include "FileName.h"
#include "PlainText.h"

#include <QtCore/QCoreApplication>

#include <cerrno>

namespace printdialog {
namespace {

/// The failure with a translated text that contains the path, and the system's error text as detail.
Failure<OutputFault> failureWith(OutputFault reason, const char *text, int error, const QString &path)
{
    const QString cause = qt_error_string(error);
    return {reason, QCoreApplication::translate("printdialog::OutputFault", text).arg(plainText(path)),
            cause};
}

} // namespace

Failure<OutputFault> outputFailure(int error, const QString &path)
{
    switch (error) {
    case ENOTDIR:
        return failureWith(
            OutputFault::NotAFolder,
            QT_TRANSLATE_NOOP("printdialog::OutputFault",
                              "\"%1\" is not a folder: it is a file, or below one. Choose another folder."),
            error, path);
    case ENOENT:
        return failureWith(
            OutputFault::FolderMissing,
            QT_TRANSLATE_NOOP("printdialog::OutputFault",
                              "\"%1\" cannot be made: there is no such folder. Choose another folder."),
            error, path);
    case EILSEQ:
        return {OutputFault::FolderMissing, foreignNameText(path), qt_error_string(error)};
    case EACCES:
    case EPERM:
    case EROFS:
        return failureWith(
            OutputFault::NotWritable,
            QT_TRANSLATE_NOOP("printdialog::OutputFault",
                              "You may not write \"%1\". Choose a folder that you may write to."),
            error, path);
    case EISDIR:
    case ENOTEMPTY:
    case EEXIST:
        return failureWith(
            OutputFault::NameTaken,
            QT_TRANSLATE_NOOP("printdialog::OutputFault",
                              "\"%1\" is already there and is not a file that could be replaced. "
                              "Rename it, or choose another folder."),
            error, path);
    case ENAMETOOLONG:
        return failureWith(
            OutputFault::NameTooLong,
            QT_TRANSLATE_NOOP("printdialog::OutputFault",
                              "The name \"%1\" is too long. Rename the photo, or choose another folder."),
            error, path);
    case EDQUOT:
        return failureWith(
            OutputFault::DiskFull,
            QT_TRANSLATE_NOOP(
                "printdialog::OutputFault",
                "There is no space for \"%1\": your quota on this disk is used up. Delete other files of "
                "yours, or choose another folder."),
            error, path);
    case EFBIG:
        return failureWith(
            OutputFault::DiskFull,
            QT_TRANSLATE_NOOP(
                "printdialog::OutputFault",
                "\"%1\" is larger than a file may be here. Raise the limit (ulimit -f), or choose "
                "another folder."),
            error, path);
    case ENOSPC:
        return failureWith(
            OutputFault::DiskFull,
            QT_TRANSLATE_NOOP("printdialog::OutputFault",
                              "There is no space for \"%1\". Delete other files, or choose another folder."),
            error, path);
    default:
        return {OutputFault::WriteFailed,
                QCoreApplication::translate(
                    "printdialog::OutputFault",
                    "\"%1\" could not be written: %2. Check the disk, or choose another folder.")
                    .arg(plainText(path), qt_error_string(error)),
                qt_error_string(error)};
    }
}

} // namespace printdialog
