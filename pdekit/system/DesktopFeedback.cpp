// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "DesktopFeedback.h"

#include "Bundle.h"

#include <QtCore/QFileInfo>
#include <QtCore/QLocale>
#include <QtCore/QUrl>
#include <QtGui/QDesktopServices>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>

namespace pdekit {

namespace {

std::optional<QString> startPage(const Bundle &bundle, const QString &book)
{
    const QStringList languages = QLocale().uiLanguages();
    for (const QString &language : languages) {
        const QString name = QStringLiteral("index_%1").arg(language.section(QLatin1Char('-'), 0, 0));
        if (auto page = bundle.pathForResource(book + QLatin1Char('/') + name, QStringLiteral("html")))
            return page;
        if (language.startsWith(QLatin1String("en")))
            break;
    }
    return bundle.pathForResource(book + QLatin1String("/index"), QStringLiteral("html"));
}

} // namespace

void DesktopFeedback::beep()
{
    QApplication::beep();
}

void DesktopFeedback::alert(const Alert &alert)
{
    QMessageBox box(QMessageBox::Warning, QString(), alert.message, QMessageBox::NoButton,
                    QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(alert.information);
    // The text format above applies only to the message.
    const QList<QLabel *> labels = box.findChildren<QLabel *>();
    for (QLabel *label : labels)
        label->setTextFormat(Qt::PlainText);
    box.setDefaultButton(box.addButton(alert.button, QMessageBox::AcceptRole));
    box.exec();
}

bool DesktopFeedback::openHelpBook(const Bundle &bundle, const QString &name)
{
    const std::optional<QString> page = startPage(bundle, name);
    return page && QDesktopServices::openUrl(QUrl::fromLocalFile(*page));
}

} // namespace pdekit
