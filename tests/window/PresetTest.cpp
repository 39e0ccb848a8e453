// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "OpenedDialog.h"
#include "PresetBar.h"
#include "PrivateCupsd.h"
#include "PresetStore.h"
#include "SystemLog.h"
#include "TestMain.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QRegularExpression>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSpinBox>

using namespace printdialog;
using namespace testing_support;
using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(PanelMode)

namespace {

enum Action { Save, SaveAs, Rename, Remove };

/// The options that a backend was started with, without what lp and the scheduler add to every job, in one
/// letter case: lp turns True and False into truth values.
QStringList optionsOf(const RecordedJob &job)
{
    QStringList options;
    const QStringList all = QString::fromUtf8(job.options).split(u' ');
    for (QString option : all) {
        if (option.startsWith(u"no"_s))
            option = option.sliced(2) + u"=false"_s;
        else if (!option.contains(u'='))
            option += u"=true"_s;
        const bool isOfLp =
            QStringList{u"finishings=3"_s, u"number-up=1"_s, u"print-color-mode=color"_s}.contains(option);
        if (isOfLp || option.startsWith(u"job-"_s) || option.contains(u"time-at-"_s) ||
            option.startsWith(u"document-"_s))
            continue;
        options += option.toLower();
    }
    options.sort();
    return options;
}

} // namespace

/// Presets in the window, with a real print server: named, used, and printed with by CUPS' own programs.
class PresetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data();
    void initTestCase();
    void init();
    void savedPresetPrintsAlike();
    void presetOfCupsAppears();
    void savedRenamedDeleted();
    void namesAreChecked();
    void namesStayAsTyped();
    void whatIsLeftOutIsSaid();
    void usingAPresetIsAStep();
    void anInstanceOpensWithItsPreset();
    void builtInPrinterHasPresets();

private:
    std::unique_ptr<OpenedDialog> openQueue(PanelMode mode, const QString &printer = u"photo"_s) const;
    static void act(const OpenedDialog &opened, Action action)
    {
        opened.find<QMenu>(u"presetMenu"_s)->actions().at(action)->trigger();
    }
    static void name(const OpenedDialog &opened, const QString &name)
    {
        auto *field = opened.find<QLineEdit>(u"presetName"_s);
        field->selectAll();
        QInputMethodEvent event; // as Japanese comes
        event.setCommitString(name);
        QApplication::sendEvent(field, &event);
        if (name.isEmpty())
            field->clear();
        QTest::keyClick(field, Qt::Key_Return);
    }
    static void use(const OpenedDialog &opened, const QString &name);
    static QString error(const OpenedDialog &opened)
    {
        return opened.find<PresetBar>(u"presetBar"_s)->error();
    }
    int print(const OpenedDialog &opened) const;
    QByteArray lpoptions() const;

    PrivateCupsd cupsd_;
    QTemporaryDir home_;
    std::unique_ptr<QTemporaryDir> config_;
};

void PresetTest::initTestCase_data()
{
    QTest::addColumn<PanelMode>("mode");
    QTest::newRow("constraint") << PanelMode::Constraint;
    QTest::newRow("settings") << PanelMode::Settings;
}

void PresetTest::initTestCase()
{
    pdekit::setSystemLogSink([](const QString &) {});
    for (const char *name : {"LPDEST", "PRINTER", "CUPS_SERVERROOT"})
        qunsetenv(name);
    qputenv("HOME", QFile::encodeName(home_.path()));
    QFile ppd(QStringLiteral(CORVEL_SIBLING_PPD));
    QVERIFY(ppd.open(QIODevice::ReadOnly));
    const QString trouble = cupsd_.start();
    QVERIFY2(trouble.isEmpty(), qPrintable(trouble));
    QVERIFY(cupsd_.addQueue(u"photo"_s, ppd.readAll()));
}

void PresetTest::init()
{
    pdekit::Feedback::install(std::make_shared<RecordingFeedback>());
    config_ = std::make_unique<QTemporaryDir>();
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(config_->path()));
    QFile::remove(PresetStore::userFile());
}

