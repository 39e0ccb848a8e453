// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "JobSubmission.h"

#include "CupsConnection.h"
#include "PlainText.h"

#include <QtCore/QBuffer>
#include <QtCore/QCoreApplication>
#include <QtCore/QFile>

#include <algorithm>
#include <array>
#include <optional>

using namespace std::chrono_literals;

namespace printdialog {

namespace {

constexpr qsizetype keywordLimit = 255; // bytes in IPP's keywords
constexpr qsizetype valueLimit = 255;   // bytes in IPP's names
constexpr qsizetype titleLimit = 120;
constexpr int copiesLimit = 9999;
constexpr auto cancelLimit = 2s;

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(JobSubmission)
};

Failure<QueueFault> refusal(const QString &text)
{
    return {QueueFault::Refused, text, {}};
}

bool isKeyword(const QString &text)
{
    static const QString separators = QStringLiteral("='\"\\{},/:");
    return !text.isEmpty() && text.size() <= keywordLimit &&
           std::all_of(text.cbegin(), text.cend(),
                       [](QChar c) { return c > u' ' && c < QChar(0x7f) && !separators.contains(c); });
}

/// What must not reach a server, told before anything is sent.
std::optional<Failure<QueueFault>> objection(const SubmittedDocument &document,
                                             const QMap<QString, QString> &options, int copies)
{
    for (auto option = options.cbegin(); option != options.cend(); ++option) {
        const QString keyword = plainText(option.key(), 80);
        if (!isKeyword(option.key()) || option.key() == QLatin1String("copies"))
            return refusal(Text::tr("The option \"%1\" is not sent, because this cannot be an option's "
                                    "keyword; leave it out.")
                               .arg(keyword));
        if (hasControls(option.value()))
            return refusal(
                Text::tr(
                    "The option \"%1\" is not sent, because its value has a line break or another control "
                    "character in it; choose another value.")
                    .arg(keyword));
        // On the way to the printer it is read as a collection, and what follows it with it.
        if (option.value().startsWith(u'{'))
            return refusal(
                Text::tr("The option \"%1\" is not sent, because CUPS misreads a value that begins with a "
                         "brace; choose another value.")
                    .arg(keyword));
        if (option.value().toUtf8().size() > valueLimit)
            return refusal(
                Text::tr("The option \"%1\" is not sent, because its value is longer than %2 bytes; choose "
                         "another value.")
                    .arg(keyword, QString::number(valueLimit)));
    }
    if (hasControls(QString::fromLatin1(document.mimeType)))
        return refusal(
            Text::tr("The document \"%1\" is not sent, because its type has a control character in it.")
                .arg(plainText(document.name, shownTextLimit)));
    if (copies < 1 || copies > copiesLimit)
        return refusal(Text::tr("%1 copies cannot be printed; choose a number from 1 to %2.")
                           .arg(QString::number(copies), QString::number(copiesLimit)));
    return std::nullopt;
}

/// Adds an option as the text that it is. libcups' own encoding is for IPP's attributes, whose types it
/// knows: of a PPD's True and False it makes booleans, and the scheduler then hands "NoEdge=true" to the
/// printer as "Edge=false".
void addOption(ipp_t *request, const QByteArray &keyword, const QByteArray &value)
{
    const IppPointer probe(ippNew());
    ipp_attribute_t *known = cupsEncodeOption(probe.get(), IPP_TAG_JOB, keyword.constData(), "x");
    if (known && ippGetValueTag(known) != IPP_TAG_NAME)
        cupsEncodeOption(request, IPP_TAG_JOB, keyword.constData(), value.constData());
    else
        ippAddString(request, IPP_TAG_JOB, IPP_TAG_NAME, keyword.constData(), nullptr, value.constData());
}

struct DestinationList
{
    ~DestinationList() { cupsFreeDests(count, destinations); }

    int count = 0;
    cups_dest_t *destinations = nullptr;
};

struct InfoDeleter
{
    void operator()(cups_dinfo_t *info) const { cupsFreeDestInfo(info); }
};

/// One job on its way. Unless its document was sent to the end, it is cancelled when this goes.
class JobInMaking
{
public:
    JobInMaking(CupsConnection &connection, const QString &queue, const QueueRecord &record)
        : connection_(connection)
        , queue_(queue)
        , uri_(record.uri)
    {
        list_.count = cupsAddDest(record.name.constData(), nullptr, 0, &list_.destinations);
        cups_dest_t &destination = *list_.destinations;
        // Only the address: of the destination's own options (lpoptions) none shall slip into the job.
        destination.num_options =
            cupsAddOption("printer-uri-supported", record.uri.constData(), 0, &destination.options);
        info_.reset(cupsCopyDestInfo(connection.http(), &destination));
    }
    ~JobInMaking()
    {
        if (id_ <= 0 || isFinished_)
            return;
        // The connection may be in the middle of the document, or dead.
        const CupsConnection fresh(cancelLimit);
        if (fresh.isOpen())
            cupsCancelJob2(fresh.http(), list_.destinations->name, id_, 0);
    }
    Q_DISABLE_COPY_MOVE(JobInMaking)

