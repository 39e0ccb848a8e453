// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PhotoTable.h"
#include "MessageBar.h"
#include "MixedSpinBox.h"
#include "OpenedDialog.h"
#include "PhotoPane.h"
#include "Rows.h"
#include "SamplePhotos.h"
#include "TestMain.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QMimeData>
#include <QtCore/QUrl>
#include <QtGui/QDropEvent>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QMenu>
#include <QtWidgets/QToolButton>

namespace testing_support {

/// A dialog with photos of these names, its further controls open.
class PhotoDialog : public OpenedDialog
{
public:
    explicit PhotoDialog(const QStringList &names)
        : OpenedDialog(setupWith(names))
        , pane(dialog->findChild<PhotoPane *>())
        , table(dialog->findChild<PhotoTable *>())
        , scaling(find<QComboBox>(u"scaling"_s))
        , copies(find<MixedSpinBox>(u"photoCopies"_s))
    {
        dialog->resize(1100, 900);
        find<QToolButton>(u"more"_s)->click();
        QCoreApplication::processEvents();
        table->setFocus();
    }

    /// The photos' names without their extension, separated by spaces.
    QString names() const
    {
        QStringList names;
        for (const PlacedPhoto &placed : pane->photos())
            names += placed.photo.fileName().chopped(4);
        return names.join(u' ');
    }
    QPoint middleOf(int row) const { return table->visualRect(table->model()->index(row, 0)).center(); }
    void pick(int row, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::mouseClick(table->viewport(), Qt::LeftButton, modifiers, middleOf(row));
    }
    QList<int> picked() const
    {
        QList<int> rows;
        for (const QModelIndex &index : table->selectionModel()->selectedIndexes())
            rows += index.row();
        std::ranges::sort(rows);
        return rows;
    }
    /// The copies of each photo.
    QList<int> allCopies() const
    {
        QList<int> all;
        for (const PlacedPhoto &placed : pane->photos())
            all += placed.copies;
        return all;
    }
    void chooseFromMenu(const QString &text, const QString &submenu = {}) const
    {
        QContextMenuEvent event(QContextMenuEvent::Keyboard, {}, {});
        QApplication::sendEvent(table, &event);
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        QVERIFY(menu);
        for (const QAction *action : menu->actions()) {
            if (!submenu.isEmpty() && action->text() == submenu)
                menu = action->menu();
        }
        for (QAction *action : menu->actions()) {
            if (action->text() == text)
                action->trigger();
        }
        QApplication::activePopupWidget()->close();
    }

    PhotoPane *pane;
    PhotoTable *table;
    QComboBox *scaling;
    MixedSpinBox *copies;

private:
    static PrintDialogSetup setupWith(const QStringList &names)
    {
        PrintDialogSetup setup = setupFor(PanelMode::Constraint);
        setup.photos.clear();
        static QTemporaryDir photos;
        const QByteArray jpeg = samples::encoded(QImage(30, 20, QImage::Format_RGB32), "jpeg");
        for (const QString &name : names) {
            samples::store(photos.filePath(name + u".jpg"_s), jpeg);
            setup.photos += *Photo::open(photos.filePath(name + u".jpg"_s));
        }
        return setup;
    }
};

static QStringList letters(const QString &text)
{
    return text.split(u' ');
}

} // namespace testing_support

using namespace testing_support;

