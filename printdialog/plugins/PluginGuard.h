// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QString>

#include <functional>
#include <optional>

namespace printdialog {

/// The exception that is being caught, in its own words, which are fit to be shown, without a full stop.
QString caughtText();

/// The one way in which the dialog calls a plug-in: whatever that throws ends here. Nothing when the call has
/// come back, else caughtText().
std::optional<QString> thrownBy(const std::function<void()> &call);

/// A text of a plug-in's, fit to stand inside a sentence.
QString insideSentence(const QString &pluginText);

} // namespace printdialog
