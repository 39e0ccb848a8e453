// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtWidgets/QFrame>

#include <functional>

class QLabel;
class QPushButton;

namespace printdialog {

/// One message to the user inside the window, beside what it is about instead of in a box over it. Plain text
/// only, since what it tells may come from another machine. Hidden while there is nothing to say.
class MessageBar : public QFrame
{
    Q_OBJECT

public:
    enum class Kind { Information, Warning, Error };

    explicit MessageBar(QWidget *parent = nullptr);

    void show(Kind kind, const QString &text);
    /// The same, with a button that opens the folder in the desktop's file manager.
    void showWithFolder(Kind kind, const QString &text, const QString &folder);
    /// The same, with a button for what can be done about it.
    void showWithAction(Kind kind, const QString &text, const QString &actionText,
                        const std::function<void()> &action);
    void clear();

    QString text() const;

protected:
    void changeEvent(QEvent *event) override;

private:
    void say(Kind kind, const QString &text);
    void applyColors();

    QLabel *icon_;
    QLabel *text_;
    QPushButton *openFolder_;
    QPushButton *actionButton_;
    std::function<void()> action_;
    QString folder_;
    Kind kind_ = Kind::Information;
};

} // namespace printdialog
