// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "CommandRun.h"

#include <QtTest/QTest>

using namespace testing_support;
using namespace Qt::StringLiterals;

/// What was built, as binutils see it.
class HardeningTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isHardened_data();
    void isHardened();
    void theModuleExportsItsEntryAndTheRecordFunctions();
    void theKitExportsItsInterfaceOnly();

private:
    /// The names that a shared object offers to others.
    static QStringList exports(const QString &file);
};

void HardeningTest::isHardened_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<bool>("isProgram");
    QTest::newRow("the program") << QStringLiteral(CORVEL_PRINT_PROGRAM) << true;
    QTest::newRow("what tries out PPDs") << QStringLiteral(CORVEL_PPD_CHECK) << true;
    QTest::newRow("the kit") << QStringLiteral(CORVEL_KIT) << false;
    QTest::newRow("the module") << QStringLiteral(CORVEL_MODULE) << false;
}

void HardeningTest::isHardened()
{
    QFETCH(QString, file);
    QFETCH(bool, isProgram);
    const CommandRun run = runCommand(u"readelf"_s, {u"-hdlW"_s, file});
    QCOMPARE(run.status, 0);
    QVERIFY2(run.output.contains("BIND_NOW"), run.output.constData());
    QVERIFY2(run.output.contains("GNU_RELRO"), run.output.constData());
    QVERIFY2(!run.output.contains("TEXTREL"), run.output.constData());
    QVERIFY2(run.output.contains(" DYN ("), run.output.constData());
    QCOMPARE(run.output.contains(" PIE"), isProgram);
    for (const QByteArray &line : run.output.split('\n'))
        QVERIFY2(!line.contains("GNU_STACK") || !line.contains("RWE"), line.constData());

    const QByteArray imports = runCommand(u"nm"_s, {u"-D"_s, u"--undefined-only"_s, file}).output;
    QVERIFY(imports.contains("__stack_chk_fail"));
#ifdef CORVEL_IS_FORTIFIED
    QVERIFY(file != QStringLiteral(CORVEL_PRINT_PROGRAM) || imports.contains("_chk@GLIBC"));
#endif
}

QStringList HardeningTest::exports(const QString &file)
{
    const CommandRun run = runCommand(u"nm"_s, {u"-DC"_s, u"--defined-only"_s, u"--format=posix"_s, file});
    QStringList names;
    for (const QByteArray &line : run.output.split('\n')) {
        // NAME TYPE ADDRESS SIZE; a C++ name may hold spaces.
        static const QRegularExpression rest(u" [A-Za-z]( [0-9a-f]+){1,2} ?$"_s);
        const QString name = QString::fromUtf8(line).remove(rest);
        if (!name.isEmpty())
            names.append(name);
    }
    names.sort();
    return names;
}

void HardeningTest::theModuleExportsItsEntryAndTheRecordFunctions()
{
    const QStringList expected = {u"clearVeltaContextData"_s, u"destroyVeltaJobContext"_s,
                                  u"initializeVeltaContext"_s, u"qt_plugin_instance"_s,
                                  u"qt_plugin_query_metadata_v2"_s};
    QCOMPARE(exports(QStringLiteral(CORVEL_MODULE)), expected);
}

// What a plug-in links to is there; what the kit keeps to itself is not. Templates of Qt and of the C++
// library are nobody's.
void HardeningTest::theKitExportsItsInterfaceOnly()
{
    const QStringList names = exports(QStringLiteral(CORVEL_KIT));
    for (const QString &wanted :
         {u"pdekit::Bundle::open"_s, u"pdekit::loadForm"_s, u"pdekit::systemLog"_s,
          u"vtable for pdekit::KeyValueObject"_s, u"typeinfo for pdekit::PlatformException"_s,
          u"pdekit::RadioMatrix::staticMetaObject"_s}) {
        QVERIFY2(!names.filter(wanted).isEmpty(), qPrintable(wanted));
    }
    QVERIFY2(names.filter(u"DesktopFeedback"_s).isEmpty(),
             qPrintable(names.filter(u"DesktopFeedback"_s).join(u'\n')));
    QVERIFY2(names.filter(u"anonymous namespace"_s).isEmpty(), "an unnamed namespace is exported");
}

QTEST_GUILESS_MAIN(HardeningTest)
#include "HardeningTest.moc"
