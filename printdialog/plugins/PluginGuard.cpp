// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PluginGuard.h"

#include "PlainText.h"

#include <QtCore/QCoreApplication>

#include <exception>

namespace printdialog {

QString insideSentence(const QString &pluginText)
{
    QString text = plainText(pluginText, shownTextLimit).trimmed();
    while (text.endsWith(u'.'))
        text.chop(1);
    return text;
}

QString caughtText()
{
    QString text;
    try {
        throw;
    } catch (const std::exception &exception) {
        text = insideSentence(QString::fromUtf8(exception.what()));
    } catch (...) { // not a std::exception, so without a text
    }
    return text.isEmpty() ? QCoreApplication::translate("PluginGuard", "an error without a description")
                          : text;
}

std::optional<QString> thrownBy(const std::function<void()> &call)
{
    try {
        call();
    } catch (...) {
        return caughtText();
    }
    return std::nullopt;
}

} // namespace printdialog
