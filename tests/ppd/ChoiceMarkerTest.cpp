// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ChoiceMarker.h"
#include "PpdDocument.h"
#include "Rows.h"
#include "SmallPpd.h"
#include "TestMain.h"

#include <QtCore/QRandomGenerator>
#include <QtTest/QTest>

#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
#include <cups/ppd.h>

using namespace printdialog;
using namespace smallppd;
using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(printdialog::Verdict)

namespace {

QByteArray photoPrinter()
{
    QByteArrayList gamma;
    for (int i = 0; i <= 300; ++i)
        gamma += QByteArray::number(i / 100.0, 'f', 2);
    return header + pageSizes() + option("Red", numbered(-25, 25)) + option("Gamma", gamma) +
           option("Sharpness", {"Auto", "0", "5", "10"}) + option("Quality", {"High", "Standard/Normal"}) +
           option("Overcoat", {"Glossy", "Matte"}, "Lamination") + option("Uneven", {"1", "2", "4", "x"}) +
           option("Long", numbered(1, 20, "c")) + "*UIConstraints: *Overcoat Matte *Quality Standard\n" +
           "*UIConstraints: *Quality Standard *Overcoat Matte\n" + "*UIConstraints: *Sharpness 10 *Long\n" +
           "*UIConstraints: *PageSize w360h504 *Uneven 4\n";
}

PpdDocument opened(const QByteArray &data)
{
    return *PpdDocument::open(*trustPpd(data, u"queue"_s));
}

} // namespace

class ChoiceMarkerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rulesOnOneChoice_data()
    {
        const auto add = rows<QString, QString, Verdict, QString>();
        // Expected: the canonical choice, or the sentence.
        const auto row = [&add](const QString &key, const QString &choice, Verdict verdict,
                                const QString &expected) {
            add(qPrintable(key + u'=' + choice), key, choice, verdict, expected);
        };
        const auto red = [&](const QString &choice, const QString &is) {
            row(u"Red"_s, choice, Verdict::Accepted, is);
        };
        red(u"-5"_s, u"-5"_s);
        red(u"+12"_s, u"12"_s);
        red(u"012"_s, u"12"_s);
        red(u"1."_s, u"1"_s);
        red(u"-0.00"_s, u"0"_s);
        for (const QString &choice : {u"1.5"_s, u"1.50"_s, u"01.500"_s})
            row(u"Gamma"_s, choice, Verdict::Accepted, u"1.50"_s);
        row(u"Gamma"_s, u".5"_s, Verdict::Accepted, u"0.50"_s);
        for (const QString &choice : {u""_s, u"-"_s, u"+"_s, u"."_s, u"-."_s}) {
            row(u"Red"_s, choice, Verdict::Incomplete,
                u"\"%1\" is only the beginning of a number; "
                "allowed for the option \"Red\" are -25 to 25."_s.arg(choice));
            row(u"Quality"_s, choice, Verdict::UnknownChoice,
                u"The option \"Quality\" has no choice \"%1\"; allowed are High, Standard."_s.arg(choice));
        }
        for (const QString &choice : {u"99"_s, u"1.5"_s, u"1e1"_s, u"0x5"_s, u"nan"_s, u"inf"_s, u" 5"_s,
                                      u"1.2.3"_s, u"--1"_s, u"٣"_s, u"5%1"_s, u"18446744073709551621"_s})
            row(u"Red"_s, choice, Verdict::UnknownChoice,
                u"The option \"Red\" has no choice \""_s + choice + u"\"; allowed are -25 to 25."_s);
        row(u"Gamma"_s, u"3.01"_s, Verdict::UnknownChoice,
            u"The option \"Gamma\" has no choice \"3.01\"; "
            "allowed are 0.00 to 3.00 in steps of 0.01."_s);
        row(u"Sharpness"_s, u"auto"_s, Verdict::UnknownChoice,
            u"The option \"Sharpness\" has no choice \"auto\"; "
            "allowed are Auto, 0 to 10 in steps of 5."_s);
        row(u"Uneven"_s, u"3"_s, Verdict::UnknownChoice,
            u"The option \"Uneven\" has no choice \"3\"; allowed are 1, 2, 4, x."_s);
        row(u"Long"_s, u"c\n1"_s, Verdict::UnknownChoice,
            u"The option \"Long\" has no choice \"c 1\"; "
            "allowed are c1, c2, c3, c4, c5, c6, c7, c8, c9, c10, c11, c12 and 8 more."_s);
        row(u"Overcoat"_s, u"matte"_s, Verdict::UnknownChoice,
            u"The option \"Overcoat\" (Lamination) has no choice \"matte\"; allowed are Glossy, Matte."_s);
        for (const auto &[key, shown] :
             {std::pair(u"Nope"_s, u"Nope"_s), {u"red"_s, u"red"_s}, {u"Red\x1b\u202e"_s, u"Red"_s}})
            row(key, u"1"_s, Verdict::UnknownOption,
                u"The printer has no option \"%1\"; it has Gamma, Long, Overcoat, PageSize, Quality, Red, "
                "Sharpness, Uneven."_s.arg(shown));
        row(u"Sharpness"_s, u"10"_s, Verdict::Conflict,
            u"\"Sharpness\" cannot be \"10\" while \"Long\" is \"c1\"."_s);
    }

    void rulesOnOneChoice()
    {
        const auto [key, choice, verdict, expected] = row<QString, QString, Verdict, QString>();
        PpdDocument document = opened(photoPrinter());
        ChoiceMarker marker(document);
        auto before = marker.markedChoices();
        const Ruling ruling = marker.check(key, choice);
        QCOMPARE(ruling.verdict, verdict);
        QCOMPARE(marker.markedChoices(), before);
        const bool accepted = ruling.verdict == Verdict::Accepted;
        QCOMPARE(accepted ? ruling.choice : ruling.text, expected);
        QCOMPARE(accepted, ruling.text.isEmpty());
        QCOMPARE(marker.canonicalChoice(key, choice).has_value(),
                 accepted || ruling.verdict == Verdict::Conflict);
        if (accepted)
            before[key] = expected;
        marker.mark(key, choice);
        QCOMPARE(marker.markedChoices(), before);
    }

    void namesWhatStandsInTheWay()
    {
        PpdDocument document = opened(photoPrinter());
        ChoiceMarker marker(document);
        QCOMPARE(marker.mark(u"Quality"_s, u"Standard"_s).verdict, Verdict::Accepted);
        const auto before = marker.markedChoices();
        const Ruling ruling = marker.mark(u"Overcoat"_s, u"Matte"_s);
        QCOMPARE(ruling.verdict, Verdict::Conflict);
        QCOMPARE(
            ruling.text,
            u"\"Overcoat\" (Lamination) cannot be \"Matte\" while \"Quality\" is \"Standard\" (Normal)."_s);
        QCOMPARE(ruling.otherOption, u"Quality"_s);
        QCOMPARE(ruling.otherChoice, u"Standard"_s);
        QCOMPARE(marker.markedChoices(), before);
        QVERIFY(!marker.firstConflict());
        marker.mark(u"Quality"_s, u"High"_s);
        QCOMPARE(marker.mark(u"Overcoat"_s, u"Matte"_s).verdict, Verdict::Accepted);
    }

    void aConflictElsewhereDoesNotCount()
    {
        // The defaults are in conflict; another choice is refused only for its own conflict.
        PpdDocument document = opened(minimal() + option("A", {"1", "2"}) + option("B", {"1", "2"}) +
                                      option("C", {"1", "2", "3"}) +
                                      "*UIConstraints: *A 1 *B 1\n*UIConstraints: *B 1 *A 1\n"
                                      "*UIConstraints: *A 1 *C 3\n");
        ChoiceMarker marker(document);
        QCOMPARE(marker.firstConflict()->text, u"\"A\" cannot be \"1\" while \"B\" is \"1\"."_s);
        QCOMPARE(marker.firstConflict()->otherOption, u"B"_s);
        QCOMPARE(marker.mark(u"C"_s, u"2"_s).verdict, Verdict::Accepted);
        QCOMPARE(marker.mark(u"C"_s, u"3"_s).otherOption, u"A"_s);
        QCOMPARE(marker.mark(u"B"_s, u"2"_s).verdict, Verdict::Accepted);
        QVERIFY(!marker.firstConflict());
    }

    void marksTheSpellingThatWasAskedFor()
    {
        PpdDocument document = opened(minimal() + option("A", {"None", "matte", "Matte"}));
        ChoiceMarker marker(document);
        QCOMPARE(marker.mark(u"A"_s, u"Matte"_s).verdict,
                 Verdict::UnknownChoice); // libcups would mark the other one
        QCOMPARE(marker.mark(u"A"_s, u"matte"_s).verdict, Verdict::Accepted);
        QCOMPARE(document.markedChoice(u"A"_s), u"matte"_s);
    }

    void marksOneChoiceOfEachOption()
    {
        PpdDocument document =
            opened(minimal() + option("Many", {"a", "b", "c"}).replace("PickOne", "PickMany"));
        QCOMPARE(ChoiceMarker(document).mark(u"Many"_s, u"c"_s).verdict, Verdict::Accepted);
        QVERIFY(ppdIsMarked(document.record(), "Many", "c") && !ppdIsMarked(document.record(), "Many", "a"));
    }

    /// libcups and this side must see the same conflicts, in random PPDs with every form of constraint.
    void agreesWithLibcups_data()
    {
        QTest::addColumn<int>("newForms"); // of six constraints
        QTest::newRow("UIConstraints") << 0;
        QTest::newRow("cupsUIConstraints") << 6;
        QTest::newRow("both") << 2;
    }

    void agreesWithLibcups()
    {
        QFETCH(int, newForms);
        QRandomGenerator random(9031);
        const QByteArrayList names{"PageSize", "PageRegion", "A", "B", "C"};
        const QByteArrayList pages{"w288h432", "w360h504"};
        const QByteArrayList others{"None", "off", "1", "2"};
        int conflicts = 0;
        for (int round = 0; round < 200; ++round) {
            QByteArray ppd = minimal() + option("PageRegion", pages) + option("A", others) +
                             option("B", others) + option("C", others);
            for (int i = 0; i < 6; ++i) {
                const bool newForm = i < newForms;
                QByteArrayList free{random.bounded(2) ? "PageSize" : "PageRegion", "A", "B", "C"};
                QByteArray terms;
                for (int term = 0; term < (newForm ? 3 : 2); ++term) {
                    const QByteArray name = free.takeAt(random.bounded(int(free.size())));
                    const QByteArrayList &choices = name.startsWith("Page") ? pages : others;
                    terms += " *" + name;
                    if (random.bounded(4) > 0)
                        terms += " " + choices.at(random.bounded(int(choices.size()))).toUpper();
                }
                ppd += newForm ? "*cupsUIConstraints: \"" + terms.trimmed() + "\"\n"
                               : "*UIConstraints:" + terms + "\n";
            }
            PpdDocument document = opened(ppd);
            const ChoiceMarker marker(document);
            for (int step = 0; step < 20; ++step) {
                const QByteArray &name = names.at(random.bounded(5));
                const QByteArrayList &choices = name.startsWith("Page") ? pages : others;
                const QByteArray &choice = choices.at(random.bounded(int(choices.size())));
                const bool wasBroken = ppdConflicts(document.record()) > 0;
                const Ruling ruling = marker.check(QString::fromLatin1(name), QString::fromLatin1(choice));
                cups_option_t *list = nullptr;
                const int count =
                    cupsGetConflicts(document.record(), name.constData(), choice.constData(), &list);
                cupsFreeOptions(count, list);
                if (!wasBroken)
                    QCOMPARE(ruling.verdict == Verdict::Conflict, count > 0);
                const int after = ppdMarkOption(document.record(), name.constData(), choice.constData());
                QCOMPARE(marker.firstConflict().has_value(), after > 0);
                conflicts += after > 0;
            }
        }
        QVERIFY(conflicts > 100);
    }
};

CORVEL_TEST(ChoiceMarkerTest)
#include "ChoiceMarkerTest.moc"
