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
const QStringList languages = {u"en"_s, u"de"_s, u"fr"_s, u"es"_s, u"ja"_s};
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

void addLanguages()
{
    QTest::addColumn<QString>("language");
    for (const QString &language : languages)
        QTest::newRow(qPrintable(language)) << language;
}

/// A text of the program's without what underlines a letter of it or says that more follows.
QString plainTerm(QString text)
{
    static const QRegularExpression letter(u"\\(&\\w\\)|&|…"_s);
    return text.remove(letter);
}

/// The program's translations of an English term; a term may be another text in another place.
QStringList translationsOf(const QString &term, const QString &language)
{
    QStringList translations;
    for (const TsEntry &entry :
         readTs(QStringLiteral(CORVEL_SOURCE_DIR "/resources/i18n/corvel-print_%1.ts").arg(language))) {
        if (plainTerm(entry.source) == term)
            translations.append(plainTerm(entry.translations.value(0)));
    }
    return translations;
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
    void isTheSameInEveryLanguage_data() { addLanguages(); }
    void isTheSameInEveryLanguage();
    void explainsEveryOption_data() { addLanguages(); }
    void explainsEveryOption();
    void callsThingsAsThePanelsDo_data() { addLanguages(); }
    void callsThingsAsThePanelsDo();
    void callsThingsAsTheProgramDoes_data() { addLanguages(); }
    void callsThingsAsTheProgramDoes();
};

void HelpTest::isWhole_data()
{
    QTest::addColumn<QString>("book");
    QTest::addColumn<QString>("language");
    for (const QString &book : {u"Corvel9031Help"_s, u"program"_s}) {
        for (const QString &language : languages)
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

void HelpTest::isTheSameInEveryLanguage()
{
    QFETCH(QString, language);
    for (const QString &book : {u"Corvel9031Help"_s, u"program"_s}) {
        const HelpPage english = readHelpPage(pagePath(book, u"en"_s));
        const HelpPage translated = readHelpPage(pagePath(book, language));
        QVERIFY(english.anchors.size() > 8);
        QCOMPARE(translated.anchors, english.anchors);
        QCOMPARE(translated.pictures.size(), english.pictures.size());
        QCOMPARE(translated.links.size(), english.links.size());
        QCOMPARE(translated.terms.size(), english.terms.size());
    }
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
    QFETCH(QString, language);
    const HelpPage page = readHelpPage(pagePath(u"Corvel9031Help"_s, language));
    const QMap<QString, QString> texts = panelTexts(language);
    for (auto entry = headings.cbegin(); entry != headings.cend(); ++entry) {
        const HelpTopic *topic = page.topic(entry.key());
        QVERIFY2(topic, qPrintable(entry.key()));
        QCOMPARE(topic->heading, texts.value(*entry));
    }
}

// Whatever the English help sets in bold and the program shows is in the other languages' help as the program
// shows it there.
void HelpTest::callsThingsAsTheProgramDoes()
{
    QFETCH(QString, language);
    const HelpPage page = readHelpPage(pagePath(u"program"_s, language));
    qsizetype known = 0;
    for (const QString &term : readHelpPage(pagePath(u"program"_s, u"en"_s)).terms) {
        const QStringList translations =
            language == "en"_L1 ? QStringList{term} : translationsOf(term, language);
        const bool isThere = std::ranges::any_of(
            translations, [&page](const QString &translation) { return page.terms.contains(translation); });
        QVERIFY2(translations.isEmpty() || isThere, qPrintable(term));
        known += translations.isEmpty() ? 0 : 1;
    }
    QVERIFY(known > 12);
}

QTEST_GUILESS_MAIN(HelpTest)
#include "HelpTest.moc"
