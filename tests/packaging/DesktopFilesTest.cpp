// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "CommandRun.h"

#include <QtCore/QFile>
#include <QtCore/QXmlStreamReader>
#include <QtTest/QTest>

using namespace testing_support;
using namespace Qt::StringLiterals;

namespace {

const QString id = u"org.corvel.print"_s;
const QString folder = QStringLiteral(CORVEL_SOURCE_DIR "/packaging/");
const QString desktopFile = folder + id + ".desktop"_L1;
const QString metainfoFile = folder + id + ".metainfo.xml"_L1;

using Groups = QMap<QString, QMap<QString, QString>>;

Groups readDesktopFile()
{
    Groups groups;
    QString group;
    for (const QString &line : QString::fromUtf8(contentOf(desktopFile)).split(u'\n')) {
        if (line.startsWith(u'['))
            group = line.mid(1, line.size() - 2);
        else if (const qsizetype equals = line.indexOf(u'='); equals > 0 && !line.startsWith(u'#'))
            groups[group].insert(line.left(equals), line.mid(equals + 1));
    }
    return groups;
}

struct Element
{
    QString name;
    QString text;
    QString language; ///< empty: English
    QString type;
};

QList<Element> readMetainfo()
{
    QFile file(metainfoFile);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QXmlStreamReader xml(&file);
    QList<Element> elements;
    QList<qsizetype> open;
    while (!xml.atEnd()) {
        switch (xml.readNext()) {
        case QXmlStreamReader::StartElement:
            open.append(elements.size());
            elements.append({xml.name().toString(),
                             {},
                             xml.attributes().value("xml:lang"_L1).toString(),
                             xml.attributes().value("type"_L1).toString()});
            break;
        case QXmlStreamReader::EndElement:
            open.removeLast();
            break;
        case QXmlStreamReader::Characters:
            if (!open.isEmpty())
                elements[open.constLast()].text += xml.text();
            break;
        default:
            break;
        }
    }
    return elements;
}

QStringList textsOf(const QList<Element> &elements, const QString &name)
{
    QStringList texts;
    for (const Element &element : elements) {
        if (element.name == name)
            texts.append(element.text.simplified());
    }
    return texts;
}

} // namespace

/// The files by which desktops and software centres know the program.
class DesktopFilesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void areValid();
    void agreeWithEachOther();
    void speakEveryLanguage();
};

void DesktopFilesTest::areValid()
{
    const CommandRun desktop = runCommand(u"desktop-file-validate"_s, {desktopFile});
    QVERIFY2(desktop.status == 0 && desktop.output.isEmpty(), desktop.output.constData());
    const CommandRun metainfo =
        runCommand(u"appstreamcli"_s, {u"validate"_s, u"--no-net"_s, u"--pedantic"_s, metainfoFile});
    QVERIFY2(metainfo.status == 0, metainfo.output.constData());
}

void DesktopFilesTest::agreeWithEachOther()
{
    const QMap<QString, QString> entry = readDesktopFile().value(u"Desktop Entry"_s);
    const QList<Element> elements = readMetainfo();
    QCOMPARE(textsOf(elements, u"id"_s), QStringList(id));
    QCOMPARE(textsOf(elements, u"launchable"_s), QStringList(id + ".desktop"_L1));
    QCOMPARE(textsOf(elements, u"icon"_s), QStringList(entry.value(u"Icon"_s)));
    QCOMPARE(textsOf(elements, u"name"_s).value(0), entry.value(u"Name"_s));
    QCOMPARE(textsOf(elements, u"mediatype"_s), entry.value(u"MimeType"_s).split(u';', Qt::SkipEmptyParts));
    QCOMPARE(textsOf(elements, u"binary"_s), QStringList(entry.value(u"TryExec"_s)));
    QVERIFY(entry.value(u"Exec"_s).startsWith(entry.value(u"TryExec"_s) + u' '));
}

void DesktopFilesTest::speakEveryLanguage()
{
    const QStringList languages = {u"de"_s, u"fr"_s, u"es"_s, u"ja"_s};
    const Groups groups = readDesktopFile();
    QCOMPARE(groups.size(), 2); // an action beside the entry itself
    for (const QMap<QString, QString> &group : groups) {
        for (const QString &key : {u"Name"_s, u"GenericName"_s, u"Comment"_s, u"Keywords"_s}) {
            for (const QString &language : languages) {
                QVERIFY2(group.contains(key) == group.contains(u"%1[%2]"_s.arg(key, language)),
                         qPrintable(key + u' ' + language));
            }
        }
    }
    QMap<QString, int> counts;
    for (const Element &element : readMetainfo()) {
        for (const auto *name : {"name", "summary", "p", "li"}) {
            if (element.name == QLatin1String(name))
                ++counts[element.name + u' ' + element.language];
        }
    }
    for (const QString &name : {u"name"_s, u"summary"_s, u"p"_s, u"li"_s}) {
        QVERIFY(counts.value(name + u' ') > 0);
        for (const QString &language : languages)
            QCOMPARE(counts.value(name + u' ' + language), counts.value(name + u' '));
    }
}

QTEST_GUILESS_MAIN(DesktopFilesTest)
#include "DesktopFilesTest.moc"
