// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ArrangementModel.h"
#include "PhotoPane.h"
#include "PresetBar.h"
#include "PresetStore.h"
#include "QueueTest.h"
#include "TestMain.h"

#include <QtWidgets/QMenu>

using namespace testing_support;

namespace {

enum Action { Save, SaveAs, Rename, Remove };

/// The options that a backend was started with, without what lp and the scheduler add to every job, in one
/// letter case: lp turns True and False into truth values. It also sends how the dialog arranges photos,
/// which printers ignore.
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
            option.startsWith(u"document-"_s) || option.startsWith(u"corvel-"_s))
            continue;
        options += option.toLower();
    }
    options.sort();
    return options;
}

} // namespace

/// Presets in the window, with a real print server: named, used, and printed with by CUPS' own programs.
class PresetTest : public QueueTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data() { addModes(); }

    void init()
    {
        WindowTest::init();
        QFile::remove(PresetStore::userFile());
    }

    void savedPresetPrintsAlike()
    {
        const auto opened = openQueue();
        opened->type(81, u"-7"_s);
        opened->dialog->showPage(2);
        opened->click(u"fine"_s);
        opened->click(u"matte"_s);
        opened->chooseLast(u"pageSize"_s);
        opened->find<QSpinBox>(u"copies"_s)->setValue(2);
        act(*opened, SaveAs);
        name(*opened, u"光沢+10x15"_s);
        QCOMPARE(error(*opened), QString());
        QCOMPARE(opened->find<QComboBox>(u"presets"_s)->currentText(), u"光沢+10x15"_s);
        QVERIFY(printsLikeLp(*opened, u"photo/光沢+10x15"_s, u"red=-7"_s, "2"));
    }

    // Options that it does not name are as CUPS prints them: the printer's defaults.
    void presetOfCupsAppears()
    {
        const auto opened = openQueue();
        opened->type(82, u"9"_s);
        QVERIFY(saveByCups(u"warm"_s, u"Red=5 SharpnessIntensity=1.50 copies=3"_s));
        use(*opened, u"warm"_s);
        QCOMPARE(opened->fieldTexts({81, 82}), u"5 0"_s);
        QCOMPARE(opened->find<QSpinBox>(u"copies"_s)->value(), 3);
        QCOMPARE(opened->message(), QString());
        // Saved by the dialog it is the whole set.
        opened->type(83, u"2"_s);
        act(*opened, Save);
        QVERIFY(!opened->find<QMenu>(u"presetMenu"_s)->actions().at(Save)->isEnabled());
        QVERIFY(printsLikeLp(*opened, u"photo/warm"_s, u"blue=2"_s, "3"));
    }

    void savedRenamedDeleted()
    {
        QVERIFY(saveByCups(u"other"_s, u"Red=5"_s));
        const auto opened = openQueue();
        auto *presets = opened->find<QComboBox>(u"presets"_s);
        opened->type(81, u"1"_s);
        act(*opened, SaveAs);
        name(*opened, u"first"_s);
        opened->type(81, u"2"_s);
        QVERIFY(presets->currentText() != u"first"_s); // it says that it is changed
        use(*opened, u"first"_s);
        QCOMPARE(opened->fieldText(81), u"1"_s);
        opened->type(82, u"4"_s);
        act(*opened, Rename);
        name(*opened, u"other"_s);
        QVERIFY(error(*opened).contains(u"\"other\""_s));
        name(*opened, u"second"_s);
        QCOMPARE(presets->currentText(), u"second (changed)"_s);
        QVERIFY(lpoptions().contains("photo/second") && !lpoptions().contains("photo/first"));
        act(*opened, Remove);
        QVERIFY(opened->isSeen(u"presetRemove"_s));
        opened->press(Qt::Key_Escape);
        QVERIFY(lpoptions().contains("photo/second"));
        act(*opened, Remove);
        opened->click(u"presetRemove"_s);
        QVERIFY(!lpoptions().contains("photo/second") && lpoptions().contains("photo/other Red=5"));
        QVERIFY(presets->findData(u"other"_s) == presets->count() - 1 && presets->currentIndex() == -1);
        QCOMPARE(opened->fieldText(81), u"1"_s); // the choices stay
    }

    void namesAreChecked()
    {
        const auto opened = openQueue();
        act(*opened, SaveAs);
        for (const QString &bad : {u""_s, u"  "_s, u"bell\a"_s, QString(200, u'x'), QString(50, u'#')}) {
            name(*opened, bad);
            QVERIFY2(!error(*opened).isEmpty(), qPrintable(bad));
            QVERIFY(opened->isSeen(u"presetName"_s));
            QCOMPARE(lpoptions(), QByteArray());
        }
        name(*opened, u"good"_s);
        QVERIFY(lpoptions().contains("photo/good"));
        QVERIFY(!opened->hasPrinted());
    }

    // What CUPS does not take in an instance's name is mapped there, and there only.
    void namesStayAsTyped()
    {
        const QString mine = u"Oma's \"10 / 15\" 光沢 🙂"_s;
        const QString instance = u"photo/Oma%27s%20%2210%20%2F%2015%22%20光沢%20🙂"_s;
        const auto opened = openQueue();
        auto *presets = opened->find<QComboBox>(u"presets"_s);
        opened->type(81, u"-7"_s);
        act(*opened, SaveAs);
        name(*opened, u"\t first one "_s);
        QCOMPARE(presets->currentText(), u"first one"_s);
        act(*opened, Rename);
        name(*opened, mine + u' ');
        QCOMPARE(error(*opened), QString());
        QCOMPARE(presets->currentText(), mine);
        QVERIFY(printsLikeLp(*opened, instance, u"red=-7"_s, "1"));
        const auto again = openQueue(instance);
        QCOMPARE(again->find<QComboBox>(u"presets"_s)->currentText(), mine);
        QVERIFY(again->find<QComboBox>(u"printer"_s)->currentText().contains(mine));
        QCOMPARE(again->fieldText(81), u"-7"_s);
    }

    void whatIsLeftOutIsSaid()
    {
        QVERIFY(saveByCups(u"odd"_s, u"Red=999 Blue=4 Quality=Standard Overcoat=Matte"_s));
        const auto opened = openQueue();
        use(*opened, u"odd"_s);
        QCOMPARE(opened->fieldTexts({83, 81}), u"4 0"_s);
        const QString message = opened->message();
        for (const QString &part : {u"\"odd\""_s, u"999"_s, u"\"Surface Finish\" cannot be \"Matte\""_s})
            QVERIFY2(message.contains(part), qPrintable(message));
        QVERIFY(print(*opened) > 0);
    }

    void usingAPresetIsAStep()
    {
        QVERIFY(saveByCups(u"warm"_s, u"Red=5 Blue=4 copies=3"_s));
        const auto opened = openQueue();
        use(*opened, u"warm"_s);
        opened->undo();
        QCOMPARE(opened->fieldTexts({81, 83}), u"0 0"_s);
        QCOMPARE(opened->find<QSpinBox>(u"copies"_s)->value(), 1);
        opened->redo();
        QCOMPARE(opened->fieldTexts({81, 83}), u"5 4"_s);
        QCOMPARE(opened->find<QSpinBox>(u"copies"_s)->value(), 3);
        QCOMPARE(opened->find<QComboBox>(u"presets"_s)->currentText(), u"warm"_s);
        opened->dialog->saveSettings();
        use(*opened, u"warm"_s);
        QCOMPARE(opened->message(), QString()); // of the settings that were saved
    }

    void theyHoldTheArrangement()
    {
        PlacementChoice placement{Scaling::Fill};
        placement.size = PrintSize::fromText(u"passport"_s);
        placement.border = *PhotoBorder::fromText(u"1mm,#204080"_s);
        const ArrangementStyle passports{placement, *SheetLayout::fromText(u"fit,gap=2mm"_s)};
        const auto model = [](const OpenedDialog &opened) {
            return opened.find<PhotoPane>(u"photos"_s)->model();
        };
        const auto isModified = [](const OpenedDialog &opened) {
            return opened.find<QMenu>(u"presetMenu"_s)->actions().at(Save)->isEnabled();
        };
        {
            const auto opened = openQueue();
            model(*opened)->setStyle(passports);
            act(*opened, SaveAs);
            name(*opened, u"pass photos 証明"_s);
            QCOMPARE(error(*opened), QString());
            QVERIFY(!isModified(*opened));
            opened->click(u"turn"_s);
            const ArrangementStyle turned = model(*opened)->style();
            QVERIFY(turned != passports && isModified(*opened));
            model(*opened)->add({model(*opened)->currentPhoto()->photo}); // upright again
            model(*opened)->setCurrent(0);
            QVERIFY(isModified(*opened));
            model(*opened)->setCurrent(1);
            QVERIFY(!isModified(*opened));
            model(*opened)->remove({1});
            use(*opened, u"pass photos 証明"_s);
            QVERIFY(model(*opened)->style() == passports && !isModified(*opened));
            opened->undo();
            QVERIFY(model(*opened)->style() == turned);
            opened->redo();
            QVERIFY(print(*opened) > 0);
        }
        // What was used last comes back with the printer, but not over what the user has arranged or asked
        // for.
        const auto again = openQueue();
        QVERIFY(model(*again)->style() == passports && model(*again)->isAsOpened());
        PrintDialogSetup asked = setupForPrinter(mode_, u"photo"_s);
        asked.style = ArrangementStyle{{Scaling::Fill}};
        const OpenedDialog other(asked);
        other.dialog->searchPrinters();
        QVERIFY(showsReady(other, u"photo"_s));
        QVERIFY(model(other)->style() == *asked.style);
        PrintDialogSetup listed = setupForPrinter(mode_, u"photo"_s);
        listed.arrangement = Arrangement{{{listed.photos.constFirst()}}};
        const OpenedDialog list(listed);
        list.dialog->searchPrinters();
        QVERIFY(showsReady(list, u"photo"_s));
        QVERIFY(model(list)->style() == ArrangementStyle());
    }

    void builtInPrinterHasPresets()
    {
        {
            const OpenedDialog opened(mode_);
            opened.type(81, u"6"_s);
            act(opened, SaveAs);
            name(opened, u"mine"_s);
            QCOMPARE(error(opened), QString());
        }
        const OpenedDialog opened(mode_);
        QCOMPARE(opened.fieldText(81), u"0"_s);
        use(opened, u"mine"_s);
        QCOMPARE(opened.fieldText(81), u"6"_s);
        use(opened, PresetBar::defaultsName());
        QCOMPARE(opened.fieldText(81), u"0"_s);
        auto *menu = opened.find<QMenu>(u"presetMenu"_s);
        for (const Action action : {Save, Rename, Remove})
            QVERIFY(!menu->actions().at(action)->isEnabled());
        QVERIFY(!QFile::exists(PresetStore::userFile()));
    }

