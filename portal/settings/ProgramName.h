// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QString>

namespace printdialog {

/// A program's name for people, from its desktop file, in the user's language; its id where it has none.
/// Plain text, limited.
/// @param id as the portal's front end reports it; may be empty
QString programName(const QString &id);

/// What a program's document is called: "Firefox: Title". Titles that say nothing are left out.
QString documentName(const QString &program, const QString &title);

/// A button's text with GTK's mnemonic, "_Print", as Qt has it. Plain text, limited; empty stays empty.
QString buttonText(const QString &label);

} // namespace printdialog
