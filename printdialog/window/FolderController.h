// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QObject>
#include <QtCore/QString>

namespace printdialog {

class ChoiceController;
class DialogSession;
class FolderPrinter;
class MessageBar;
class PhotoPane;
class WatchBar;
struct Queue;

/// Prints the photos that arrive in a folder while the window is open, with the choices and the arrangement's
/// style of the moment when it is switched on.
class FolderController : public QObject
{
    Q_OBJECT

public:
    struct Widgets
    {
        PhotoPane *photos;
        WatchBar *bar;
        MessageBar *message;
    };

    FolderController(const Widgets &widgets, ChoiceController *choices, QObject *parent);
    ~FolderController() override;

    /// Another printer ends it. The session must outlive this or the next call; null: none.
    void setSession(DialogSession *session);
    /// Starts with the session's choices. When they make no job, the window says why.
    /// @param output where the built-in printer leaves its files
    void start(int copies, const QString &output, const Queue &queue);
    void stop();

private:
    void refuse(const QString &sentence);

    Widgets widgets_;
    ChoiceController *choices_;
    FolderPrinter *printer_;
    DialogSession *session_ = nullptr;
};

} // namespace printdialog
