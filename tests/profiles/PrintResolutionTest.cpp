// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "DialogSession.h"
#include "PrinterMessage.h"
#include "Rows.h"
#include "SessionOpening.h"
#include "SmallPpd.h"
#include "TestMain.h"

#include <QtTest/QTest>

using namespace printdialog;
using namespace smallppd;
using namespace Qt::StringLiterals;
using testing_support::PrinterMessage;

class PrintResolutionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ofPpd_data()
    {
        // The PPD's lines; what is chosen; the resolution.
        const auto add = rows<QByteArray, QString, double>();
        const QByteArray resolution =
            option("Resolution", {"600dpi", "600x1200dpi", "1200x300DPI", "Fine", "9dpi"});
        add("default", resolution, {}, 600);
        add("the first is lower", resolution, u"600x1200dpi"_s, 600);
        add("the second is lower", resolution, u"1200x300DPI"_s, 300);
        add("not a number", resolution, u"Fine"_s, 300);
        add("too low for a photo", resolution, u"9dpi"_s, 300);
        add("too high", option("Resolution", {"4801dpi"}), {}, 300);
        add("by the control language", option("JCLResolution", {"1200dpi"}), {}, 1200);
        add("by the interpreter", option("SetResolution", {"720dpi"}), {}, 720);
        add("not to be chosen", "*DefaultResolution: 400x800dpi\n", {}, 400);
        add("not said", "", {}, 300);
    }

    void ofPpd()
    {
        const auto [lines, choice, expected] = row<QByteArray, QString, double>();
        const auto ppd = trustPpd(minimal() + lines, u"queue"_s);
        QVERIFY(ppd);
        const auto session = openQueue({}, *ppd, PanelMode::Constraint);
        QVERIFY(session);
        if (!choice.isEmpty())
            QCOMPARE((*session)->choose(u"Resolution"_s, choice).verdict, Verdict::Accepted);
        QCOMPARE((*session)->dotsPerInch(), expected);
    }

    void ofAttributes()
    {
        IppAttributes attributes = PrinterMessage::photoPrinter().attributes();
        const auto session = openWithoutPpd({}, attributes, PanelMode::Settings);
        QVERIFY(session);
        QCOMPARE((*session)->dotsPerInch(), 600);
        QCOMPARE((*session)->choose(u"printer-resolution"_s, u"300dpi"_s).verdict, Verdict::Accepted);
        QCOMPARE((*session)->dotsPerInch(), 300);
        attributes.remove(u"printer-resolution-supported"_s);
        const auto fixed = openWithoutPpd({}, attributes, PanelMode::Settings);
        QVERIFY(fixed);
        QCOMPARE((*fixed)->dotsPerInch(), 600);
    }
};

CORVEL_TEST(PrintResolutionTest)
#include "PrintResolutionTest.moc"
