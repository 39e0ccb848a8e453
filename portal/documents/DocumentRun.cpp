// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "DocumentRun.h"

#include "AtomicFiles.h"
#include "JobDocument.h"
#include "JobFollowing.h"
#include "JobSubmission.h"
#include "PrintedNames.h"
#include "SheetPrinter.h"

#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QThread>

#include <atomic>
#include <sys/mman.h>
#include <sys/stat.h>

namespace printdialog {

/// Plain ints, since libcups reads them.
struct DocumentRun::State
{
    static void raise(int &flag) { std::atomic_ref(flag).store(1); }

    int cancel = 0; ///< send nothing more
    int leave = 0;  ///< stop following
    QString trouble;
};

namespace {

/// A file's bytes, mapped. The file is sealed, so it cannot become shorter.
class MappedFile
{
public:
    explicit MappedFile(const pdekit::FileDescriptor &file)
    {
        struct stat status = {};
        if (fstat(file.number(), &status) != 0 || status.st_size <= 0)
            return;
        size_ = static_cast<std::size_t>(status.st_size);
        void *mapped = mmap(nullptr, size_, PROT_READ, MAP_PRIVATE, file.number(), 0);
        begin_ = mapped == MAP_FAILED ? nullptr : mapped;
    }
    ~MappedFile()
    {
        if (begin_)
            munmap(begin_, size_);
    }
    Q_DISABLE_COPY_MOVE(MappedFile)

    QByteArray bytes() const
    {
        return begin_
                   ? QByteArray::fromRawData(static_cast<const char *>(begin_), static_cast<qsizetype>(size_))
                   : QByteArray();
    }

private:
    void *begin_ = nullptr;
    std::size_t size_ = 0;
};

QJsonObject jsonOf(const QMap<QString, QString> &texts)
{
    QJsonObject object;
    for (auto text = texts.cbegin(); text != texts.cend(); ++text)
        object.insert(text.key(), text.value());
    return object;
}

/// Returns what went wrong; empty when nothing did.
QString writeFiles(const PrintJob &job, const JobDocument &document)
{
    const PrintedNames names(job.folder);
    const QString name =
        names.nameFor(job.folder.document.value_or(document.name) + PrintedNames::pageSuffix);
    auto files = AtomicFiles::open(names.folder().path);
    if (!files)
        return files.failure().text;
    const auto pdf = files->add(name + PrintedNames::pageSuffix);
    if (!pdf)
        return pdf.failure().text;
    (*pdf)->write(document.data);
    const auto ticket = files->add(name + PrintedNames::ticketSuffix);
    if (!ticket)
        return ticket.failure().text;
    (*ticket)->write(QJsonDocument(QJsonObject{{QStringLiteral("printer"), job.destination.id()},
                                               {QStringLiteral("document"), document.name},
                                               {QStringLiteral("options"), jsonOf(job.options)},
                                               {QStringLiteral("summary"), jsonOf(job.summary)},
                                               {QStringLiteral("copies"), job.copies}})
                         .toJson(QJsonDocument::Indented));
    if (const auto failure = files->writeFailure())
        return failure->text;
    const auto paths =
        files->commit(job.folder.isOverwritten ? AtomicFiles::Earlier::Replaced : AtomicFiles::Earlier::Kept);
    return paths ? QString() : paths.failure().text;
}

QString send(const PrintJob &job, const JobDocument &document, int *cancel, int *leave)
{
    if (const auto unfit = whyUnfit(job, document))
        return unfit->text;
    JobSubmission submission({}, cancel);
    const auto id = submission.send(job, document);
    if (!id)
        return id.failure().text;
    const QString number = QString::number(*id);
    const auto status =
        followJob(submission.connection(), job.destination.id(), *id, FollowLimits(), {}, leave);
    if (std::atomic_ref(*leave).load() != 0)
        return {};
    if (!status)
        return SheetPrinter::tr("The outcome of %1 (job %2) is unknown: %3")
            .arg(document.name, number, status.failure().text);
    const QString detail = status->detail();
    if (!status->isOver())
        return SheetPrinter::tr(
                   "%1 (job %2) is not printed yet: %3. The print server keeps it; \"cancel %2\" cancels "
                   "it.")
            .arg(document.name, number, status->text());
    if (status->state == JobStatus::State::Aborted)
        return SheetPrinter::tr(
                   "The printer \"%1\" could not print %2 (job %3): %4. Look at the printer and print again.")
            .arg(job.destination.id(), document.name, number,
                 detail.isEmpty() ? SheetPrinter::tr("it gave no reason") : detail);
    return {}; // who canceled it knows that
}

} // namespace

DocumentRun::DocumentRun(const PrintJob &job, pdekit::FileDescriptor content, const QString &name,
                         QObject *parent)
    : PortalRun(parent)
    , state_(std::make_shared<State>())
{
    thread_ = QThread::create(
        [state = state_, job, name, held = std::make_shared<pdekit::FileDescriptor>(std::move(content))] {
            const MappedFile file(*held);
            const JobDocument document{file.bytes(), "application/pdf", name, false};
            state->trouble = job.destination.isBuiltIn() ? writeFiles(job, document)
                                                         : send(job, document, &state->cancel, &state->leave);
        });
    thread_->setParent(this);
    connect(thread_, &QThread::finished, this, [this] { Q_EMIT finished(state_->trouble); });
    thread_->start();
}

DocumentRun::~DocumentRun()
{
    State::raise(state_->cancel);
    State::raise(state_->leave);
    thread_->wait();
}

void DocumentRun::leave()
{
    State::raise(state_->leave);
}

} // namespace printdialog
