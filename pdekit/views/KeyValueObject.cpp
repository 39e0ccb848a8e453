// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "KeyValueObject.h"

#include "ControlValues.h"

namespace pdekit {

void KeyValueObject::willChangeValueForKey(const QString &key)
{
    Q_EMIT valueWillChange(key);
}

void KeyValueObject::didChangeValueForKey(const QString &key)
{
    Q_EMIT valueDidChange(key);
}

std::optional<QString> KeyValueObject::valueOfBoundControl(QWidget *control)
{
    return stringValue(control);
}

void KeyValueObject::showValueInBoundControl(QWidget *control, const QString &value)
{
    setStringValue(control, value);
}

} // namespace pdekit
