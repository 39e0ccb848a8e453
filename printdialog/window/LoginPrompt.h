// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Logins.h"

#include <QtCore/QObject>
#include <QtWidgets/QWidget>

#include <memory>

namespace printdialog {

/// Asks for names and passwords (Logins) in a dialog of the window, while the worker that needs them waits.
/// Its end, or that of the worker's task, cancels the question.
class LoginPrompt : public QObject
{
    Q_OBJECT

public:
    /// @param window a parent's, too
    explicit LoginPrompt(QWidget *window);
    ~LoginPrompt() override;

private:
    struct Asked;

    static std::optional<Login> ask(const std::shared_ptr<Asked> &asked, const LoginQuestion &question,
                                    const int *cancel);
    void show(const LoginQuestion &question, int number);

    QWidget *window_;
    std::shared_ptr<Asked> asked_; ///< shared with the worker that waits
};

} // namespace printdialog