/// What is done with several photos at once, in the window, with real keys and mouse.
class PhotoTableTest : public WindowTest
{
    Q_OBJECT

private Q_SLOTS:
    void selectionIsWhatIsChanged()
    {
        const PhotoDialog opened(letters(u"a b c d"_s));
        opened.pick(1);
        opened.pick(3, Qt::ControlModifier);
        QCOMPARE(opened.picked(), (QList<int>{1, 3}));
        QCOMPARE(opened.pane->current(), 3);
        QTest::keyClick(opened.scaling, Qt::Key_Down);
        opened.click(u"turn"_s);
        for (const int i : {0, 1, 2, 3}) {
            const PlacementChoice choice = opened.pane->photos().at(i).placement;
            QCOMPARE(choice.scaling, i % 2 == 1 ? Scaling::Fill : Scaling::Fit);
            QCOMPARE(choice.turns, i % 2);
        }
        opened.pick(2);
        opened.table->setFocus();
        opened.press(Qt::Key_Home, Qt::ShiftModifier);
        QCOMPARE(opened.picked(), (QList<int>{0, 1, 2}));
        opened.pick(0, Qt::ControlModifier); // one fewer; the photo that is shown is one of them
        QCOMPARE(opened.picked(), (QList<int>{1, 2}));
        QVERIFY(opened.pane->current() > 0);
        opened.press(Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(opened.picked().size(), 4);
        opened.pick(1);
        QTest::mouseClick(opened.table->viewport(), Qt::LeftButton, {},
                          QPoint(opened.table->viewport()->width() - 2, 5));
        QCOMPARE(opened.picked(), QList<int>{1}); // beside all photos: one stays selected
    }

    void mixedValues()
    {
        const PhotoDialog opened(letters(u"a b c"_s));
        opened.copies->setFocus();
        QTest::keyClick(opened.copies, Qt::Key_Up);
        QTest::keyClick(opened.copies, Qt::Key_Up);
        QTest::keyClick(opened.scaling, Qt::Key_Down);
        QCOMPARE(opened.allCopies(), (QList<int>{3, 1, 1}));
        QCOMPARE(opened.table->model()->index(0, 0).data(Qt::AccessibleTextRole).toString(),
                 u"1: a.jpg, 3 copies"_s);
        opened.pane->model()->select({0, 1}, 0);
        QCOMPARE(opened.scaling->currentIndex(), -1);
        QCOMPARE(opened.copies->text(), u"several"_s);
        QTest::keyClick(opened.copies, Qt::Key_Up); // from the copies of the photo that is shown
        QCOMPARE(opened.allCopies(), (QList<int>{4, 4, 1}));
        QCOMPARE(opened.copies->text(), u"4"_s);
        opened.pane->model()->select({1, 2}, 1);
        QCOMPARE(opened.copies->text(), u"several"_s);
        opened.copies->selectAll();
        QTest::keyClicks(opened.copies, u"12"_s);
        QCOMPARE(opened.allCopies(), (QList<int>{4, 12, 12}));
        QTest::keyClick(opened.scaling, Qt::Key_End);
        QCOMPARE(opened.pane->photos().at(2).placement.scaling, Scaling::ActualSize);
        opened.pane->setCurrent(0);
        opened.click(u"applyToAll"_s);
        QCOMPARE(opened.allCopies(), (QList<int>{4, 4, 4}));
        QCOMPARE(opened.pane->photos().at(2).placement.scaling, Scaling::Fill);
        for (int i = 0; i < 4; ++i) // all alike, the scaling, what was typed as one, the step
            opened.undo();
        QCOMPARE(opened.allCopies(), (QList<int>{3, 1, 1}));
    }

    // Whatever was last, a choice of the printer's or something done with the photos.
    void undoIsOneHistory()
    {
        const PhotoDialog opened(letters(u"a b c"_s));
        QTest::keyClick(opened.scaling, Qt::Key_Down);
        opened.type(81, u"7"_s);
        opened.pick(1);
        opened.table->setFocus();
        opened.press(Qt::Key_Delete);
        QTest::keyClick(opened.find<QSpinBox>(u"copies"_s), Qt::Key_Up);
        QCOMPARE(opened.names(), u"a c"_s);
        opened.undo();
        QCOMPARE(opened.find<QSpinBox>(u"copies"_s)->value(), 1);
        QCOMPARE(opened.names(), u"a c"_s);
        opened.undo();
        QCOMPARE(opened.names(), u"a b c"_s);
        QCOMPARE(opened.picked(), QList<int>{1});
        QCOMPARE(opened.fieldText(81), u"7"_s);
        opened.undo();
        QCOMPARE(opened.fieldText(81), u"0"_s);
        QCOMPARE(opened.pane->photos().at(0).placement.scaling, Scaling::Fill);
        opened.undo();
        QCOMPARE(opened.pane->photos().at(0).placement.scaling, Scaling::Fit);
        QVERIFY(!opened.find<QToolButton>(u"undo"_s)->isEnabled());
        for (int i = 0; i < 4; ++i)
            opened.redo();
        QCOMPARE(opened.names(), u"a c"_s);
        QCOMPARE(opened.fieldText(81), u"7"_s);
        QCOMPARE(opened.pane->photos().at(0).placement.scaling, Scaling::Fill);
    }

    void removedPhotosComeBack()
    {
        const PhotoDialog opened(letters(u"a b c d e"_s));
        opened.pick(1);
        opened.click(u"turn"_s);
        opened.pick(3, Qt::ControlModifier);
        opened.table->setFocus();
        opened.press(Qt::Key_Delete);
        QCOMPARE(opened.names(), u"a c e"_s);
        QCOMPARE(opened.picked(), QList<int>{1});
        opened.undo();
        QCOMPARE(opened.names(), u"a b c d e"_s);
        QCOMPARE(opened.picked(), (QList<int>{1, 3}));
        QCOMPARE(opened.pane->current(), 3);
        QCOMPARE(opened.pane->photos().at(1).placement.turns, 1);
        // All of them, and the window has nothing to print.
        opened.press(Qt::Key_A, Qt::ControlModifier);
        opened.press(Qt::Key_Delete);
        QVERIFY(!opened.find<QPushButton>(u"print"_s)->isEnabled());
        opened.undo();
        QCOMPARE(opened.names(), u"a b c d e"_s);
        QVERIFY(opened.find<QPushButton>(u"print"_s)->isEnabled());
    }

    void draggingThePhotoIsOneStep()
    {
        const PhotoDialog opened(letters(u"a b"_s));
        opened.click(u"turn"_s);
        QTest::keyClick(opened.scaling, Qt::Key_End);
        auto *preview = opened.find<QWidget>(u"preview"_s);
        const auto drag = [&opened, preview](int distance) {
            const QPoint middle = preview->rect().center();
            QTest::mousePress(preview, Qt::LeftButton, {}, middle);
            for (int i = 1; i <= 3; ++i)
                QTest::mouseMove(preview, middle + QPoint(i * distance, i * distance));
            QTest::mouseRelease(preview, Qt::LeftButton, {}, middle);
            return opened.pane->photos().at(0).placement.crop;
        };
        const QPointF first = drag(3);
        QVERIFY(first != PlacementChoice().crop);
        QVERIFY(drag(5) != first);
        opened.undo();
        QCOMPARE(opened.pane->photos().at(0).placement.crop, first);
        opened.undo();
        QCOMPARE(opened.pane->photos().at(0).placement.crop, PlacementChoice().crop);
        QCOMPARE(opened.pane->photos().at(0).placement.scaling, Scaling::ActualSize);
    }

    // What was taken back looks like what is there, also when another printer has brought its style since.
    void undoKeepsTheStyleToBeginWith()
    {
        const PhotoDialog opened(letters(u"a b"_s));
        const ArrangementStyle passports{{Scaling::Fill}, *SheetLayout::fromText(u"2x2"_s)};
        opened.press(Qt::Key_Delete);
        opened.pane->model()->open(passports);
        opened.undo();
        QCOMPARE(opened.names(), u"a b"_s);
        QVERIFY(opened.pane->model()->isAsOpened() && opened.pane->model()->style() == passports);
        opened.click(u"turn"_s);
        opened.pane->model()->setStyle({});
        opened.undo();
        QCOMPARE(opened.pane->arrangement().layout, passports.layout);
    }

    // Photos of the command line may come while the first ones are worked on.
    void photosOpenedLaterStay()
    {
        const PhotoDialog opened(letters(u"a b c"_s));
        const QList<PlacedPhoto> late = {opened.pane->photos().at(2)};
        opened.press(Qt::Key_Delete);
        opened.pane->model()->append({late.constFirst().photo});
        QCOMPARE(opened.names(), u"b c c"_s);
        opened.undo();
        QCOMPARE(opened.names(), u"a b c c"_s);
        opened.redo();
        QCOMPARE(opened.names(), u"b c c"_s);
        QVERIFY(!opened.pane->model()->hasUnkeptWork());
        // What was done with all photos was done with those that were still to come.
        QTest::keyClicks(opened.scaling, u"Fill"_s);
        opened.click(u"applyToAll"_s);
        opened.pane->model()->append({late.constFirst().photo});
        QCOMPARE(opened.names(), u"b c c c"_s);
        const auto filled = [&opened] {
            return std::ranges::count(opened.pane->arrangement().placements(), Scaling::Fill,
                                      &PlacementChoice::scaling);
        };
        QCOMPARE(filled(), 4);
        opened.undo();
        QCOMPARE(opened.names(), u"b c c c"_s);
        QCOMPARE(filled(), 1);
    }

    void moves_data()
    {
        addRows<QList<int>, Qt::Key, QString, QList<int>>({
            {"one to the front", {2}, Qt::Key_Left, u"a c b d e"_s, {1}},
            {"the first stays", {0}, Qt::Key_Up, u"a b c d e"_s, {0}},
            {"some to the back", {1, 3}, Qt::Key_Right, u"a c b e d"_s, {2, 4}},
            {"a block against the end", {3, 4}, Qt::Key_Down, u"a b c d e"_s, {3, 4}},
            {"others close up", {0, 2}, Qt::Key_Left, u"a c b d e"_s, {0, 1}},
        });
    }

    void moves()
    {
        const auto [rows, key, names, picked] = row<QList<int>, Qt::Key, QString, QList<int>>();
        const PhotoDialog opened(letters(u"a b c d e"_s));
        opened.pane->model()->select(rows, rows.constFirst());
        opened.press(key, Qt::AltModifier);
        QCOMPARE(opened.names(), names);
        QCOMPARE(opened.picked(), picked);
        opened.undo();
        QCOMPARE(opened.names(), u"a b c d e"_s);
        QCOMPARE(opened.picked(), rows);
    }

    void dragsSeveral()
    {
        const PhotoDialog opened(letters(u"a b c d e"_s));
        opened.pick(0);
        opened.pick(2, Qt::ControlModifier);
        QWidget *viewport = opened.table->viewport();
        const std::unique_ptr<QMimeData> data(opened.table->model()->mimeData({}));
        const QPointF to = opened.middleOf(3) + QPoint(20, 0); // behind its middle: after it
        QDragEnterEvent enter(to.toPoint(), Qt::MoveAction, data.get(), Qt::LeftButton, {});
        QApplication::sendEvent(viewport, &enter);
        QVERIFY(enter.isAccepted());
        QDragMoveEvent move(to.toPoint(), Qt::MoveAction, data.get(), Qt::LeftButton, {});
        QApplication::sendEvent(viewport, &move);
        QVERIFY(move.isAccepted());
        QDropEvent drop(to, Qt::MoveAction, data.get(), Qt::LeftButton, {});
        QApplication::sendEvent(viewport, &drop);
        QTRY_COMPARE(opened.names(), u"b d a c e"_s);
        QCOMPARE(opened.picked(), (QList<int>{2, 3}));
        opened.undo();
        QCOMPARE(opened.names(), u"a b c d e"_s);
    }

    void sorts()
    {
        const PhotoDialog opened(letters(u"img10 img2 Img1"_s));
        opened.pick(1);
        opened.chooseFromMenu(u"Name"_s, u"Sort by"_s);
        QCOMPARE(opened.names(), u"Img1 img2 img10"_s);
        QCOMPARE(opened.picked(), QList<int>{1});
        opened.chooseFromMenu(u"As added"_s, u"Sort by"_s);
        QCOMPARE(opened.names(), u"img10 img2 Img1"_s);
        opened.undo();
        QCOMPARE(opened.names(), u"Img1 img2 img10"_s);
    }

    void sheets()
    {
        const PhotoDialog opened(letters(u"a b c d e"_s));
        const auto *note = opened.find<QLabel>(u"planNote"_s);
        const auto *print = opened.find<QPushButton>(u"print"_s);
        QCOMPARE(note->text(), u"Sheets: 5"_s);
        auto *kind = opened.find<QComboBox>(u"layoutKind"_s);
        QTest::keyClick(kind, Qt::Key_Down); // two rows and two columns
        QCOMPARE(note->text(), u"Sheets: 2"_s);
        QTest::keyClick(opened.find<QWidget>(u"layoutRows"_s), Qt::Key_Down);
        QCOMPARE(note->text(), u"Sheets: 3"_s);
        kind->showPopup(); // the kind that is there already keeps its numbers
        QTest::keyClick(kind->view(), Qt::Key_Return);
        QCOMPARE(note->text(), u"Sheets: 3"_s);
        QTest::keyClick(kind, Qt::Key_Down); // as many of a size as fit, and there is no size
        QVERIFY(note->text().contains(u"size"_s) && !print->isEnabled());
        QVERIFY(!print->toolTip().isEmpty());
        opened.dialog->print();
        QVERIFY(!QFile::exists(opened.folder.filePath(u"out"_s)));
        opened.pane->model()->selectAll();
        auto *size = opened.find<QComboBox>(u"printSize"_s);
        QTest::keyClicks(size, u"Passport"_s);
        QVERIFY(print->isEnabled());
        QCOMPARE(note->text(), u"Sheets: 5"_s); // each photo fills its own
        opened.click(u"repeats"_s);
        QCOMPARE(note->text(), u"Sheets: 1"_s);
        for (int i = 0; i < 5; ++i)
            opened.undo();
        QCOMPARE(note->text(), u"Sheets: 5"_s);
        const auto *documents = opened.find<QComboBox>(u"documents"_s);
        QCOMPARE(documents->itemText(0), u"One PDF for each photo"_s);
        QTest::keyClick(kind, Qt::Key_Down);
        QCOMPARE(documents->itemText(0), u"One PDF for each sheet"_s);
        opened.click(u"print"_s);
        QTRY_VERIFY2(opened.message().startsWith(u"Printed 2 sheets in "_s), qPrintable(opened.message()));
        opened.pane->model()->selectAll();
        opened.click(u"removePhoto"_s);
        QVERIFY(!note->isVisible());
        QCOMPARE(opened.scaling->currentText(), u"Fit on the page"_s);
    }

    void typedSize()
    {
        const PhotoDialog opened(letters(u"a b"_s));
        opened.pane->model()->selectAll();
        auto *size = opened.find<QComboBox>(u"printSize"_s);
        size->setFocus();
        QTest::keyClick(size, Qt::Key_End);
        QVERIFY(opened.find<QWidget>(u"printWidth"_s)->hasFocus());
        for (const Qt::Key key : {Qt::Key_5, Qt::Key_0, Qt::Key_Tab, Qt::Key_7, Qt::Key_0})
            opened.press(key);
        for (const PlacedPhoto &placed : opened.pane->photos())
            QCOMPARE(placed.placement.size.value_or(PrintSize()).toText(), u"5x7cm"_s);
        opened.press(Qt::Key_A, Qt::ControlModifier);
        opened.press(Qt::Key_3);
        opened.press(Qt::Key_Tab); // 3 mm: refused beside the field, and the last size stays
        QVERIFY(opened.message().contains(u"5"_s));
        QCOMPARE(opened.pane->photos().at(0).placement.size->toText(), u"5x7cm"_s);
    }

    void closeAsksOnce_data()
    {
        using Act = std::function<void(const PhotoDialog &)>;
        const auto add = [](const char *name, bool asks, const Act &act) {
            QTest::newRow(name) << asks << act;
        };
        QTest::addColumn<bool>("asks");
        QTest::addColumn<Act>("act");
        add("nothing was done", false, [](const PhotoDialog &) {});
        add("a photo was removed", false, [](const PhotoDialog &opened) { opened.press(Qt::Key_Delete); });
        add("turned", true, [](const PhotoDialog &opened) { opened.click(u"turn"_s); });
        add("turned and taken back", false, [](const PhotoDialog &opened) {
            opened.click(u"turn"_s);
            opened.undo();
        });
        add("moved", true, [](const PhotoDialog &opened) { opened.press(Qt::Key_Right, Qt::AltModifier); });
        add("moved, and another printer has its own style", true, [](const PhotoDialog &opened) {
            opened.press(Qt::Key_Right, Qt::AltModifier);
            opened.pane->model()->open({{Scaling::Fill}});
        });
        add("another printer has its own style", false,
            [](const PhotoDialog &opened) { opened.pane->model()->open({{Scaling::Fill}}); });
        add("turned, and none of a list's photos is there", true, [](const PhotoDialog &opened) {
            opened.click(u"turn"_s);
            const QString path = opened.folder.filePath(u"lost.json"_s);
            PrintList list;
            list.photos += PrintList::Entry{opened.folder.filePath(u"lost.jpg"_s)};
            QVERIFY(!list.save(path));
            opened.pane->openList(path);
            QTRY_VERIFY(opened.message().contains(u"lost.jpg"_s));
        });
        add("laid out and printed", false, [](const PhotoDialog &opened) {
            opened.click(u"turn"_s);
            opened.click(u"print"_s);
            QTRY_VERIFY(opened.message().contains(u"rinted"_s));
        });
    }

    void closeAsksOnce()
    {
        QFETCH(bool, asks);
        QFETCH(std::function<void(const PhotoDialog &)>, act);
        const PhotoDialog opened(letters(u"a b c"_s));
        act(opened);
        opened.dialog->close();
        QCOMPARE(opened.dialog->isVisible(), asks);
        if (!asks)
            return;
        QVERIFY(opened.find<MessageBar>(u"message"_s)->isAsking());
        opened.dialog->close();
        QVERIFY(!opened.dialog->isVisible());
    }

    // With its layout, in its order, as one step; then nothing is lost by closing.
    void listComesBack()
    {
        const PhotoDialog opened(letters(u"a b c"_s));
        opened.pane->model()->editSelected([](PlacedPhoto &placed) {
            placed.placement = {Scaling::Fill, 3,
                                {0.25, 0.75},  PrintSize::fromText(u"5x7cm"_s),
                                1.25,          *PhotoBorder::fromText(u"2mm,#204080"_s)};
        });
        QTest::keyClick(opened.copies, Qt::Key_Up);
        QTest::keyClick(opened.find<QComboBox>(u"layoutKind"_s), Qt::Key_Down);
        const QString path = opened.folder.filePath(u"photos.json"_s);
        opened.dialog->close();
        const QList<QPushButton *> answers =
            opened.find<MessageBar>(u"message"_s)->findChildren<QPushButton *>();
        const auto save = std::ranges::find(answers, u"Save List…"_s, &QPushButton::text);
        QVERIFY(save != answers.end());
        (*save)->click();
        auto *dialog = opened.dialog->findChild<QFileDialog *>();
        QVERIFY(dialog->isVisible());
        dialog->selectFile(path);
        QTest::keyClick(dialog, Qt::Key_Return);
        QTRY_VERIFY(opened.message().contains(u"photos.json"_s));
        QVERIFY(!opened.pane->model()->hasUnkeptWork());

        const Arrangement saved = opened.pane->arrangement();
        // A list is moved together with the photos that are in its folder.
        const QString beside = QFileInfo(saved.photos.at(0).photo.path()).path() + u"/beside.json"_s;
        QVERIFY(!PrintList::of(saved).save(beside));
        const QByteArray written = samples::load(beside);
        QVERIFY(written.contains("\"a.jpg\"") && !written.contains(QFileInfo(beside).path().toUtf8()));
        QVERIFY(QFile::remove(saved.photos.at(1).photo.path()));
        const PhotoDialog other(letters(u"d"_s));
        const auto dropList = [&other, &path] {
            QMimeData data;
            data.setUrls({QUrl::fromLocalFile(path)});
            QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
            QApplication::sendEvent(other.pane, &enter);
            QDropEvent drop({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
            QApplication::sendEvent(other.pane, &drop);
        };
        dropList();
        QTRY_COMPARE(other.names(), u"a c"_s);
        QCOMPARE(other.pane->arrangement().layout, saved.layout);
        QCOMPARE(other.pane->photos().at(0).placement, saved.photos.at(0).placement);
        QCOMPARE(other.allCopies(), (QList<int>{2, 1}));
        QTRY_VERIFY(other.message().contains(u"b.jpg"_s));
        QVERIFY(!other.pane->model()->hasUnkeptWork());
        other.undo();
        QCOMPARE(other.names(), u"d"_s);
        samples::store(path, "[]");
        dropList();
        QTRY_VERIFY(other.message().contains(u"photos.json"_s));
        QCOMPARE(other.names(), u"d"_s);
    }

    // Sanity, not speed: nothing may take a time that grows with the square of the number.
    void aThousandPhotos()
    {
        QStringList names;
        for (int i = 0; i < 1000; ++i)
            names += QString::number(i);
        const PhotoDialog opened(names);
        QElapsedTimer time;
        time.start();
        opened.press(Qt::Key_A, Qt::ControlModifier);
        for (int i = 0; i < 10; ++i)
            QTest::keyClick(opened.copies, Qt::Key_Up);
        opened.press(Qt::Key_End);
        opened.chooseFromMenu(u"Name"_s, u"Sort by"_s);
        opened.pane->model()->selectAll();
        opened.press(Qt::Key_Delete);
        for (int i = 0; i < 3; ++i)
            opened.undo();
        QCOMPARE(opened.pane->photos().size(), 1000);
        opened.table->grab();
        qInfo("%lld ms", time.elapsed());
        QVERIFY(time.elapsed() < 5000);
    }
};

CORVEL_WIDGETS_TEST(PhotoTableTest)
#include "PhotoTableTest.moc"
