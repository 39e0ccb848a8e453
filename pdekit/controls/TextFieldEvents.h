// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "pdekit_export.h"

#include <QtCore/QObject>

class QLineEdit;

namespace pdekit {

/// The user's events in one text field, as distinct from changes by a program. A child of the field.
class PDEKIT_EXPORT TextFieldEvents : public QObject
{
    Q_OBJECT

public:
    /// The field's events; replaces those attached before.
    static TextFieldEvents *attach(QLineEdit *field);

Q_SIGNALS:
    /// The user has changed the text.
    void textDidChange();
    /// The user has left the field after typing in it, or has pressed Return.
    void textDidEndEditing();
    /// The user has pressed Return; emitted after textDidEndEditing.
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
