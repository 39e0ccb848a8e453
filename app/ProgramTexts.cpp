// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ProgramTexts.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QLibraryInfo>
#include <QtCore/QLocale>
#include <QtCore/QTranslator>

namespace printdialog {

QString loadOwnTexts(QTranslator &translator)
{
    const QStringList languages = QLocale().uiLanguages() << QStringLiteral("en");
    for (const QString &language : languages) {
        const QString code = language.section(u'-', 0, 0);
        if (translator.load(QStringLiteral(":/corvel-print/i18n/corvel-print_%1.qm").arg(code)))
            return code;
    }
    return {};
}

void loadTranslations(QCoreApplication &application)
{
    auto *own = new QTranslator(&application);
    const QString code = loadOwnTexts(*own);
    QCoreApplication::installTranslator(own);
    auto *qts = new QTranslator(&application);
    if (qts->load(QStringLiteral("qtbase_%1.qm").arg(code),
                  QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(qts);
}

} // namespace printdialog
