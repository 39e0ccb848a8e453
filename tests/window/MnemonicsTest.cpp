// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "Mnemonics.h"
#include "TestMain.h"

#include <QtTest/QTest>

using namespace printdialog;
using namespace Qt::StringLiterals;

class MnemonicsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void marks_data();
    void marks();
};

void MnemonicsTest::marks_data()
{
    QTest::addColumn<QStringList>("taken");
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<QStringList>("marked");
    const auto row = [](const char *name, const QStringList &taken, const QStringList &texts,
                        const QStringList &marked) {
        QTest::newRow(name) << taken << texts << marked;
    };
    row("first letters", {}, {u"Sharpness"_s, u"Color"_s}, {u"&Sharpness"_s, u"&Color"_s});
    row("a word's start before its middle", {u"&Print"_s}, {u"Print Quality"_s}, {u"Print &Quality"_s});
    row("within a word", {u"&Print"_s, u"&Save"_s}, {u"Paps"_s}, {u"P&aps"_s});
    row("an earlier one makes room", {}, {u"Red"_s, u"Re"_s, u"r"_s}, {u"Re&d"_s, u"R&e"_s, u"&r"_s});
    row("the earlier ones are served", {}, {u"ab"_s, u"ba"_s, u"ab"_s}, {u"&ab"_s, u"&ba"_s, u"ab"_s});
    row("marked and free", {}, {u"a"_s, u"Bl&ack"_s}, {u"a"_s, u"Bl&ack"_s});
    row("marked and taken", {u"&Add"_s}, {u"M&atte"_s}, {u"&Matte"_s});
    row("an ampersand", {}, {u"&& Gamma"_s}, {u"&& &Gamma"_s});
    row("no Latin letters", {u"追加(&A)"_s, u"(&B)"_s}, {u"色"_s, u"赤"_s}, {u"色(&C)"_s, u"赤(&D)"_s});
    row("letters that few keyboards have", {}, {u"Äöé"_s, u""_s}, {u"Äöé"_s, u""_s});
}

void MnemonicsTest::marks()
{
    QFETCH(QStringList, taken);
    QFETCH(QStringList, texts);
    QFETCH(QStringList, marked);
    Mnemonics letters;
    letters.take(taken);
    QCOMPARE(letters.mark(texts), marked);
}

CORVEL_TEST(MnemonicsTest)
#include "MnemonicsTest.moc"
