// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PictureController.h"

#include "DialogSession.h"
#include "PhotoPane.h"

namespace printdialog {

PictureController::PictureController(PhotoPane *photos, QObject *parent)
    : QObject(parent)
    , photos_(photos)
{
}

void PictureController::setSession(DialogSession *session)
{
    if (session_)
        session_->disconnect(this);
    if (session_)
        session_->chosen().disconnect(this);
    session_ = session;
    if (session) {
        connect(&session->chosen(), &ChosenOptions::changed, this, &PictureController::schedule);
        connect(session, &DialogSession::panelFailed, this, &PictureController::schedule);
        connect(session, &DialogSession::jobOptionsChanged, this, &PictureController::schedule);
    }
    schedule();
}

/// Later: the panel records its choice after it was accepted, and more choices may follow.
void PictureController::schedule()
{
    if (std::exchange(isScheduled_, true))
        return;
    QMetaObject::invokeMethod(this, &PictureController::refresh, Qt::QueuedConnection);
}

void PictureController::refresh()
{
    isScheduled_ = false;
    if (session_)
        photos_->setPrinterPicture(
            {session_->adjustment(), session_->dotsPerInch(), session_->paperProfile()});
    else
        photos_->setPrinterPicture({});
}

} // namespace printdialog
