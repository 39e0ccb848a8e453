// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "DocumentHelpers.h"

#include "CorvelDocumentHelpersPath.h"
#include "DocumentTexts.h"
#include "HelperRun.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>

using namespace std::chrono_literals;
using pdekit::FileDescriptor;

namespace printdialog {

namespace {

QString &otherFolder()
{
    static QString folder;
    return folder;
}

FileDescriptor newMemory()
{
    return FileDescriptor(::memfd_create("corvel-document", MFD_CLOEXEC | MFD_ALLOW_SEALING));
}

bool seal(const FileDescriptor &memory, int seals)
{
    return ::fcntl(memory.number(), F_ADD_SEALS, seals) == 0;
}

constexpr int all = F_SEAL_WRITE | F_SEAL_GROW | F_SEAL_SHRINK | F_SEAL_SEAL;

std::optional<Failure<DocumentFault>> failureOf(const PagesAnswer &answer, const QString &name)
{
    using Outcome = PagesAnswer::Outcome;
    switch (answer.outcome) {
    case Outcome::Done:
        return std::nullopt;
    case Outcome::NoPages:
        return DocumentTexts::of(DocumentFault::Empty, name);
    case Outcome::TooManyPages:
        return DocumentTexts::tooManyPages(name);
    case Outcome::NeedsPassword:
        return DocumentTexts::of(DocumentFault::NeedsPassword, name);
    case Outcome::WrongPassword:
        return DocumentTexts::of(DocumentFault::WrongPassword, name);
    case Outcome::TooCostly:
        return DocumentTexts::of(DocumentFault::TooCostly, name);
    case Outcome::Broken:
        break;
    }
    return DocumentTexts::of(DocumentFault::Broken, name);
}

} // namespace

QString documentHelper(const char *name)
{
    // Asked once, since several threads may be the first to ask.
    static const QString installed =
        QCoreApplication::applicationDirPath() + QLatin1String("/" CORVEL_DOCUMENT_HELPERS_FROM_PROGRAM);
    const QString &folder = otherFolder().isEmpty() ? installed : otherFolder();
    return QDir::cleanPath(folder + u'/' + QLatin1String(name));
}

void useDocumentHelpers(const QString &folder)
{
    otherFolder() = folder;
}

FileDescriptor memoryWith(QByteArrayView content)
{
    FileDescriptor memory = newMemory();
    for (qsizetype done = 0; memory.isOpen() && done < content.size();) {
        const ssize_t count = ::pwrite(memory.number(), content.data() + done,
                                       static_cast<std::size_t>(content.size() - done), done);
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return {};
        done += count;
    }
    return memory.isOpen() && seal(memory, all) ? std::move(memory) : FileDescriptor();
}

FileDescriptor memoryToFill(qint64 size)
{
    FileDescriptor memory = newMemory();
    if (!memory.isOpen() || size == 0)
        return memory;
    // A child that made it smaller would end this process when it reads there.
    const bool isReady =
        ::ftruncate(memory.number(), size) == 0 && seal(memory, F_SEAL_GROW | F_SEAL_SHRINK | F_SEAL_SEAL);
    return isReady ? std::move(memory) : FileDescriptor();
}

std::optional<QByteArray> bytesOf(const FileDescriptor &memory, qint64 most)
{
    struct stat status = {};
    if (::fstat(memory.number(), &status) != 0 || status.st_size > most)
        return std::nullopt;
    QByteArray bytes(status.st_size, Qt::Uninitialized);
    for (qsizetype done = 0; done < bytes.size();) {
        const ssize_t count = ::pread(memory.number(), bytes.data() + done,
                                      static_cast<std::size_t>(bytes.size() - done), done);
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return std::nullopt;
        done += count;
    }
    return bytes;
}

Result<PagesResult, DocumentFault> runPages(const PagesRequest &request, const std::vector<int> &documents,
                                            const QStringList &names, qint64 size)
{
    const QString program = documentHelper("corvel-pdf-pages");
    const QString first = names.value(0);
    const std::string asked = toBytes(request);
    const FileDescriptor question = memoryWith({asked.data(), static_cast<qsizetype>(asked.size())});
    const FileDescriptor reply = memoryToFill();
    PagesResult result = {{}, memoryToFill()};
    if (!question.isOpen() || !reply.isOpen() || !result.output.isOpen())
        return DocumentTexts::unavailable(qt_error_string(errno), first);
    std::vector<int> descriptors = {question.number(), reply.number(), result.output.number()};
    descriptors.insert(descriptors.end(), documents.begin(), documents.end());

    constexpr qint64 perSecond = qint64(8) << 20;
    const HelperEnd end =
        runHelper(QFile::encodeName(program), descriptors, 20s + std::chrono::seconds(size / perSecond));
    if (const auto fault = faultOf(end))
        return *fault == DocumentFault::Unavailable ? DocumentTexts::unavailable(end, program, first)
                                                    : DocumentTexts::of(*fault, first);
    const auto bytes = bytesOf(reply, largestPagesAnswer);
    auto answer =
        bytes ? pagesAnswerOf({bytes->constData(), static_cast<std::size_t>(bytes->size())}) : std::nullopt;
    if (!answer || !seal(result.output, all))
        return DocumentTexts::of(DocumentFault::Broken, first);
    result.answer = *std::move(answer);
    if (const auto failure = failureOf(result.answer, names.value(result.answer.document, first)))
        return *failure;
    return result;
}

} // namespace printdialog
