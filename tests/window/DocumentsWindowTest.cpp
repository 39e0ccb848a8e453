// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "DocumentDialog.h"
#include "MessageBar.h"
#include "PhotoTable.h"
#include "PreviewWidget.h"
#include "Rows.h"
#include "SamplePhotos.h"
#include "TestMain.h"

#include <QtCore/QProcess>
#include <QtCore/QTranslator>
#include <QtGui/QContextMenuEvent>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QDialog>
#include <QtWidgets/QMenu>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QToolButton>

#include <fcntl.h>

using namespace testing_support;

/// Documents in the window, with real keys.
class DocumentsWindowTest : public WindowTest
{
    Q_OBJECT

    QString locked(const QTemporaryDir &folder) const
    {
        const QString plain = folder.filePath(u"plain.pdf"_s);
        samples::store(plain, pdf_samples::text(2));
        const QString path = folder.filePath(u"locked.pdf"_s);
        QProcess::execute(u"qpdf"_s,
                          {u"--encrypt"_s, u"secret"_s, u"owner"_s, u"256"_s, u"--"_s, plain, path});
        return path;
    }
    static QDialog *prompt(const OpenedDialog &opened)
    {
        QDialog *dialog = nullptr;
        const bool isShown = QTest::qWaitFor([&] {
            dialog = opened.dialog->findChild<QDialog *>(u"documentPassword"_s);
            return dialog && dialog->isVisible();
        });
        return isShown ? dialog : nullptr;
    }
    static void answer(QDialog *dialog, const QString &password)
    {
        QTest::keyClicks(dialog->findChild<QLineEdit *>(u"password"_s), password);
        QTest::keyClick(dialog->findChild<QLineEdit *>(u"password"_s), Qt::Key_Return);
        QTRY_VERIFY(!dialog->isVisible());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

private Q_SLOTS:
    void choicesAreSteps_data()
    {
        using Act = std::function<void(const DocumentDialog &)>;
        QTest::addColumn<Act>("act");
        QTest::addColumn<QString>("sheets");
        const auto add = [](const char *name, const Act &act, const QString &sheets) {
            QTest::newRow(name) << act << sheets;
        };
        add(
            "ranges", [](const DocumentDialog &opened) { opened.typeRanges(u"5-,2-3"_s); }, u"2 3 5 6"_s);
        add(
            "odd", [](const DocumentDialog &opened) { opened.choose(u"pageSet"_s, u"Odd"_s); }, u"1 3 5"_s);
        add(
            "even", [](const DocumentDialog &opened) { opened.choose(u"pageSet"_s, u"Even"_s); }, u"2 4 6"_s);
        add(
            "reverse", [](const DocumentDialog &opened) { opened.click(u"reversePages"_s); },
            u"6 5 4 3 2 1"_s);
        add(
            "four on a sheet", [](const DocumentDialog &opened) { opened.choose(u"layoutKind"_s, u"4"_s); },
            u"1+2+3+4 5+6"_s);
        add(
            "booklet", [](const DocumentDialog &opened) { opened.choose(u"layoutKind"_s, u"Booklet"_s); },
            u"1 2 6+3 4+5"_s);
        add(
            "the current page",
            [](const DocumentDialog &opened) {
                opened.find<QAbstractButton>(u"nextSheet"_s)->click();
                opened.choose(u"pages"_s, u"Current"_s);
                QVERIFY(opened.caption().contains(u"page 2 of 6"_s));
            },
            u"2"_s);
    }

    void choicesAreSteps()
    {
        QFETCH(std::function<void(const DocumentDialog &)>, act);
        QFETCH(QString, sheets);
        const DocumentDialog opened;
        QCOMPARE(opened.sheets(), u"1 2 3 4 5 6"_s);
        act(opened);
        QCOMPARE(opened.sheets(), sheets);
        QVERIFY2(!opened.caption().contains(u"not printed"_s), qPrintable(opened.caption()));
        opened.undo();
        QCOMPARE(opened.sheets(), u"1 2 3 4 5 6"_s);
        opened.redo();
        QCOMPARE(opened.sheets(), sheets);
        opened.dialog->close(); // a document is opened again as easily as a photo
        QVERIFY(!opened.dialog->isVisible());
    }

    void rangesThatCannotBe()
    {
        const DocumentDialog opened;
        opened.typeRanges(u"2-3"_s);
        auto *field = opened.find<QLineEdit>(u"pageRanges"_s);
        field->selectAll();
        QTest::keyClicks(field, u"3-1"_s);
        QCOMPARE(opened.sheets(), u"3 4 5 6"_s); // of "3-", while it is typed
        QTest::keyClick(field, Qt::Key_Tab);
        QVERIFY2(opened.message().contains(u"\"3-1\""_s), qPrintable(opened.message()));
        QCOMPARE(field->text(), u"3-1"_s);
        field->selectAll();
        QTest::keyClicks(field, u"5-9"_s);
        QCOMPARE(opened.sheets(), u"5 6"_s);
        QVERIFY2(opened.note().contains(u"after page 6"_s), qPrintable(opened.note()));
        field->selectAll();
        QTest::keyClicks(field, u"70"_s);
        QVERIFY(!opened.find<QPushButton>(u"print"_s)->isEnabled());
        QVERIFY2(opened.note().contains(u"None of the 6 pages"_s), qPrintable(opened.note()));
        field->selectAll();
        QTest::keyClicks(field, u"x"_s);
        opened.click(u"undo"_s);
        QCOMPARE(PageRanges::fromText(field->text()), opened.pane->arrangement().pages.ranges);
    }

    // A click on Print also leaves the field.
    void rangesThatCannotBePrinted_data()
    {
        addRows<QString, QString, QString>({{"wrong", u"2-3"_s, u"3-1"_s, u"\"3-1\""_s},
                                            {"wrong at first", {}, u"x"_s, u"\"x\""_s},
                                            {"emptied", u"2-3"_s, {}, u"Type which"_s},
                                            {"empty", {}, {}, u"Type which"_s}});
    }

    void rangesThatCannotBePrinted()
    {
        const auto [before, typed, said] = row<QString, QString, QString>();
        const DocumentDialog opened;
        opened.typeRanges(before);
        auto *field = opened.find<QLineEdit>(u"pageRanges"_s);
        field->selectAll();
        QTest::keyClick(field, Qt::Key_Backspace);
        QTest::keyClicks(field, typed);
        for (int i = 0; i < 2; ++i) {
            opened.click(u"print"_s);
            QCOMPARE(field->text(), typed);
            QVERIFY2(opened.message().contains(said), qPrintable(opened.message()));
            QVERIFY(opened.find<QPushButton>(u"print"_s)->isEnabled()); // nothing is under way
        }
        QTest::keyClick(opened.find<QComboBox>(u"pages"_s), Qt::Key_Home);
        opened.click(u"print"_s);
        QTRY_VERIFY(QFile::exists(opened.folder.filePath(u"out/report.pdf"_s)));
    }

    // The controls stay where they are needed to print anything.
    void onePageLeftOut()
    {
        PrintDialogSetup setup = DocumentDialog::setupWith(1);
        setup.pages.set = PageChoice::Set::Even;
        const DocumentDialog opened(setup);
        QVERIFY(!opened.find<QPushButton>(u"print"_s)->isEnabled());
        QVERIFY(opened.isSeen(u"pageSet"_s));
        QTest::keyClick(opened.find<QComboBox>(u"pageSet"_s), Qt::Key_Home);
        QVERIFY(opened.find<QPushButton>(u"print"_s)->isEnabled());
    }

    // Nobody sees which pages are selected before they are shown.
    void whatIsDoneWithAPage()
    {
        const DocumentDialog opened;
        const auto turned = [&opened] {
            QString turns;
            for (const PlacedPhoto &placed : opened.pane->photos())
                turns += QString::number(placed.placement.turns);
            return turns;
        };
        auto *table = opened.pane->findChild<PhotoTable *>();
        QVERIFY(!table->isVisible() && opened.isSeen(u"pages"_s));
        opened.click(u"turn"_s);
        QCOMPARE(turned(), u"111111"_s);
        opened.click(u"eachPage"_s);
        QVERIFY(table->isVisible());
        table->setFocus();
        QTest::keyClick(table, Qt::Key_Right);
        opened.click(u"turn"_s);
        QCOMPARE(turned(), u"121111"_s);
        QTest::keyClick(table, Qt::Key_Delete);
        QCOMPARE(opened.sheets(), u"1 3 4 5 6"_s);
        opened.choose(u"pageSet"_s, u"Even"_s); // by their numbers in the document
        QCOMPARE(opened.sheets(), u"4 6"_s);
        for (int i = 0; i < 4; ++i)
            opened.undo();
        QCOMPARE(turned(), u"000000"_s);
        QTest::keyClick(table, Qt::Key_Home);
        QTest::keyClick(table, Qt::Key_Right, Qt::AltModifier);
        QCOMPARE(opened.sheets(), u"2 1 3 4 5 6"_s);
        opened.dialog->reject(); // this order would be lost
        QVERIFY2(opened.message().contains(u"arranged and not printed"_s), qPrintable(opened.message()));
    }

    void mixed()
    {
        PrintDialogSetup setup = DocumentDialog::setupWith(3);
        setup.photos.prepend(*Photo::open(QStringLiteral(CORVEL_SAMPLE_PHOTO)));
        const DocumentDialog opened(setup);
        QCOMPARE(opened.pane->findChild<PhotoTable *>()->accessibleName(),
                 u"1 photo(s) and 3 page(s) of this job"_s);
        QVERIFY(!opened.isSeen(u"eachPage"_s)); // the table is there anyway
        QCOMPARE(opened.find<QComboBox>(u"documents"_s)->itemText(0), u"PDFs named after the files"_s);
        opened.typeRanges(u"2"_s);
        QCOMPARE(opened.sheets(), u"0 2"_s);
        opened.find<QAbstractButton>(u"nextSheet"_s)->click();
        QVERIFY(opened.find<QComboBox>(u"pages"_s)->findText(u"Current page"_s) <
                0); // which would leave out the photo
        opened.click(u"print"_s);
        QTRY_VERIFY(QFile::exists(opened.folder.filePath(u"out/report.pdf"_s)));
        QTRY_VERIFY(QFile::exists(opened.folder.filePath(u"out/sample.pdf"_s)));
        const auto printed = Document::open(opened.folder.filePath(u"out/report.pdf"_s));
        QVERIFY(printed);
        QCOMPARE(printed->pageCount(), 1);
    }

    // The pages of a document are one, so neither photos nor sheets are counted.
    void jobsAreCounted()
    {
        PrintDialogSetup setup = DocumentDialog::setupWith(3);
        setup.photos.prepend(*Photo::open(QStringLiteral(CORVEL_SAMPLE_PHOTO)));
        const DocumentDialog opened(setup);
        opened.dialog->print(); // which progresses only when events are handled
        opened.find<QAbstractButton>(u"cancel"_s)->click();
        QCOMPARE(opened.find<QPushButton>(u"messageAction"_s)->text(), u"Stop After This Job"_s);
        opened.dialog->close();
        QVERIFY2(opened.message().contains(u" jobs. The rest"_s), qPrintable(opened.message()));
        opened.press(Qt::Key_Escape);
        QTRY_VERIFY(opened.message().startsWith(u"Printed 2 jobs"_s));
    }

    void previewShowsEachPage()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"colors.pdf"_s);
        samples::store(
            path, pdf_samples::withPages({{"1 0 0 rg 0 0 200 100 re f"}, {"0 0 1 rg 0 0 200 100 re f"}}));
        PrintDialogSetup setup = DocumentDialog::setupWith(1);
        setup.photos = *Photo::openAll(path);
        const DocumentDialog opened(setup);
        opened.choose(u"layoutKind"_s, u"2"_s);
        QTRY_VERIFY(opened.pane->isReady());
        const QImage shown = opened.find<QWidget>(u"preview"_s)->grab().toImage();
        const auto isSeen = [&shown](QRgb color) {
            for (int y = 0; y < shown.height(); ++y) {
                if (shown.pixel(shown.width() / 2, y) == color)
                    return true;
            }
            return false;
        };
        QVERIFY(isSeen(pdf_samples::red));
        QVERIFY(isSeen(pdf_samples::blue));
    }

    // Not cut off where programs leave margins free; files have any name.
    void captionOfAPage()
    {
        PrintDialogSetup setup = DocumentDialog::setupWith(6, u"5%1 of %3.pdf"_s);
        setup.ppdFile = QStringLiteral(CORVEL_LASER_PPD);
        setup.pages.which = PageChoice::Which::Ranges;
        setup.pages.ranges = *PageRanges::fromText(u"4-"_s);
        const DocumentDialog opened(setup);
        opened.choose(u"pageSize"_s, u"A4"_s);
        QLocale::setDefault(QLocale(u"de_DE"_s));
        opened.find<QAbstractButton>(u"nextSheet"_s)->click();
        QLocale::setDefault(QLocale::c());
        QCOMPARE(opened.caption().replace(QChar(QChar::Nbsp), u' '),
                 u"5%1 of %3.pdf, page 5 of 6\nPage of 21,0 × 29,7 cm · printed at 100 %"_s);
    }

    // Also without a document, where only the program that prints has one.
    void fitsNarrowWindows_data()
    {
        addRows<QString>({{"English", u"en"_s},
                          {"German", u"de"_s},
                          {"French", u"fr"_s},
                          {"Spanish", u"es"_s},
                          {"Japanese", u"ja"_s}});
    }

    void fitsNarrowWindows()
    {
        QTranslator translator;
        const auto [language] = row<QString>();
        QVERIFY(speak(translator, language));
        const DocumentDialog opened;
        opened.dialog->resize(1024, 600);
        opened.chooseLast(u"pages"_s);
        for (const bool isMore : {false, true}) {
            auto *kind = opened.find<QComboBox>(u"layoutKind"_s);
            for (int i = 0; i < kind->count(); ++i) {
                QCoreApplication::processEvents();
                const auto *side = opened.find<QScrollArea>(u"photoSide"_s);
                QCOMPARE(side->horizontalScrollBar()->maximum(), 0);
                QVERIFY(isMore || side->verticalScrollBar()->maximum() == 0);
                QTest::keyClick(kind, Qt::Key_Down);
            }
            opened.click(u"more"_s);
        }
    }

    void asksForPasswords()
    {
        const QTemporaryDir folder;
        PrintDialogSetup setup = setupFor(PanelMode::Constraint);
        setup.furtherPaths = {locked(folder), QStringLiteral(CORVEL_SAMPLE_PHOTO)};
        const DocumentDialog opened(setup);
        QDialog *dialog = prompt(opened);
        QVERIFY(dialog && dialog->windowModality() == Qt::WindowModal);
        const auto says = [](const QDialog *asking) {
            return asking->findChild<QLabel *>(u"passwordText"_s)->text();
        };
        QCOMPARE(says(dialog), u"\"locked.pdf\" is protected by a password."_s);
        QCOMPARE(dialog->findChild<QLineEdit *>(u"password"_s)->echoMode(), QLineEdit::Password);
        QTRY_COMPARE(opened.pane->photos().size(), 2); // the others are not held up
        QVERIFY(!opened.pane->isOpening());
        answer(dialog, u"Secret"_s);
        dialog = prompt(opened);
        QVERIFY(dialog);
        QVERIFY2(says(dialog).contains(u"does not open"_s), qPrintable(says(dialog)));
        answer(dialog, u"secret"_s);
        QTRY_COMPARE(opened.sheets(), u"0 0 1 2"_s);
        const QString other = folder.filePath(u"other.pdf"_s);
        QVERIFY(QFile::copy(setup.furtherPaths.at(0), other));
        opened.pane->addFiles({setup.furtherPaths.at(0), other, folder.filePath(u"plain.pdf"_s)});
        dialog = prompt(opened);
        QVERIFY(dialog);
        QTRY_COMPARE(opened.sheets(), u"0 0 1 2 1 2"_s);
        answer(dialog, u"Secret"_s);
        dialog = prompt(opened);
        QVERIFY(dialog);
        QVERIFY2(says(dialog).contains(u"does not open \"locked.pdf\""_s), qPrintable(says(dialog)));
        QTest::keyClick(dialog, Qt::Key_Escape);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        dialog = prompt(opened);
        QVERIFY(dialog);
        QVERIFY2(says(dialog).contains(u"\"other.pdf\" is protected"_s), qPrintable(says(dialog)));
        QTest::keyClick(dialog, Qt::Key_Escape); // is left out
        QTRY_VERIFY(!opened.dialog->findChild<QDialog *>(u"documentPassword"_s));
        QVERIFY(opened.message().isEmpty());
        opened.click(u"undo"_s);
        QCOMPARE(opened.sheets(), u"0 0 1 2"_s);
    }

    // Also with the choice of pages, and with a page of a document that needs a password.
    void listComesBack()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"list.json"_s);
        const DocumentDialog opened;
        opened.typeRanges(u"2-5"_s);
        opened.click(u"reversePages"_s);
        opened.choose(u"layoutKind"_s, u"2"_s);
        PrintList list = PrintList::of(opened.pane->arrangement());
        list.photos += PrintList::Entry{locked(folder), {}, 2, 1};
        list.photos += PrintList::Entry{list.photos.at(0).path, {}, 1, 6};
        QVERIFY(!list.save(path));
        const DocumentDialog other;
        other.pane->openList(path);
        QDialog *dialog = prompt(other);
        QVERIFY(dialog);
        QTRY_COMPARE(other.sheets(), u"4+5 2+3"_s);
        answer(dialog, u"secret"_s);
        QTRY_COMPARE(other.sheets(), u"2+2 4+5 2+3"_s);
        QCOMPARE(other.pane->photos().constLast().copies, 2);
        QVERIFY2(other.message().contains(u"report.pdf\" has no page 7"_s), qPrintable(other.message()));
    }

    void bookletProposesBothSides_data()
    {
        addRows<QString, QString, QString>(
            {{"a printer with both sides", QStringLiteral(CORVEL_LASER_PPD), u"DuplexTumble"_s, u"is set"_s},
             {"a printer without", QStringLiteral(CORVEL_SIBLING_PPD), {}, u"odd pages of that PDF"_s}});
    }

    void bookletProposesBothSides()
    {
        const auto [ppd, sides, said] = row<QString, QString, QString>();
        PrintDialogSetup setup = DocumentDialog::setupWith(6);
        setup.ppdFile = ppd;
        const DocumentDialog opened(setup);
        opened.choose(u"layoutKind"_s, u"Booklet"_s);
        QVERIFY2(opened.message().contains(said), qPrintable(opened.message()));
        opened.undo(); // both are one step
        opened.redo();
        opened.click(u"print"_s);
        QFile ticket(opened.folder.filePath(u"out/report.ticket.json"_s));
        QTRY_VERIFY(ticket.exists());
        QVERIFY(ticket.open(QIODevice::ReadOnly));
        QCOMPARE(ticket.readAll().contains("DuplexTumble"), !sides.isEmpty());
    }
};

CORVEL_WIDGETS_TEST(DocumentsWindowTest)
#include "DocumentsWindowTest.moc"