std::unique_ptr<OpenedDialog> PresetTest::openQueue(PanelMode mode, const QString &printer) const
{
    PrintDialogSetup setup = setupFor(mode);
    setup.ppdFile = std::nullopt;
    setup.printer = printer;
    auto opened = std::make_unique<OpenedDialog>(setup);
    opened->dialog->searchPrinters();
    if (!QTest::qWaitFor([&] { return opened->dialog->printer() == printer && opened->dialog->isReady(); }))
        qWarning("%s", qPrintable(opened->dialog->message()));
    return opened;
}

void PresetTest::use(const OpenedDialog &opened, const QString &name)
{
    auto *presets = opened.find<QComboBox>(u"presets"_s);
    presets->showPopup();
    presets->hidePopup();
    const int index = presets->findData(name);
    QVERIFY2(index >= 0, qPrintable(name));
    presets->setCurrentIndex(index);
    Q_EMIT presets->activated(index);
}

/// The job's id.
int PresetTest::print(const OpenedDialog &opened) const
{
    opened.dialog->print();
    const auto id = [&opened] {
        static const QRegularExpression job(u"job (\\d+)"_s);
        return job.match(opened.dialog->message()).captured(1).toInt();
    };
    return QTest::qWaitFor([&id] { return id() > 0; }) && cupsd_.waitForJob(id()) ? id() : 0;
}

