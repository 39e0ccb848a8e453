// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QString>

class QCoreApplication;
class QTranslator;

namespace printdialog {

/// Loads the program's texts in the first of the user's languages that it has. The texts in the source are
/// the English ones, except for plural forms.
/// @return the language's code; empty when there are none
QString loadOwnTexts(QTranslator &translator);

/// Installs the program's texts in the user's language, and Qt's own (file dialogs, buttons) in the same
/// language, if present.
void loadTranslations(QCoreApplication &application);

} // namespace printdialog
