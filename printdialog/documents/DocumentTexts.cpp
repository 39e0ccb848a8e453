// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "DocumentTexts.h"

#include "FileName.h"
#include "PlainText.h"

#include <QtCore/QLocale>

#include <cerrno>
#include <csignal>

namespace printdialog {

namespace {

QString shown(const QString &name)
{
    return plainText(name, shownTextLimit);
}

constexpr int noSandbox = 2; ///< A helper's exit status.

} // namespace

Failure<DocumentFault> DocumentTexts::of(DocumentFault reason, const QString &name)
{
    const auto text = [reason] {
        switch (reason) {
        case DocumentFault::NotFound:
            return tr("There is no document \"%1\". Check its name and folder.");
        case DocumentFault::Empty:
            return tr("\"%1\" has no pages. Save it again in the program that it comes from.");
        case DocumentFault::NotADocument:
            return tr("\"%1\" is not a PDF document. Save it as PDF in the program that it comes from.");
        case DocumentFault::NeedsPassword:
            return tr("\"%1\" is protected by a password. Enter the password.");
        case DocumentFault::WrongPassword:
            return tr("The password does not open \"%1\". Check it and enter it again.");
        case DocumentFault::TooCostly:
            return tr(
                "\"%1\" takes too much time or memory to read. Print it in parts, or save it again in the "
                "program that it comes from.");
        case DocumentFault::Changed:
            return tr("\"%1\" has changed since it was opened. Add it again.");
        default:
            return tr("\"%1\" is damaged and cannot be repaired. Get it again from where it came from.");
        }
    }();
    return {reason, text.arg(shown(name)), {}};
}

Failure<DocumentFault> DocumentTexts::ofSystem(int error, const QString &path)
{
    switch (error) {
    case ENOENT:
    case ENOTDIR:
    case ENAMETOOLONG:
        if (isForeignName(path))
            return {DocumentFault::NotFound, foreignNameText(path), {}};
        return of(DocumentFault::NotFound, path);
    case EACCES:
    case EPERM:
        return {DocumentFault::NotReadable,
                tr("You may not read \"%1\". Ask its owner for the permission to read it.").arg(shown(path)),
                qt_error_string(error)};
    default:
        return {DocumentFault::NotReadable,
                tr("\"%1\" could not be read: %2. Check the disk that it is on.")
                    .arg(shown(path), qt_error_string(error)),
                {}};
    }
}

Failure<DocumentFault> DocumentTexts::notAFile(bool isFolder, const QString &name)
{
    const QString text =
        isFolder ? tr("\"%1\" is a folder. Choose a document inside it.")
                 : tr("\"%1\" is not a file but a device, a pipe or a socket. Choose a document.");
    return {DocumentFault::NotReadable, text.arg(shown(name)), {}};
}

Failure<DocumentFault> DocumentTexts::tooLarge(qint64 size, const QString &name)
{
    return {DocumentFault::TooLarge,
            tr("\"%1\" is too large: %2, where a document may have %3. Save it in parts.")
                .arg(shown(name), QLocale().formattedDataSize(size),
                     QLocale().formattedDataSize(Document::largestFile)),
            {}};
}

Failure<DocumentFault> DocumentTexts::tooManyPages(const QString &name)
{
    return {DocumentFault::TooLarge,
            tr("\"%1\" has more than %L2 pages. Save it in parts.")
                .arg(shown(name), QLocale().toString(Document::mostPages)),
            {}};
}

Failure<DocumentFault> DocumentTexts::ofPage(DocumentFault reason, int page, const QString &name)
{
    const QString text =
        reason == DocumentFault::TooCostly
            ? tr("Page %L1 of \"%2\" takes too much time or memory to show. It can be printed all the same.")
            : tr("Page %L1 of \"%2\" cannot be shown, since it is damaged. Look at it closely when it is "
                 "printed.");
    return {reason, text.arg(page + 1).arg(shown(name)), {}};
}

Failure<DocumentFault> DocumentTexts::unavailable(const QString &reason, const QString &name)
{
    return {DocumentFault::Unavailable,
            tr("\"%1\" is not used, since it could not be read safely: %2. Install corvel-print again.")
                .arg(shown(name), reason),
            {}};
}

Failure<DocumentFault> DocumentTexts::unavailable(const HelperEnd &end, const QString &program,
                                                  const QString &name)
{
    if (end.how == HelperEnd::How::NotRun)
        return unavailable(tr("\"%1\" cannot be run: %2").arg(program, qt_error_string(end.code)), name);
    if (end.code == noSandbox)
        return unavailable(tr("the system offers no sandbox"), name);
    return unavailable(tr("\"%1\" ends with status %2").arg(program).arg(end.code), name);
}

std::optional<DocumentFault> faultOf(const HelperEnd &end)
{
    switch (end.how) {
    case HelperEnd::How::Exited:
        return end.code == 0 ? std::nullopt : std::optional(DocumentFault::Unavailable);
    case HelperEnd::How::NotRun:
        return DocumentFault::Unavailable;
    case HelperEnd::How::Overdue:
    case HelperEnd::How::GivenUp:
        return DocumentFault::TooCostly;
    case HelperEnd::How::Killed:
        break;
    }
    switch (end.code) {
    case SIGXCPU:
    case SIGXFSZ:
    case SIGABRT: // without memory, where that cannot be reported
    case SIGKILL: // most likely the OOM killer's
        return DocumentFault::TooCostly;
    default:
        return DocumentFault::Broken;
    }
}

} // namespace printdialog
