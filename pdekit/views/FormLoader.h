// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "pdekit_export.h"

#include <memory>

class QString;
class QWidget;

namespace pdekit {

class Bundle;
class KeyValueObject;

/// Loads the form `name` (Qt Designer, `name`.ui) from the bundle's resources, with `owner` as the receiver
/// of its actions: where a control's dynamic property `action` names an invokable member of `owner` that
/// takes a QObject *, each action of the user on the control calls it with the control. Accessible names and
/// descriptions are keys of the bundle's strings table and are localized here. Controls are bound to the
/// owner's values (bindControls). A text field whose property `numberOf` names a slider accepts numbers with
/// the user's decimal separator and announces the slider's range; a label whose property `rangeOf` names the
/// slider shows it. The form's root is the view, named `PDEView`. If its widgets have no layout, its property
/// `lineHeight` is the line height, in pixels, that the form was designed for: with a larger font everything
/// is scaled up.
///
/// Null when the bundle has no such form or it cannot be read. Throws PlatformException when the form names
/// an action that `owner` does not have.
PDEKIT_EXPORT std::unique_ptr<QWidget> loadForm(const Bundle &bundle, const QString &name,
                                                KeyValueObject *owner);

} // namespace pdekit
