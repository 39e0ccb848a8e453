// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "pdekit_export.h"

#include <QtCore/QObject>

class QLineEdit;

namespace pdekit {

/// What a user does in one text field, told apart from what a program puts there. A child of the field.
class PDEKIT_EXPORT TextFieldEvents : public QObject
{
    Q_OBJECT

public:
    /// The field's events, in the place of any that were attached before.
    static TextFieldEvents *attach(QLineEdit *field);

Q_SIGNALS:
    /// The user has changed the text.
    void textDidChange();
    /// The user has left the field after typing in it, or has pressed Return.
    void textDidEndEditing();
    /// The user has pressed Return; sent after textDidEndEditing.
    void action();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    explicit TextFieldEvents(QLineEdit *field);
    void noteEdit();
    void finishEditing();

    bool edited_ = false;
    bool returnPressed_ = false;
};

} // namespace pdekit
