// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "Mnemonics.h"
#include "Rows.h"
#include "TestMain.h"

using namespace printdialog;
using namespace Qt::StringLiterals;

class MnemonicsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void marks_data()
    {
        addRows<QStringList, QStringList, QStringList>({
            {"first letters", {}, {u"Sharpness"_s, u"Color"_s}, {u"&Sharpness"_s, u"&Color"_s}},
            {"a word's start before its middle", {u"&Print"_s}, {u"Print Quality"_s}, {u"Print &Quality"_s}},
            {"within a word", {u"&Print"_s, u"&Save"_s}, {u"Paps"_s}, {u"P&aps"_s}},
            {"an earlier one makes room", {}, {u"Red"_s, u"Re"_s, u"r"_s}, {u"Re&d"_s, u"R&e"_s, u"&r"_s}},
            {"the earlier ones are served", {}, {u"ab"_s, u"ba"_s, u"ab"_s}, {u"&ab"_s, u"&ba"_s, u"ab"_s}},
            {"marked and free", {}, {u"a"_s, u"Bl&ack"_s}, {u"a"_s, u"Bl&ack"_s}},
            {"marked and taken", {u"&Add"_s}, {u"M&atte"_s}, {u"&Matte"_s}},
            {"an ampersand", {}, {u"&& Gamma"_s}, {u"&& &Gamma"_s}},
            {"no Latin letters", {u"追加(&A)"_s, u"(&B)"_s}, {u"色"_s, u"赤"_s}, {u"色(&C)"_s, u"赤(&D)"_s}},
            {"letters that few keyboards have", {}, {u"Äöé"_s, u""_s}, {u"Äöé"_s, u""_s}},
        });
    }

    void marks()
    {
        const auto [taken, texts, marked] = row<QStringList, QStringList, QStringList>();
        Mnemonics letters;
        letters.reserve(taken);
        QCOMPARE(letters.mark(texts), marked);
    }
};

CORVEL_TEST(MnemonicsTest)
#include "MnemonicsTest.moc"
