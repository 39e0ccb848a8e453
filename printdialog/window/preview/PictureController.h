// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QObject>
#include <QtCore/QPointer>

namespace printdialog {

class DialogSession;
class PhotoPane;

/// Shows in the preview what the session's choices do to the photo. Any number of choices between two
/// paintings are one change.
class PictureController : public QObject
{
    Q_OBJECT

public:
    PictureController(PhotoPane *photos, QObject *parent);

    /// The session may be null; it must outlive its use here.
    void setSession(DialogSession *session);

private:
    void schedule();
    void refresh();

    PhotoPane *photos_;
    QPointer<DialogSession> session_;
    bool isScheduled_ = false;
};

} // namespace printdialog
