// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ProgramName.h"

#include "PlainText.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QHash>
#include <QtCore/QLocale>
#include <QtCore/QRegularExpression>
#include <QtCore/QStandardPaths>

namespace printdialog {

namespace {

struct ProgramNameText
{
    Q_DECLARE_TR_FUNCTIONS(ProgramName)
};

constexpr qsizetype longestName = 60;
constexpr qsizetype longestTitle = 120;
constexpr qsizetype longestLabel = 40;
constexpr qint64 mostRead = 1 << 18; // bytes

/// The entries "Name" and "Name[LANGUAGE]" of the file's main group.
QHash<QString, QString> namesIn(const QString &path)
{
    QHash<QString, QString> names;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return names;
    static const QRegularExpression entry(QStringLiteral("\\AName(?:\\[([A-Za-z_@.]+)\\])?\\s*=\\s*(.*)\\z"));
    bool isInGroup = false;
    const QStringList lines = QString::fromUtf8(file.read(mostRead)).split(u'\n');
    for (const QString &line : lines) {
        if (line.startsWith(u'['))
            isInGroup = line.trimmed() == QLatin1String("[Desktop Entry]");
        const auto match = isInGroup ? entry.match(line) : QRegularExpressionMatch();
        if (match.hasMatch())
            names.insert(match.captured(1), match.captured(2).trimmed());
    }
    return names;
}

} // namespace

QString programName(const QString &id)
{
    static const QRegularExpression plain(QStringLiteral("\\A[A-Za-z0-9_][A-Za-z0-9._-]{0,200}\\z"));
    if (!plain.match(id).hasMatch())
        return plainText(id, longestName).trimmed();
    const QString path =
        QStandardPaths::locate(QStandardPaths::ApplicationsLocation, id + QLatin1String(".desktop"));
    const QHash<QString, QString> names = path.isEmpty() ? QHash<QString, QString>() : namesIn(path);
    const QString language = QLocale().name();
    for (const QString &key : {language, language.section(u'_', 0, 0), QString()}) {
        if (const QString name = plainText(names.value(key), longestName).trimmed(); !name.isEmpty())
            return name;
    }
    return id.left(longestName);
}

QString documentName(const QString &program, const QString &untrusted)
{
    const QString title = plainText(untrusted, longestTitle).trimmed();
    const bool saysNothing = title.isEmpty() || title == QLatin1String("Print") || title == program;
    if (saysNothing)
        return program.isEmpty() ? ProgramNameText::tr("Document") : program;
    return program.isEmpty()
               ? title
               : ProgramNameText::tr("%1: %2", "a program and its document").arg(program, title);
}

QString buttonText(const QString &label)
{
    QString text = plainText(label, longestLabel).trimmed();
    text.replace(u'&', QLatin1String("&&"));
    QString made;
    bool hasMnemonic = false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text.at(i) != u'_')
            made += text.at(i);
        else if (i + 1 < text.size() && text.at(i + 1) == u'_')
            made += text.at(++i);
        else if (!std::exchange(hasMnemonic, true))
            made += u'&';
    }
    return made;
}

} // namespace printdialog
