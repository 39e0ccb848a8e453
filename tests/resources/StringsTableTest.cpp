// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PpdDocument.h"
#include "TsFile.h"

#include <QtCore/QDir>
#include <QtCore/QProcess>
#include <QtCore/QRegularExpression>
#include <QtCore/QStandardPaths>
#include <QtCore/QXmlStreamReader>
#include <QtTest/QTest>

using namespace printdialog;

namespace {

const QString resourceDir = QStringLiteral(CORVEL_SOURCE_DIR "/resources");

QList<TsEntry> table(const QString &language)
{
    return readTs(QStringLiteral("%1/strings/Localizable_%2.ts").arg(resourceDir, language));
}

QSet<QString> tableKeys()
{
    QSet<QString> keys;
    for (const TsEntry &entry : table(QStringLiteral("en")))
        keys.insert(entry.source);
    return keys;
}

bool isNumber(const QString &text)
{
    bool isNumber = false;
    static_cast<void>(text.toDouble(&isNumber));
    return isNumber;
}

/// The texts of a form that people see or hear.
QStringList textsOf(const QString &form)
{
    QFile file(form);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QXmlStreamReader reader(&file);
    QStringList texts;
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement || reader.name() != QLatin1String("string"))
            continue;
        const bool isForPeople = reader.attributes().value(QLatin1String("notr")) != QLatin1String("true");
        const QString text = reader.readElementText();
        if (isForPeople && !text.isEmpty() && !isNumber(text))
            texts.append(text);
    }
    return texts;
}

void addPpds()
{
    QTest::addColumn<QString>("path");
    const QStringList paths = QStringLiteral(CORVEL_PPDS).split(u':');
    for (const QString &path : paths)
        QTest::newRow(qPrintable(QFileInfo(path).fileName())) << path;
}

} // namespace

class StringsTableTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void languagesHaveTheSameKeys_data();
    void languagesHaveTheSameKeys();
    void formsHaveEntries_data();
    void formsHaveEntries();
    void ppdsHaveEntries_data() { addPpds(); }
    void ppdsHaveEntries();
    void ppdsPassTheChecker_data() { addPpds(); }
    void ppdsPassTheChecker();
    void siblingIsNotNamedLikeTheFirst();
};

void StringsTableTest::languagesHaveTheSameKeys_data()
{
    QTest::addColumn<QString>("language");
    for (const char *language : {"en", "de", "fr", "es", "ja"})
        QTest::newRow(language) << QString::fromLatin1(language);
}

void StringsTableTest::languagesHaveTheSameKeys()
{
    QFETCH(QString, language);
    const QList<TsEntry> entries = table(language);
    QVERIFY(!entries.isEmpty());
    const QList<TsEntry> english = table(QStringLiteral("en"));
    QCOMPARE(keysMissingIn(entries, english), QStringList());
    QCOMPARE(keysMissingIn(english, entries), QStringList());
    QCOMPARE(entries.size(), english.size()); // none twice
    for (const TsEntry &entry : entries) {
        QVERIFY2(entry.isFinished, qPrintable(entry.source));
        QVERIFY2(!entry.translations.value(0).trimmed().isEmpty(), qPrintable(entry.source));
    }
}

void StringsTableTest::formsHaveEntries_data()
{
    QTest::addColumn<QString>("path");
    const QDir folder(resourceDir + QLatin1String("/forms"));
    for (const QString &name : folder.entryList({QStringLiteral("*.ui")}))
        QTest::newRow(qPrintable(name)) << folder.filePath(name);
}

void StringsTableTest::formsHaveEntries()
{
    QFETCH(QString, path);
    const QStringList texts = textsOf(path);
    QVERIFY(!texts.isEmpty());
    const QSet<QString> keys = tableKeys();
    for (const QString &text : texts)
        QVERIFY2(keys.contains(text), qPrintable(text));
}

void StringsTableTest::ppdsHaveEntries()
{
    QFETCH(QString, path);
    const auto document = PpdDocument::openFile(path);
    QVERIFY(document);
    const QSet<QString> keys = tableKeys();
    const QStringList namedByThePpd = {QStringLiteral("PageSize"), QStringLiteral("Resolution")};
    for (const QString &option : document->options()) {
        if (option == QLatin1String("PageRegion")) // PageSize under another name; nobody is shown it
            continue;
        QVERIFY2(keys.contains(option), qPrintable(option));
        if (namedByThePpd.contains(option))
            continue;
        for (const PpdChoice &choice : document->choices(option)) {
            if (isNumber(choice.keyword))
                continue;
            QVERIFY2(keys.contains(choice.keyword), qPrintable(choice.keyword));
            QVERIFY2(keys.contains(choice.text), qPrintable(choice.text));
        }
    }
}

void StringsTableTest::ppdsPassTheChecker()
{
    QFETCH(QString, path);
    const QString checker = QStandardPaths::findExecutable(QStringLiteral("cupstestppd"));
    if (checker.isEmpty())
        QSKIP("There is no cupstestppd; it comes with the package cups-client.");
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(checker, {QStringLiteral("-v"), path});
    QVERIFY(process.waitForFinished());
    const QByteArray report = process.readAll();
    QVERIFY2(process.exitCode() == 0, report.constData());
    static const QRegularExpression fault(QStringLiteral("\\b(FAIL|WARN)\\b"));
    QVERIFY2(!QString::fromUtf8(report).contains(fault), report.constData());
}

void StringsTableTest::siblingIsNotNamedLikeTheFirst()
{
    QFile file(QStringLiteral(CORVEL_PPDS).split(u':').last());
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(file.readAll());
    QVERIFY(text.contains(QLatin1String("K9045")));
    QVERIFY(!text.contains(QLatin1String("K9031"), Qt::CaseInsensitive));
}

QTEST_GUILESS_MAIN(StringsTableTest)
#include "StringsTableTest.moc"