private:
    std::unique_ptr<OpenedDialog> openQueue(const QString &printer = u"photo"_s) const
    {
        auto opened = std::make_unique<OpenedDialog>(setupForPrinter(mode_, printer));
        opened->dialog->searchPrinters();
        if (!showsReady(*opened, printer))
            qWarning("%s", qPrintable(opened->message()));
        return opened;
    }

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

    static void use(const OpenedDialog &opened, const QString &name)
    {
        auto *presets = opened.find<QComboBox>(u"presets"_s);
        presets->showPopup();
        presets->hidePopup();
        const int index = presets->findData(name);
        QVERIFY2(index >= 0, qPrintable(name));
        presets->setCurrentIndex(index);
        Q_EMIT presets->activated(index);
    }

    static QString error(const OpenedDialog &opened)
    {
        return opened.find<PresetBar>(u"presetBar"_s)->error();
    }

    QByteArray lpoptions() const
    {
        QFile file(PresetStore::userFile());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    /// A preset as lpoptions(1) saves it.
    bool saveByCups(const QString &name, const QString &options)
    {
        QStringList arguments = {u"-p"_s, u"photo/"_s + name};
        for (const QString &option : options.split(u' '))
            arguments += {u"-o"_s, option};
        return cupsd_.run(u"lpoptions"_s, arguments);
    }

    /// Whether the dialog and lp print with the same options and copies with the preset, which are these
    /// among others.
    bool printsLikeLp(const OpenedDialog &opened, const QString &instance, const QString &option,
                      const QByteArray &copies)
    {
        const int id = print(opened);
        if (id == 0 || !cupsd_.run(u"lp"_s, {u"-d"_s, instance, QStringLiteral(CORVEL_SAMPLE_PHOTO)}) ||
            !cupsd_.waitForJob(id + 1))
            return false;
        const RecordedJob job = cupsd_.job(id);
        const RecordedJob lps = cupsd_.job(id + 1);
        const QStringList options = optionsOf(job);
        if (options != optionsOf(lps))
            qWarning().noquote() << options << optionsOf(lps);
        return options == optionsOf(lps) && options.contains(option) && job.copies == copies &&
               lps.copies == copies;
    }
};

CORVEL_WIDGETS_TEST(PresetTest)
#include "PresetTest.moc"
