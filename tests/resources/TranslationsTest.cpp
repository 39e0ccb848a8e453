// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "TsFile.h"

#include <QtCore/QFileInfo>
#include <QtCore/QProcess>
#include <QtCore/QRegularExpression>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

namespace {

const QString sourceDir = QStringLiteral(CORVEL_SOURCE_DIR);

QString fileFor(const QString &language)
{
    return QStringLiteral("%1/resources/i18n/corvel-print_%2.ts").arg(sourceDir, language);
}

/// The places that values are put in, each as often as it occurs.
QStringList placeholders(const QString &text)
{
    static const QRegularExpression place(QStringLiteral("%(?:\\d|n)"));
    QStringList found;
    for (auto match = place.globalMatch(text); match.hasNext();)
        found.append(match.next().captured());
    found.sort();
    return found;
}

/// The letters that Alt is pressed with.
QString mnemonics(const QString &text)
{
    static const QRegularExpression marked(QStringLiteral("&(\\w)"),
                                           QRegularExpression::UseUnicodePropertiesOption);
    QString letters;
    for (auto match = marked.globalMatch(text); match.hasNext();)
        letters += match.next().captured(1).toUpper();
    return letters;
}

QByteArray helpIn(const QString &locale)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("LC_ALL"));
    environment.remove(QStringLiteral("LANGUAGE"));
    environment.insert(QStringLiteral("LANG"), locale);
    QProcess program;
    program.setProcessEnvironment(environment);
    program.start(QStringLiteral(CORVEL_PRINT_PROGRAM), {QStringLiteral("--help")});
    return program.waitForFinished() ? program.readAllStandardOutput() : QByteArray();
}

} // namespace

class TranslationsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void entriesAreComplete_data() { languages(); }
    void entriesAreComplete();
    void holdsEveryTextOfTheSources_data() { languages(); }
    void holdsEveryTextOfTheSources();
    void mnemonicsDoNotClash_data() { languages(); }
    void mnemonicsDoNotClash();
    void isInTheProgram_data();
    void isInTheProgram();

private:
    static void languages()
    {
        QTest::addColumn<QString>("language");
        for (const char *language : {"en", "de", "fr", "es", "ja"})
            QTest::newRow(language) << QString::fromLatin1(language);
    }
};

void TranslationsTest::entriesAreComplete()
{
    QFETCH(QString, language);
    const QList<TsEntry> entries = readTs(fileFor(language));
    QVERIFY(!entries.isEmpty());
    static const QRegularExpression plainSpace(QStringLiteral(" [:;!?»]|« "));
    for (const TsEntry &entry : entries) {
        const QByteArray key = entry.key().toUtf8();
        QVERIFY2(entry.isFinished && !entry.translations.isEmpty(), key.constData());
        for (const QString &text : entry.translations) {
            QVERIFY2(!text.isEmpty(), key.constData());
            QVERIFY2(placeholders(text) == placeholders(entry.source), key.constData());
            QVERIFY2(mnemonics(text).size() == mnemonics(entry.source).size(), key.constData());
            QVERIFY2(text.endsWith(u'\n') == entry.source.endsWith(u'\n'), key.constData());
            QVERIFY2(language != QLatin1String("fr") || !text.contains(plainSpace), key.constData());
        }
    }
}

void TranslationsTest::holdsEveryTextOfTheSources()
{
    QFETCH(QString, language);
    const QTemporaryDir folder;
    const QString copy = folder.filePath(QFileInfo(fileFor(language)).fileName());
    QVERIFY(QFile::copy(fileFor(language), copy));

    QStringList arguments = {
        QStringLiteral("-silent"), QStringLiteral("-no-obsolete"), QStringLiteral("-locations"),
        QStringLiteral("none"),    QStringLiteral("printdialog"),  QStringLiteral("app"),
        QStringLiteral("pdekit"),  QStringLiteral("-ts"),          copy};
    if (language == QLatin1String("en"))
        arguments.prepend(QStringLiteral("-pluralonly"));
    QProcess lupdate;
    lupdate.setWorkingDirectory(sourceDir);
    lupdate.start(QStringLiteral(CORVEL_LUPDATE), arguments);
    QVERIFY(lupdate.waitForFinished());
    QCOMPARE(lupdate.exitCode(), 0);
    // It complains of a text whose context it cannot tell, and the program would not find the translation.
    QCOMPARE(lupdate.readAllStandardError(), QByteArray());

    const QList<TsEntry> known = readTs(fileFor(language));
    const QList<TsEntry> now = readTs(copy);
    QCOMPARE(keysMissingIn(known, now), QStringList());
    QCOMPARE(keysMissingIn(now, known), QStringList());
}

void TranslationsTest::mnemonicsDoNotClash()
{
    QFETCH(QString, language);
    QString letters;
    for (const TsEntry &entry : readTs(fileFor(language))) {
        if (entry.context != QLatin1String("PrintDialog"))
            continue;
        const QString own = mnemonics(entry.translations.value(0));
        QVERIFY2(own.isEmpty() || !letters.contains(own), qPrintable(entry.key()));
        letters += own;
    }
    QCOMPARE(letters.isEmpty(), language == QLatin1String("en")); // its texts are in the form itself
}

void TranslationsTest::isInTheProgram_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QByteArray>("start");
    QTest::newRow("German") << QStringLiteral("de_AT.UTF-8") << QByteArray("Aufruf: corvel-print");
    QTest::newRow("French") << QStringLiteral("fr_FR.UTF-8") << QByteArray("Utilisation\u202f: corvel-print");
    QTest::newRow("Spanish") << QStringLiteral("es_MX.UTF-8") << QByteArray("Uso: corvel-print");
    QTest::newRow("Japanese") << QStringLiteral("ja_JP.UTF-8") << QByteArray("使い方: corvel-print");
    QTest::newRow("a language it lacks")
        << QStringLiteral("is_IS.UTF-8") << QByteArray("Usage: corvel-print");
}

void TranslationsTest::isInTheProgram()
{
    QFETCH(QString, locale);
    QFETCH(QByteArray, start);
    const QByteArray help = helpIn(locale);
    QVERIFY2(help.startsWith(start), help.left(60).constData());
}

QTEST_GUILESS_MAIN(TranslationsTest)
#include "TranslationsTest.moc"
