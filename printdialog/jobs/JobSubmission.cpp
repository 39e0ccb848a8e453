// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "JobSubmission.h"

#include "CupsConnection.h"
#include "JobFollowing.h"
#include "JobTemplate.h"
#include "OptionsFetcher.h"
#include "PlainText.h"
#include "QueueRecord.h"
#include "TemporaryQueue.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QUrl>

#include <algorithm>
#include <atomic>
#include <optional>

using namespace std::chrono_literals;

namespace printdialog {

namespace {

constexpr qsizetype keywordLimit = 255; // bytes in IPP's keywords
constexpr qsizetype valueLimit = 255;   // bytes in IPP's names
constexpr qsizetype titleLimit = 120;
constexpr int copiesLimit = 9999;
constexpr auto printerLimit = 10s;                             // for a printer on the network to answer
const QString passwordOption = QStringLiteral("job-password"); // not one of the job's own attributes

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

/// Adds an option as text. libcups' own encoding is meant for IPP attributes, whose types it knows. It turns
/// a PPD's True and False into booleans, and the scheduler then hands "NoEdge=true" to the printer as
/// "Edge=false".
void addOption(ipp_t *request, const QByteArray &keyword, const QByteArray &value)
{
    // Two names, which libcups separates.
    if (keyword == "job-sheets") {
        cupsEncodeOption(request, IPP_TAG_JOB, keyword.constData(), value.constData());
        return;
    }
    const IppPointer probe(ippNew());
    ipp_attribute_t *known = cupsEncodeOption(probe.get(), IPP_TAG_JOB, keyword.constData(), "x");
    if (known && ippGetValueTag(known) != IPP_TAG_NAME)
        cupsEncodeOption(request, IPP_TAG_JOB, keyword.constData(), value.constData());
    else
        ippAddString(request, IPP_TAG_JOB, IPP_TAG_NAME, keyword.constData(), nullptr, value.constData());
}

/// One job in one request, with its document. The server creates the job when it has the last byte, so a
/// connection that breaks before leaves no job behind. Create-Job and Send-Document leave an empty job when
/// the connection is lost between them.
class JobInMaking
{
public:
    JobInMaking(CupsConnection &connection, const JobSubmission::Progress &sent, int *cancel,
                const QueueRecord &record, const QByteArrayList &authInfo)
        : connection_(connection)
        , sent_(sent)
        , cancel_(cancel)
        , record_(record)
        , authInfo_(authInfo)
        , resource_(QUrl::fromEncoded(record.uri).path(QUrl::FullyEncoded).toLatin1())
    {
    }

    Result<int, QueueFault> send(const PrintJob &job, const JobDocument &document)
    {
        const IppPointer request = printJob(job, document);
        for (;;) {
            auto id = sendOnce(job, document, request.get());
            // The server may look for a login only when it has the document, which it has dropped then.
            if (id || !connection_.wantsLogin())
                return id;
            mayExist_ = false;
            connection_.heed(cancel_);
            if (!connection_.logIn(resource_))
                return connection_.lastFailure(job.destination.id());
        }
    }

    /// Whether the server may have made a job that is not returned.
    bool mayExist() const { return mayExist_; }

private:
    Result<int, QueueFault> sendOnce(const PrintJob &job, const JobDocument &document, ipp_t *request)
    {
        constexpr qint64 step = 65536;
        const qint64 total = document.data.size();
        connection_.extend();
        mayExist_ = total == 0;
        bool isTaken = connection_.begin(request, resource_, total);
        for (qint64 sent = 0; isTaken && sent < total;) {
            const qint64 size = std::min(step, total - sent);
            mayExist_ = sent + size == total;
            connection_.extend();
            isTaken = connection_.write(document.data.constData() + sent, static_cast<size_t>(size));
            sent += size;
            if (isTaken && sent_)
                sent_(sent, total);
            // Once the server has all of it, its answer has to be waited for.
            if (connection_.isCanceled() && sent < total)
                return queueFailure(QueueFault::Canceled, job.destination.id());
        }
        return receiveAnswer(job.destination.id(), isTaken);
    }

