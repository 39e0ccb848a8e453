// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QList>
#include <QtWidgets/QFrame>

#include <functional>

class QLabel;
class QPushButton;

namespace printdialog {

class LimitedText;
class WrappingRow;

/// One message to the user, inside the window rather than in a box over it. Plain text only, since it may
/// come from another machine. It may have any length: the bar stays low, and scrolls. Hidden while there is
/// no message.
class MessageBar : public QFrame
{
    Q_OBJECT

public:
    enum class Kind { Information, Warning, Error, Question };

    /// A remedy or an answer, offered as a button.
    struct Action
    {
        QString text;
        std::function<void()> perform;
    };

    struct Message
    {
        Kind kind = Kind::Information;
        QString text;
        QString details; ///< shown on demand; may be empty
        QString folder;  ///< with a button that opens it in the desktop's file manager; may be empty
        QList<Action> actions;
    };

    explicit MessageBar(QWidget *parent = nullptr);

    void show(const Message &message);
    void show(Kind kind, const QString &text) { show(Message{kind, text, {}, {}, {}}); }
    /// Shows the message with a button for a remedy.
    void showWithAction(Kind kind, const QString &text, const QString &actionText,
                        const std::function<void()> &action);
    /// Shows the question and gives its first answer the focus. An answer removes it.
    void ask(const QString &text, const QList<Action> &answers);
    /// Adds a sentence to the message, as an error; its buttons stay.
    void append(const QString &sentence);
    void clear();

    QString text() const;
    /// Whether a question is waiting for an answer.
    bool isAsking() const { return isVisible() && message_.kind == Kind::Question; }

protected:
    void changeEvent(QEvent *event) override;

private:
    void makeActions();
    void perform(qsizetype index);
    void showDetails(bool areShown);
    void applyColors();

    QLabel *icon_;
    LimitedText *text_;
    LimitedText *details_;
    QPushButton *showDetails_;
    QPushButton *openFolder_;
    WrappingRow *row_;
    QList<QPushButton *> actionButtons_;
    Message message_;
};

} // namespace printdialog
