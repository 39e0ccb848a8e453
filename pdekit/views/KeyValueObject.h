// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "pdekit_export.h"

#include <QtCore/QObject>
#include <QtCore/QString>

#include <optional>

class QWidget;

namespace pdekit {

/// An object whose values can be read and written by key (its Qt properties) and that reports changes. The
/// owner of a form: the form's controls may be bound to its keys (see bindControls).
class PDEKIT_EXPORT KeyValueObject : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Called before the value for `key` changes, and after it has changed. An override that derives other
    /// values from it reports those as well.
    virtual void willChangeValueForKey(const QString &key);
    virtual void didChangeValueForKey(const QString &key);

    /// The value shown by a bound control of this object's form.
    virtual std::optional<QString> valueOfBoundControl(QWidget *control);
    /// Makes a bound control show the value without triggering an action.
    virtual void showValueInBoundControl(QWidget *control, const QString &value);

Q_SIGNALS:
    void valueWillChange(const QString &key);
    void valueDidChange(const QString &key);
};

} // namespace pdekit
