// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "HelpPage.h"
#include "PpdDocument.h"
#include "TsFile.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QRegularExpression>
#include <QtGui/QImage>
#include <QtTest/QTest>

using namespace printdialog;
using namespace Qt::StringLiterals;

namespace {

const QString helpFolder = QStringLiteral(CORVEL_SOURCE_DIR "/resources/help/");
const QString ppdPath = QStringLiteral(CORVEL_PPD);

QString pagePath(const QString &book, const QString &language)
{
    const QString ending = language == "en"_L1 ? QString() : u'_' + language;
    return u"%1%2/index%3.html"_s.arg(helpFolder, book, ending);
}

/// The texts that the panels show, by key.
QMap<QString, QString> panelTexts(const QString &language)
{
    QMap<QString, QString> texts;
    for (const TsEntry &entry :
         readTs(QStringLiteral(CORVEL_SOURCE_DIR "/resources/strings/Localizable_%1.ts").arg(language)))
        texts.insert(entry.source, entry.translations.value(0));
    return texts;
}

/// What the PPD's constraints put against the option: "CHOICE OTHEROPTION OTHERCHOICE".
QStringList exclusionsOf(const QString &option)
{
    QFile file(ppdPath);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    static const QRegularExpression line(u"^\\*UIConstraints: \\*(\\S+) (\\S+) \\*(\\S+) (\\S+)$"_s,
                                         QRegularExpression::MultilineOption);
    QStringList exclusions;
    for (auto match = line.globalMatch(QString::fromUtf8(file.readAll())); match.hasNext();) {
        const QStringList parts = match.next().capturedTexts();
        if (parts.at(1) == option)
            exclusions.append(parts.mid(2).join(u' '));
    }
    return exclusions;
}

QStringList valuesOf(const QList<HelpData> &data)
{
    QStringList values;
    for (const HelpData &entry : data)
        values.append(entry.value);
    return values;
}

/// The choices as the help has them: a range by its ends.
QStringList expectedChoices(const PpdDocument &ppd, const QString &option)
{
    QStringList choices;
    for (const PpdChoice &choice : ppd.choices(option))
        choices.append(choice.keyword);
    bool isNumber = false;
    std::ignore = choices.constFirst().toDouble(&isNumber);
    return isNumber ? QStringList{choices.constFirst(), choices.constLast()} : choices;
}

} // namespace

/// The help book of the plug-in, and the program's own help.
class HelpTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isWhole_data();
    void isWhole();
    void isTheSameInBothLanguages();
    void explainsEveryOption_data();
    void explainsEveryOption();
    void callsThingsAsThePanelsDo();
};

void HelpTest::isWhole_data()
{
    QTest::addColumn<QString>("book");
    QTest::addColumn<QString>("language");
    for (const QString &book : {u"Corvel9031Help"_s, u"program"_s}) {
        for (const QString &language : {u"en"_s, u"de"_s})
            QTest::addRow("%s %s", qPrintable(book), qPrintable(language)) << book << language;
    }
}

// Every link leads somewhere inside of the help, every picture is there in the size that the page keeps free
// for it.
void HelpTest::isWhole()
{
    QFETCH(QString, book);
    QFETCH(QString, language);
    const QString path = pagePath(book, language);
    const QDir folder = QFileInfo(path).dir();
    const HelpPage page = readHelpPage(path);
    QCOMPARE(page.error, QString());
    QCOMPARE(page.language, language);
    QVERIFY(page.links.size() > 5);
    QCOMPARE(QSet<QString>(page.anchors.cbegin(), page.anchors.cend()).size(), page.anchors.size());
    for (const QString &link : page.links) {
        const QString file = link.section(u'#', 0, 0);
        const QString anchor = link.section(u'#', 1);
        const HelpPage target =
            file.isEmpty() || file.endsWith(".css"_L1) ? page : readHelpPage(folder.filePath(file));
        QVERIFY2(file.isEmpty() || folder.exists(file), qPrintable(link));
        QVERIFY2(anchor.isEmpty() || target.anchors.contains(anchor), qPrintable(link));
    }
    for (const HelpPicture &picture : page.pictures) {
        const QString file = folder.filePath(picture.file);
        QVERIFY2(QImage(file).size() == picture.size, qPrintable(file));
        QVERIFY2(QFileInfo(file).size() < qint64(40) * 1024, qPrintable(file));
        QVERIFY2(!picture.text.isEmpty() && picture.file.contains(u'_' + language + u'.'), qPrintable(file));
    }
    for (const HelpTopic &topic : page.topics)
        QVERIFY2(page.links.contains(u'#' + topic.anchor), qPrintable(topic.heading));
}

