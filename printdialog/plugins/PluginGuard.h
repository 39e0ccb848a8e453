// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QString>

#include <functional>
#include <optional>

namespace printdialog {

/// The text of the exception being handled, safe to show, without a final full stop.
QString caughtText();

/// Calls a plug-in; every such call of the dialog goes through here, so that exceptions end here. Returns
/// nothing when the call has returned, else caughtText().
std::optional<QString> thrownBy(const std::function<void()> &call);

/// A plug-in's text, made fit for use inside a sentence.
QString insideSentence(const QString &pluginText);

} // namespace printdialog