    Result<int, QueueFault> send(const QString &title, const SubmittedDocument &document, QIODevice &source,
                                 const QMap<QString, QString> &options, int copies)
    {
        if (!info_ || !create(title, options, copies))
            return connection_.lastFailure(queue_);
        http_t *http = connection_.http();
        cups_dest_t *destination = list_.destinations;
        connection_.extend();
        const QByteArray name = plainText(document.name, titleLimit).toUtf8();
        if (cupsStartDestDocument(http, destination, info_.get(), id_, name.constData(),
                                  document.mimeType.constData(), 0, nullptr, 1) != HTTP_STATUS_CONTINUE)
            return connection_.lastFailure(queue_);
        std::array<char, 65536> chunk = {};
        qint64 size = 0;
        while ((size = source.read(chunk.data(), chunk.size())) > 0) {
            connection_.extend();
            if (cupsWriteRequestData(http, chunk.data(), static_cast<size_t>(size)) != HTTP_STATUS_CONTINUE)
                return connection_.lastFailure(queue_);
        }
        if (size < 0)
            return Failure<QueueFault>{
                QueueFault::Failed,
                Text::tr("The file \"%1\" could not be read to its end (%2); nothing is printed.")
                    .arg(plainText(document.path, shownTextLimit),
                         plainText(source.errorString(), shownTextLimit)),
                {}};
        connection_.extend();
        if (cupsFinishDestDocument(http, destination, info_.get()) > IPP_STATUS_OK_CONFLICTING)
            return connection_.lastFailure(queue_);
        isFinished_ = true;
        return id_;
    }

private:
    /// Makes the job, without its document. False: libcups knows why.
    bool create(const QString &title, const QMap<QString, QString> &options, int copies)
    {
        IppPointer request(ippNewRequest(IPP_OP_CREATE_JOB));
        ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, uri_.constData());
        ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr,
                     cupsUser());
        ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "job-name", nullptr,
                     plainText(title, titleLimit).toUtf8().constData());
        ippAddInteger(request.get(), IPP_TAG_JOB, IPP_TAG_INTEGER, "copies", copies);
        for (auto option = options.cbegin(); option != options.cend(); ++option)
            addOption(request.get(), option.key().toUtf8(), option.value().toUtf8());
        connection_.extend();
        const IppPointer answer = connection_.answerTo(std::move(request), "/");
        if (!answer || cupsLastError() > IPP_STATUS_OK_CONFLICTING)
            return false;
        ipp_attribute_t *id = ippFindAttribute(answer.get(), "job-id", IPP_TAG_INTEGER);
        id_ = id ? ippGetInteger(id, 0) : 0;
        return id_ > 0;
    }

    CupsConnection &connection_;
    QString queue_;
    QByteArray uri_;
    DestinationList list_;
    std::unique_ptr<cups_dinfo_t, InfoDeleter> info_;
    int id_ = 0;
    bool isFinished_ = false;
};

} // namespace

Result<int, QueueFault> submitJob(const QString &queue, const QString &title,
                                  const SubmittedDocument &document, const QMap<QString, QString> &options,
                                  int copies, std::chrono::milliseconds patience)
{
    if (const auto failure = objection(document, options, copies))
        return *failure;
    QFile file(document.path);
    QBuffer buffer;
    buffer.setData(document.data);
    QIODevice &source = document.path.isEmpty() ? static_cast<QIODevice &>(buffer) : file;
    if (!source.open(QIODevice::ReadOnly))
        return Failure<QueueFault>{QueueFault::Failed,
                                   Text::tr("The file \"%1\" cannot be read (%2); nothing is printed.")
                                       .arg(plainText(document.path, shownTextLimit),
                                            plainText(source.errorString(), shownTextLimit)),
                                   {}};

    CupsConnection connection(patience);
    if (!connection.isOpen())
        return queueFailure(QueueFault::NoServer, queue, connection.unreachableReason());
    const auto record = queueRecord(connection, queue);
    if (!record)
        return record.failure();
    if (!record->acceptsJobs)
        return queueFailure(QueueFault::NotAccepting, queue, record->stateMessage);

    JobInMaking job(connection, queue, *record);
    return job.send(title, document, source, options, copies);
}

} // namespace printdialog