void HelpTest::isTheSameInBothLanguages()
{
    for (const QString &book : {u"Corvel9031Help"_s, u"program"_s}) {
        const HelpPage english = readHelpPage(pagePath(book, u"en"_s));
        const HelpPage german = readHelpPage(pagePath(book, u"de"_s));
        QVERIFY(english.anchors.size() > 8);
        QCOMPARE(german.anchors, english.anchors);
        QCOMPARE(german.pictures.size(), english.pictures.size());
    }
}

void HelpTest::explainsEveryOption_data()
{
    QTest::addColumn<QString>("language");
    for (const char *language : {"en", "de"})
        QTest::newRow(language) << QString::fromLatin1(language);
}

// Its range or choices, its default and what it excludes are those of the printer.
void HelpTest::explainsEveryOption()
{
    QFETCH(QString, language);
    const HelpPage page = readHelpPage(pagePath(u"Corvel9031Help"_s, language));
    const QMap<QString, QString> texts = panelTexts(language);
    const auto ppd = PpdDocument::openFile(ppdPath);
    QVERIFY(ppd);
    QStringList options = ppd->options();
    for (const char *ofNoPanel : {"PageSize", "PageRegion", "Resolution"})
        options.removeOne(QLatin1String(ofNoPanel));
    QCOMPARE(options.size(), 15);
    for (const QString &option : options) {
        const HelpTopic *topic = page.topic(option);
        QVERIFY2(topic, qPrintable(option));
        QCOMPARE(topic->heading, texts.value(option));
        QCOMPARE(topic->facts.size(), 3);
        QCOMPARE(valuesOf(topic->facts.at(0)), expectedChoices(*ppd, option));
        QCOMPARE(valuesOf(topic->facts.at(1)), QStringList(ppd->defaultChoice(option).value_or(QString())));
        QCOMPARE(valuesOf(topic->facts.at(2)), exclusionsOf(option));
        for (const HelpData &choice : topic->facts.at(0) + topic->facts.at(1)) {
            const QString shown = texts.value(choice.value, choice.value).replace(u'-', u'\u2212');
            QCOMPARE(choice.text, shown);
        }
    }
}

void HelpTest::callsThingsAsThePanelsDo()
{
    const QMap<QString, QString> headings = {{u"coloradjust"_s, u"corvelColorAdjustments"_s},
                                             {u"sharpness"_s, u"corvelSharpness"_s},
                                             {u"matte"_s, u"corvelOptions"_s},
                                             {u"defaults"_s, u"corvelDefaults"_s}};
    for (const QString &language : {u"en"_s, u"de"_s}) {
        const HelpPage page = readHelpPage(pagePath(u"Corvel9031Help"_s, language));
        const QMap<QString, QString> texts = panelTexts(language);
        for (auto entry = headings.cbegin(); entry != headings.cend(); ++entry) {
            const HelpTopic *topic = page.topic(entry.key());
            QVERIFY2(topic, qPrintable(entry.key()));
            QCOMPARE(topic->heading, texts.value(*entry));
        }
    }
}

QTEST_GUILESS_MAIN(HelpTest)
#include "HelpTest.moc"
