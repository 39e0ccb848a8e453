// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "QueueRecord.h"

#include "CupsConnection.h"
#include "PlainText.h"

#include <QtCore/QCoreApplication>

#include <array>

namespace printdialog {

namespace {

constexpr qsizetype queueNameLimit = 127; // bytes

std::optional<int> unchangedSince(ipp_t *answer)
{
    constexpr int settled = 2; // seconds, since the times have no fractions
    ipp_attribute_t *changed = ippFindAttribute(answer, "printer-config-change-time", IPP_TAG_INTEGER);
    ipp_attribute_t *now = ippFindAttribute(answer, "printer-up-time", IPP_TAG_INTEGER);
    ipp_attribute_t *type = ippFindAttribute(answer, "printer-type", IPP_TAG_ENUM);
    if (!changed || !now || !type || (ippGetInteger(type, 0) & CUPS_PRINTER_CLASS) != 0 ||
        ippGetInteger(now, 0) - ippGetInteger(changed, 0) < settled)
        return std::nullopt;
    return ippGetInteger(changed, 0);
}

} // namespace

bool isQueueName(const QString &name)
{
    return !name.isEmpty() && name.toUtf8().size() <= queueNameLimit && plainText(name) == name &&
           name.simplified() == name && !name.contains(u'/');
}

Result<QueueRecord, QueueFault> queueRecord(CupsConnection &connection, const Destination &destination)
{
    QueueRecord record;
    record.destination = destination;
    const auto printer = PrinterAddress::of(destination.queue);
    if (destination.isAddress() && !printer)
        return queueFailure(QueueFault::NotFound, destination.id(),
                            QCoreApplication::translate("CupsConnection", "this is not a printer's address"));
    if (!printer && (!isQueueName(destination.queue) || hasControls(destination.instance)))
        return queueFailure(QueueFault::NotFound, destination.id(),
                            QCoreApplication::translate("CupsConnection", "no printer can have this name"));
    std::array<char, 1024> uri = {};
    httpAssembleURIf(HTTP_URI_CODING_ALL, uri.data(), static_cast<int>(uri.size()), "ipp", nullptr,
                     "localhost", 0, "/printers/%s", destination.queue.toUtf8().constData());
    record.uri = printer ? printer->uri : QByteArray(uri.data());
    static constexpr std::array wanted = {
        "printer-uri-supported", "printer-is-accepting-jobs",  "printer-state",   "printer-state-message",
        "printer-state-reasons", "printer-config-change-time", "printer-up-time", "printer-type",
        "auth-info-required"};
    IppPointer request = ippRequest(IPP_OP_GET_PRINTER_ATTRIBUTES, record.uri);
    ippAddStrings(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                  static_cast<int>(wanted.size()), nullptr, wanted.data());
    const IppPointer answer = connection.answerTo(std::move(request), "/");
    if (!answer || !connection.hasSucceeded())
        return connection.lastFailure(destination.id());
    // A printer may know itself by names that do not reach it from here.
    const QByteArray own = printer ? QByteArray() : textOf(answer.get(), "printer-uri-supported");
    record.uri = own.isEmpty() ? record.uri : own;
    record.stateMessage = QString::fromUtf8(textOf(answer.get(), "printer-state-message"));
    record.stateReasons = textsOf(answer.get(), "printer-state-reasons");
    record.stateReasons.removeAll(QStringLiteral("none"));
    ipp_attribute_t *state = ippFindAttribute(answer.get(), "printer-state", IPP_TAG_ENUM);
    record.isStopped = state && ippGetInteger(state, 0) == IPP_PSTATE_STOPPED;
    ipp_attribute_t *accepts = ippFindAttribute(answer.get(), "printer-is-accepting-jobs", IPP_TAG_BOOLEAN);
    record.acceptsJobs = !accepts || ippGetBoolean(accepts, 0) != 0;
    record.unchangedSince = unchangedSince(answer.get());
    record.authInfoRequired = textsOf(answer.get(), "auth-info-required");
    return record;
}

} // namespace printdialog
