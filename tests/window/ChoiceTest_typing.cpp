// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ChoiceTest.h"

#include <QtCore/QJsonDocument>
#include <QtWidgets/QAbstractButton>

using namespace testing_support;

// Numbers that are not finished: what is shown is what is printed.

void ChoiceTest::numberLeftUnfinished_data()
{
    QTest::addColumn<QString>("button"); // that is used from the field; else the field is left
    QTest::newRow("leaving the field") << QString();
    QTest::newRow("saving") << u"save"_s;
    QTest::newRow("printing") << u"print"_s;
}

void ChoiceTest::numberLeftUnfinished()
{
    QFETCH(QString, button);
    const OpenedDialog opened(setup());
    opened.type(81, u"-12"_s);
    opened.control(82)->setFocus();
    opened.type(81, u"-"_s);
    if (button.isEmpty())
        QTest::keyClick(opened.control(81), Qt::Key_Tab);
    else
        opened.find<QAbstractButton>(button)->click(); // by its key, with the focus in the field
    const auto *slider = opened.slider(1);
    // The print system goes by what is marked; without it there is the default, and a word about it.
    const bool isMarked = mode_ == PanelMode::Constraint;
    const QString shown = isMarked ? u"-12"_s : u"0"_s;
    QCOMPARE(opened.fieldText(81), shown);
    QCOMPARE(slider->value(), shown.toInt());
    if (button != u"print")
        opened.click(u"print"_s);
    QTRY_VERIFY(opened.message().contains(u"sample.pdf"_s));
    QCOMPARE(opened.message().contains(u"only the beginning of a number"_s), !isMarked && button != u"save");
    QCOMPARE(opened.options()[u"Red"_s].toString(), shown);
    QFile ticket(opened.folder.filePath(u"out/sample.ticket.json"_s));
    QVERIFY(ticket.open(QIODevice::ReadOnly));
    const QJsonObject summary = QJsonDocument::fromJson(ticket.readAll()).object()[u"summary"_s].toObject();
    QCOMPARE(summary[u"Red"_s].toString(), shown);
    QCOMPARE(opened.fieldText(81), shown);
    opened.undo(); // back to what was there before that
    QCOMPARE(opened.fieldText(81), isMarked ? u"0"_s : u"-12"_s);
}