    IppPointer printJob(const PrintJob &job, const JobDocument &document) const
    {
        IppPointer request = ippRequest(IPP_OP_PRINT_JOB, record_.uri);
        ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "job-name", nullptr,
                     plainText(job.options.value(JobTemplate::titleKey(), document.name), titleLimit)
                         .toUtf8()
                         .constData());
        ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "document-name", nullptr,
                     plainText(document.name, titleLimit).toUtf8().constData());
        ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_MIMETYPE, "document-format", nullptr,
                     document.mimeType.constData());
        if (const QByteArray password = job.secrets.value(passwordOption).toUtf8(); !password.isEmpty()) {
            ippAddOctetString(request.get(), IPP_TAG_OPERATION, "job-password", password.constData(),
                              static_cast<int>(password.size()));
            ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "job-password-encryption",
                         nullptr, "none");
        }
        ippAddInteger(request.get(), IPP_TAG_JOB, IPP_TAG_INTEGER, "copies", job.copies);
        if (!authInfo_.isEmpty()) {
            QList<const char *> values;
            for (const QByteArray &value : authInfo_)
                values += value.constData();
            ippAddStrings(request.get(), IPP_TAG_JOB, IPP_TAG_TEXT, "auth-info",
                          static_cast<int>(values.size()), nullptr, values.constData());
        }
        const IppAttributes attributes = job.ipp ? attributesFor(job, document) : IppAttributes();
        attributes.addToJob(request.get());
        for (const auto &options : {job.options, job.secrets}) {
            for (auto option = options.cbegin(); option != options.cend(); ++option) {
                // Those of a printer without a PPD are its attributes; what is left are options of the job.
                const bool isAttribute = job.ipp && !JobTemplate::isJobOption(option.key());
                const bool isAlone =
                    option.key() == passwordOption || option.key() == JobTemplate::titleKey();
                if (!isAlone && !isAttribute && !attributes.contains(option.key()))
                    addOption(request.get(), option.key().toUtf8(), option.value().toUtf8());
            }
        }
        return request;
    }

    /// Waits for the answer even when the job is given up: the server may have the complete job by now, and
    /// its id is needed to cancel it. A server that stopped reading the document says why.
    /// @param isSent whether it has been given the whole document, and may make a job of it without an answer
    Result<int, QueueFault> receiveAnswer(const QString &queue, bool isSent)
    {
        connection_.heed(nullptr);
        connection_.extend();
        const IppPointer answer = connection_.answer();
        if (answer && !connection_.hasSucceeded())
            mayExist_ = false;
        if (!answer || !connection_.hasSucceeded()) {
            const auto failure = connection_.lastFailure(queue);
            const bool isUnanswered =
                failure.reason == QueueFault::TimedOut || (!answer && connection_.isUnanswered());
            return isSent && isUnanswered ? queueFailure(QueueFault::Unknown, queue, failure.detail)
                                          : failure;
        }
        ipp_attribute_t *attribute = ippFindAttribute(answer.get(), "job-id", IPP_TAG_INTEGER);
        const int id = attribute ? ippGetInteger(attribute, 0) : 0;
        if (id <= 0)
            return queueFailure(QueueFault::Unknown, queue,
                                Text::tr("it accepted the job without giving it a number"));
        if (cancel_ && std::atomic_ref(*cancel_).load() != 0) {
            connection_.extend();
            const auto canceled = cancelJob(connection_, queue, id);
            mayExist_ = !canceled || !*canceled;
            return queueFailure(QueueFault::Canceled, queue);
        }
        return id;
    }

    CupsConnection &connection_;
    const JobSubmission::Progress &sent_;
    int *cancel_;
    QueueRecord record_;
    QByteArrayList authInfo_;
    QByteArray resource_;
    bool mayExist_ = false;
};

} // namespace

std::optional<Failure<QueueFault>> whyUnfit(const PrintJob &job, const JobDocument &document)
{
    QMap<QString, QString> options = job.options;
    options.insert(job.secrets);
    for (auto option = options.cbegin(); option != options.cend(); ++option) {
        const QString keyword = plainText(option.key(), 80);
        if (!isKeyword(option.key()) || option.key() == QLatin1String("copies"))
            return refusal(Text::tr("The option \"%1\" is not sent, because this cannot be an option's "
                                    "keyword. Leave it out.")
                               .arg(keyword));
        if (hasControls(option.value()))
            return refusal(Text::tr("The option \"%1\" is not sent, because its value has a line break or "
                                    "another control character in it. Choose another value.")
                               .arg(keyword));
        // CUPS would read it, and everything after it, as a collection. One with a single pair of braces ends
        // where it should: a custom choice of several values.
        const QString &value = option.value();
        const bool isCollection = value.startsWith(u'{') && option.key() != JobTemplate::titleKey();
        if (isCollection && !(value.endsWith(u'}') && value.count(u'{') == 1 && value.count(u'}') == 1))
            return refusal(Text::tr("The option \"%1\" is not sent, because CUPS misreads a value that "
                                    "begins with a brace. Choose another value.")
                               .arg(keyword));
        if (option.value().toUtf8().size() > valueLimit)
            return refusal(Text::tr("The option \"%1\" is not sent, because its value is longer than %2 "
                                    "bytes. Choose another value.")
                               .arg(keyword, QString::number(valueLimit)));
    }
    if (hasControls(QString::fromLatin1(document.mimeType)))
        return refusal(
            Text::tr("The document \"%1\" is not sent, because its type has a control character in it.")
                .arg(plainText(document.name, shownTextLimit)));
    if (lacksFormat(job, document.mimeType))
        return refusal(
            Text::tr("\"%1\" is not sent, because the printer cannot read a PDF, and this photo does "
                     "not go to it as it is. Choose a borderless paper and fill it with a JPEG, or "
                     "set up a queue for the printer in the printer settings.")
                .arg(plainText(document.name, shownTextLimit)));
    if (job.ipp && job.ipp->mostCopies > 0 && job.copies > job.ipp->mostCopies)
        return refusal(Text::tr("%1 copies cannot be printed. The printer makes at most %2 at a time; choose "
                                "fewer.")
                           .arg(QString::number(job.copies), QString::number(job.ipp->mostCopies)));
    if (job.copies < 1 || job.copies > copiesLimit)
        return refusal(Text::tr("%1 copies cannot be printed. Choose a number from 1 to %2.")
                           .arg(QString::number(job.copies), QString::number(copiesLimit)));
    return std::nullopt;
}

