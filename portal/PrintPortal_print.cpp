// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "DocumentRun.h"
#include "PagesRun.h"
#include "PortalCall.h"
#include "PortalSettings.h"
#include "PrintDialog.h"
#include "PrintPortal.h"
#include "ProgramName.h"
#include "UserNotice.h"

#include <QtCore/QPointer>

#include <fcntl.h>

// From a program's document to its job.

namespace printdialog {

namespace {

/// The document's title: that of the call, or of the one before it, where the former says nothing.
QString titleOf(const QString &title, const QString &earlier, const QString &program)
{
    return documentName(program, title) == documentName(program, {}) ? earlier : title;
}

Arrangement pagesOf(const Document &document)
{
    Arrangement arrangement;
    for (int page = 0; page < document.pageCount(); ++page)
        arrangement.photos.append(PlacedPhoto{Photo::ofPage(document, page)});
    return arrangement;
}

/// The document on the sheets that were prepared for it. The program has chosen the pages already.
Arrangement filled(const PreparedPrint &print, const Document &document)
{
    Arrangement arrangement = pagesOf(document);
    arrangement.setStyle({print.placement, print.arrangement.layout});
    arrangement.pages.isReversed = print.arrangement.pages.isReversed;
    return arrangement;
}

/// Whether a document that cannot be read here may be sent all the same: a reader elsewhere may know better.
bool canGoUnread(const PreparedPrint &print, DocumentFault reason)
{
    const bool isUnread = reason == DocumentFault::Broken || reason == DocumentFault::TooCostly ||
                          reason == DocumentFault::Unavailable;
    return isUnread && print.arrangement.layout == SheetLayout() && print.placement == PlacementChoice() &&
           !print.arrangement.pages.isReversed;
}

} // namespace

void PrintPortal::print(const PortalRequest &request, int document)
{
    PortalCall *call = begin(request);
    if (!call)
        return;
    std::optional<PreparedJob> prepared;
    if (const quint32 token = request.options.value(QStringLiteral("token")).toUInt(); token != 0) {
        auto taken = prepared_.take(token, request.program);
        if (!taken)
            return refuse(call, taken.failure().detail);
        prepared = *std::move(taken);
    }
    constexpr int lowest = 3;
    pdekit::FileDescriptor source(fcntl(document, F_DUPFD_CLOEXEC, lowest));
    const QString program = programName(request.program);
    const QString name =
        documentName(program, titleOf(request.title, prepared ? prepared->title : QString(), program));
    // Programs end once they have handed over what the user has already sent to the printer: their end, which
    // closes the call, does not take it back. A dialog that is still to come has to be seen by somebody.
    QObject *owner = prepared ? static_cast<QObject *>(this) : call;
    auto *intake = new DocumentIntake(std::move(source), name, settings_.intake, owner);
    ++arriving_;
    connect(intake, &QObject::destroyed, this, [this] {
        --arriving_;
        update();
    });
    connect(intake, &DocumentIntake::taken, owner, [this, call = QPointer(call), request, prepared, intake] {
        intake->deleteLater();
        finish(call, request, prepared, intake->result());
    });
}

/// The document is here, or cannot be: the caller may close its file.
/// @param call null, or closed, when its caller has gone
void PrintPortal::finish(PortalCall *call, const PortalRequest &request,
                         const std::optional<PreparedJob> &prepared, Arrival arrival)
{
    if (!calls_.contains(call))
        call = nullptr;
    if (!call && !prepared)
        return;
    const QString program = programName(request.program);
    const QString name =
        documentName(program, titleOf(request.title, prepared ? prepared->title : QString(), program));
    const auto answer = [this, call](PortalResponse response) {
        if (!call)
            return;
        call->answer(response);
        close(call);
    };
    const auto failed = [&](const QString &why) {
        notice_->show(tr("%1 was not printed").arg(name), why);
        answer(PortalResponse::Failed);
    };
    if (!arrival)
        return failed(arrival.failure().text);
    const auto &document = arrival->document;
    const PreparedPrint print = prepared ? prepared->print : PreparedPrint();
    if (!document && !canGoUnread(print, document.failure().reason))
        return failed(document.failure().text);
    const auto content = std::make_shared<pdekit::FileDescriptor>(std::move(arrival->content));
    const auto sendUnread = [this, content, name](const PrintJob &job) {
        run(new DocumentRun(job, std::move(*content), name, this), name);
    };
    if (prepared) {
        if (document)
            run(new PagesRun(print.job, filled(print, *document), this), name);
        else
            sendUnread(print.job);
        return answer(PortalResponse::Done);
    }
    const bool isRead = bool(document);
    PrintDialog *dialog = openDialog(call, request, PortalSettings(),
                                     isRead ? std::optional(pagesOf(*document)) : std::nullopt);
    connect(dialog, &PrintDialog::prepared, call,
            [this, call, isRead, sendUnread, name](const PreparedPrint &chosen) {
                call->answer(PortalResponse::Done);
                if (isRead)
                    run(new PagesRun(chosen.job, chosen.arrangement, this), name);
                else
                    sendUnread(chosen.job);
            });
}

void PrintPortal::run(PortalRun *started, const QString &name)
{
    runs_ += started;
    if (isEnding_)
        started->leave();
    connect(started, &PortalRun::finished, this, [this, started, name](const QString &trouble) {
        runs_.removeOne(started);
        started->deleteLater();
        if (!trouble.isEmpty())
            notice_->show(tr("Problem with printing %1").arg(name), trouble);
        update();
    });
    update();
}

} // namespace printdialog