QByteArray PresetTest::lpoptions() const
{
    QFile file(PresetStore::userFile());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void PresetTest::savedPresetPrintsAlike()
{
    QFETCH_GLOBAL(PanelMode, mode);
    const auto opened = openQueue(mode);
    opened->type(81, u"-7"_s);
    opened->dialog->showPage(2);
    opened->click(u"fine"_s);
    opened->click(u"matte"_s);
    auto *sizes = opened->find<QComboBox>(u"pageSize"_s);
    sizes->setFocus();
    QTest::keyClick(sizes, Qt::Key_End);
    opened->find<QSpinBox>(u"copies"_s)->setValue(2);
    act(*opened, SaveAs);
    name(*opened, u"光沢+10x15"_s);
    QCOMPARE(error(*opened), QString());
    QCOMPARE(opened->find<QComboBox>(u"presets"_s)->currentText(), u"光沢+10x15"_s);

    const int id = print(*opened);
    QVERIFY2(id > 0, qPrintable(opened->dialog->message()));
    QVERIFY(cupsd_.run(u"lp"_s, {u"-d"_s, u"photo/光沢+10x15"_s, QStringLiteral(CORVEL_SAMPLE_PHOTO)}));
    QVERIFY(cupsd_.waitForJob(id + 1));
    QCOMPARE(optionsOf(cupsd_.job(id + 1)), optionsOf(cupsd_.job(id)));
    QVERIFY(optionsOf(cupsd_.job(id)).contains(u"red=-7"_s));
    QCOMPARE(cupsd_.job(id + 1).copies, QByteArray("2"));
    QCOMPARE(cupsd_.job(id).copies, QByteArray("2"));
}

// Options that it does not name are as CUPS prints them: the printer's defaults.
void PresetTest::presetOfCupsAppears()
{
    QFETCH_GLOBAL(PanelMode, mode);
    const auto opened = openQueue(mode);
    opened->type(82, u"9"_s);
    QVERIFY(cupsd_.run(u"lpoptions"_s, {u"-p"_s, u"photo/warm"_s, u"-o"_s, u"Red=5"_s, u"-o"_s,
                                        u"SharpnessIntensity=1.50"_s, u"-o"_s, u"copies=3"_s}));
    use(*opened, u"warm"_s);
    QCOMPARE(opened->fieldText(81), u"5"_s);
    QCOMPARE(opened->fieldText(82), u"0"_s);
    QCOMPARE(opened->find<QSpinBox>(u"copies"_s)->value(), 3);
    QCOMPARE(opened->dialog->message(), QString());
    // Saved by the dialog it is the whole set.
    opened->type(83, u"2"_s);
    act(*opened, Save);
    const int id = print(*opened);
    QVERIFY2(id > 0, qPrintable(opened->dialog->message()));
    QVERIFY(cupsd_.run(u"lp"_s, {u"-d"_s, u"photo/warm"_s, QStringLiteral(CORVEL_SAMPLE_PHOTO)}));
    QVERIFY(cupsd_.waitForJob(id + 1));
    QCOMPARE(optionsOf(cupsd_.job(id + 1)), optionsOf(cupsd_.job(id)));
    QCOMPARE(cupsd_.job(id + 1).copies, QByteArray("3"));
}

void PresetTest::savedRenamedDeleted()
{
    QFETCH_GLOBAL(PanelMode, mode);
    QVERIFY(cupsd_.run(u"lpoptions"_s, {u"-p"_s, u"photo/other"_s, u"-o"_s, u"Red=5"_s}));
    const auto opened = openQueue(mode);
    auto *presets = opened->find<QComboBox>(u"presets"_s);
    opened->type(81, u"1"_s);
    act(*opened, SaveAs);
    name(*opened, u"first"_s);
    opened->type(81, u"2"_s);
    QVERIFY(presets->currentText() != u"first"_s); // it says that it is changed
    use(*opened, u"first"_s);
    QCOMPARE(opened->fieldText(81), u"1"_s);
    act(*opened, Rename);
    name(*opened, u"other"_s);
    QVERIFY(error(*opened).contains(u"\"other\""_s));
    name(*opened, u"second"_s);
    QCOMPARE(presets->currentText(), u"second"_s);
    QVERIFY(lpoptions().contains("photo/second") && !lpoptions().contains("photo/first"));
    act(*opened, Remove);
    QVERIFY(opened->find<QPushButton>(u"presetRemove"_s)->isVisible());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    QVERIFY(lpoptions().contains("photo/second"));
    act(*opened, Remove);
    opened->click(u"presetRemove"_s);
    QVERIFY(!lpoptions().contains("photo/second") && lpoptions().contains("photo/other Red=5"));
    QCOMPARE(presets->count(), 1);
    QCOMPARE(presets->currentIndex(), -1);
    QCOMPARE(opened->fieldText(81), u"1"_s); // the choices stay
}

void PresetTest::namesAreChecked()
{
    const auto opened = openQueue(PanelMode::Constraint);
    act(*opened, SaveAs);
    for (const QString &bad : {u""_s, u"  "_s, u"bell\a"_s, QString(200, u'x'), QString(50, u'#')}) {
        name(*opened, bad);
        QVERIFY2(!error(*opened).isEmpty(), qPrintable(bad));
        QVERIFY(opened->find<QLineEdit>(u"presetName"_s)->isVisible());
        QCOMPARE(lpoptions(), QByteArray());
    }
    name(*opened, u"good"_s);
    QVERIFY(lpoptions().contains("photo/good"));
    QVERIFY(!opened->hasPrinted());
}

// What CUPS does not take in an instance's name is mapped there, and there only.
void PresetTest::namesStayAsTyped()
{
    QFETCH_GLOBAL(PanelMode, mode);
    const QString mine = u"Oma's \"10 / 15\" 光沢 🙂"_s;
    const QString instance = u"photo/Oma%27s%20%2210%20%2F%2015%22%20光沢%20🙂"_s;
    const auto opened = openQueue(mode);
    auto *presets = opened->find<QComboBox>(u"presets"_s);
    opened->type(81, u"-7"_s);
    act(*opened, SaveAs);
    name(*opened, u"\t first one "_s);
    QCOMPARE(presets->currentText(), u"first one"_s);
    act(*opened, Rename);
    name(*opened, mine + u' ');
    QCOMPARE(error(*opened), QString());
    QCOMPARE(presets->currentText(), mine);
    QVERIFY(cupsd_.run(u"lp"_s, {u"-d"_s, instance, QStringLiteral(CORVEL_SAMPLE_PHOTO)}));
    const int id = print(*opened);
    QVERIFY2(id > 0, qPrintable(opened->dialog->message()));
    QCOMPARE(optionsOf(cupsd_.job(id - 1)), optionsOf(cupsd_.job(id)));
    const auto again = openQueue(mode, instance);
    QCOMPARE(again->find<QComboBox>(u"presets"_s)->currentText(), mine);
    QVERIFY(again->find<QComboBox>(u"printer"_s)->currentText().contains(mine));
    QCOMPARE(again->fieldText(81), u"-7"_s);
}

void PresetTest::whatIsLeftOutIsSaid()
{
    QFETCH_GLOBAL(PanelMode, mode);
    QVERIFY(cupsd_.run(u"lpoptions"_s, {u"-p"_s, u"photo/odd"_s, u"-o"_s, u"Red=999"_s, u"-o"_s, u"Blue=4"_s,
                                        u"-o"_s, u"Quality=Standard"_s, u"-o"_s, u"Overcoat=Matte"_s}));
    const auto opened = openQueue(mode);
    use(*opened, u"odd"_s);
    QCOMPARE(opened->fieldText(83), u"4"_s);
    QCOMPARE(opened->fieldText(81), u"0"_s);
    const QString message = opened->dialog->message();
    for (const QString &part : {u"\"odd\""_s, u"999"_s, u"\"Surface Finish\" cannot be \"Matte\""_s})
        QVERIFY2(message.contains(part), qPrintable(message));
    QVERIFY2(print(*opened) > 0, qPrintable(opened->dialog->message()));
}

void PresetTest::usingAPresetIsAStep()
{
    QFETCH_GLOBAL(PanelMode, mode);
    QVERIFY(cupsd_.run(u"lpoptions"_s, {u"-p"_s, u"photo/warm"_s, u"-o"_s, u"Red=5"_s, u"-o"_s, u"Blue=4"_s,
                                        u"-o"_s, u"copies=3"_s}));
    const auto opened = openQueue(mode);
    use(*opened, u"warm"_s);
    QTest::keyClick(opened->dialog.get(), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(opened->fieldText(81) + opened->fieldText(83), u"00"_s);
    QCOMPARE(opened->find<QSpinBox>(u"copies"_s)->value(), 1);
    QTest::keyClick(opened->dialog.get(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(opened->fieldText(81) + opened->fieldText(83), u"54"_s);
    QCOMPARE(opened->find<QSpinBox>(u"copies"_s)->value(), 3);
    QCOMPARE(opened->find<QComboBox>(u"presets"_s)->currentText(), u"warm"_s);
}

void PresetTest::anInstanceOpensWithItsPreset()
{
    QFETCH_GLOBAL(PanelMode, mode);
    QVERIFY(cupsd_.run(u"lpoptions"_s, {u"-p"_s, u"photo/warm"_s, u"-o"_s, u"Red=5"_s}));
    const auto opened = openQueue(mode, u"photo/warm"_s);
    QCOMPARE(opened->fieldText(81), u"5"_s);
    QCOMPARE(opened->find<QComboBox>(u"presets"_s)->currentText(), u"warm"_s);
}

void PresetTest::builtInPrinterHasPresets()
{
    QFETCH_GLOBAL(PanelMode, mode);
    {
        const OpenedDialog opened(mode);
        opened.type(81, u"6"_s);
        act(opened, SaveAs);
        name(opened, u"mine"_s);
        QCOMPARE(error(opened), QString());
    }
    const OpenedDialog opened(mode);
    QCOMPARE(opened.fieldText(81), u"0"_s);
    use(opened, u"mine"_s);
    QCOMPARE(opened.fieldText(81), u"6"_s);
    QVERIFY(!QFile::exists(PresetStore::userFile()));
}

CORVEL_WIDGETS_TEST(PresetTest)
#include "PresetTest.moc"