JobSubmission::JobSubmission(const Progress &sent, int *cancel, std::chrono::milliseconds patience)
    : sent_(sent)
    , cancel_(cancel)
    , patience_(patience)
{
}

JobSubmission::~JobSubmission() = default;

Result<int, QueueFault> JobSubmission::send(const PrintJob &job, const JobDocument &document)
{
    mayHaveMadeJob_ = false;
    if (const auto failure = whyUnfit(job, document))
        return *failure;
    if (!connection_)
        connection_ =
            std::make_unique<CupsConnection>(patience_, nullptr, PrinterAddress::of(job.destination.queue));
    connection_->actFor(job.destination.id());
    Logins::ofRun().forgive();
    connection_->heed(cancel_);
    connection_->extend(patience_);
    auto record = queueRecord(*connection_, job.destination);
    if (!record && record.failure().reason == QueueFault::NotFound && !job.announcedUri.isEmpty())
        record = makeAgain(job);
    if (!record)
        return record.failure();
    if (!record->acceptsJobs)
        return queueFailure(QueueFault::NotAccepting, job.destination.id(), record->stateMessage);
    if (const auto failure = job.ppd ? comparePpd(*job.ppd, *record) : std::nullopt)
        return *failure;
    const auto authInfo = authInfoFor(*record);
    if (!authInfo)
        return authInfo.failure();
    if (beginning_ && !beginning_())
        return queueFailure(QueueFault::Canceled, job.destination.id());
    JobInMaking making(*connection_, sent_, cancel_, *record, *authInfo);
    auto id = making.send(job, document);
    mayHaveMadeJob_ = !id && making.mayExist();
    return id;
}

/// The printer's own name and password, which the print server hands on; empty when it wants none.
Result<QByteArrayList, QueueFault> JobSubmission::authInfoFor(const QueueRecord &record)
{
    const QStringList &wanted = record.authInfoRequired;
    const QString id = record.destination.id();
    if (!wanted.contains(QLatin1String("username")) && !wanted.contains(QLatin1String("password")))
        return QByteArrayList();
    if (!connection_->isPrivate())
        return queueFailure(QueueFault::Refused, id,
                            Text::tr("it wants a password, which would cross the network unencrypted"));
    const LoginQuestion question{id, connection_->server(), QString::fromUtf8(cupsUser())};
    const auto login =
        Logins::ofRun().login(connection_->server() + u' ' + id, question, std::nullopt, cancel_);
    if (connection_->isCanceled())
        return queueFailure(QueueFault::Canceled, id);
    if (!login)
        return queueFailure(QueueFault::Refused, id, Logins::ofRun().whyNot());
    connection_->extend(patience_);
    // Windows' "DOMAIN\user".
    const QString domain = login->user.contains(u'\\') ? login->user.section(u'\\', 0, 0) : QString();
    QByteArrayList values;
    for (const QString &each : wanted)
        values += (each == QLatin1String("password")          ? login->password
                   : each == QLatin1String("domain")          ? domain
                   : wanted.contains(QLatin1String("domain")) ? login->user.section(u'\\', -1)
                                                              : login->user)
                      .toUtf8();
    return values;
}

Result<QueueRecord, QueueFault> JobSubmission::makeAgain(const PrintJob &job)
{
    const auto limit = std::min<std::chrono::milliseconds>(patience_, printerLimit);
    auto queue = temporaryQueue(*connection_, job.destination, job.announcedUri, limit);
    connection_->extend(patience_);
    if (!queue)
        return queue.failure();
    return std::move(queue->record);
}

std::optional<Failure<QueueFault>> JobSubmission::comparePpd(const QByteArray &ppd, const QueueRecord &record)
{
    const auto now = record.unchangedSince
                         ? std::optional<Compared>({record.uri, ppd, *record.unchangedSince})
                         : std::nullopt;
    if (now && now == compared_)
        return std::nullopt;
    const auto found = ppdOf(*connection_, record);
    if (!found && found.failure().reason != QueueFault::NoPpd)
        return found.failure();
    if ((found ? *found : QByteArray()) != ppd)
        return queueFailure(QueueFault::Changed, record.destination.id());
    compared_ = now;
    return std::nullopt;
}

} // namespace printdialog
