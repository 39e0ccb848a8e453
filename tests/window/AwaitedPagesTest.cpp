// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "DocumentDialog.h"
#include "MessageBar.h"
#include "PreviewWidget.h"
#include "ProgramDocument.h"
#include "Rows.h"
#include "TestMain.h"

#include <QtCore/QFile>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QMenu>
#include <QtWidgets/QToolButton>

#include <fcntl.h>

using namespace testing_support;

/// A program's document in the window, whose pages are there or still to come.
class AwaitedPagesTest : public WindowTest
{
    Q_OBJECT

private Q_SLOTS:
    void programBringsThePages()
    {
        PrintDialogSetup setup = setupFor(PanelMode::Constraint);
        setup.photos.clear();
        setup.program = ProgramDocument{u"Writer"_s, u"Letter"_s, {}, false, true};
        setup.program->pages.set = PageChoice::Set::Odd;
        const DocumentDialog opened(setup);
        const auto *which = opened.find<QComboBox>(u"pages"_s);
        QVERIFY(which->isVisible() && opened.isSeen(u"layoutKind"_s));
        QVERIFY(which->findText(u"Selection"_s) >= 0 && which->findText(u"Current page"_s) < 0);
        QCOMPARE(opened.find<QComboBox>(u"pageSet"_s)->currentText(), u"Odd only"_s);
        opened.typeRanges(u"2-900"_s);
        opened.choose(u"layoutKind"_s, u"4"_s);
        std::optional<PreparedPrint> made;
        connect(opened.dialog.get(), &PrintDialog::prepared, this,
                [&made](const PreparedPrint &print, const DialogSession &) { made = print; });
        opened.click(u"print"_s);
        QVERIFY(made);
        QCOMPARE(
            made->arrangement.pages,
            (PageChoice{PageChoice::Which::Ranges, *PageRanges::fromText(u"2-900"_s), PageChoice::Set::Odd}));
        QCOMPARE(made->arrangement.layout.pagesPerSheet, 4);
    }

    // The program would not learn that nothing was printed.
    void layoutThatPagesToComeCannotHave()
    {
        PrintDialogSetup setup = setupFor(PanelMode::Constraint);
        setup.photos.clear();
        setup.program = ProgramDocument{u"Writer"_s, u"Letter"_s, {}};
        const DocumentDialog opened(setup);
        opened.choose(u"layoutKind"_s, u"As many"_s);
        QVERIFY2(opened.note().contains(u"need that size"_s), qPrintable(opened.note()));
        QVERIFY(!opened.find<QPushButton>(u"print"_s)->isEnabled());
    }

    // They lie where the pages will.
    void outlinesOfPagesToCome_data()
    {
        addRows<QString, QSize, int>({{"of another size", u"One"_s, QSize(300, 300), 1},
                                      {"two on a sheet", u"2"_s, QSize(595, 842), 2},
                                      {"six wide ones", u"6"_s, QSize(842, 595), 6},
                                      {"booklet", u"Booklet"_s, QSize(595, 842), 2}});
    }

    void outlinesOfPagesToCome()
    {
        const auto [layout, size, count] = row<QString, QSize, int>();
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"page.pdf"_s);
        const QString box = u"/MediaBox [0 0 %1 %2]"_s.arg(size.width()).arg(size.height());
        samples::store(path, pdf_samples::withPages({{{}, box.toLatin1()}}));
        PrintDialogSetup setup = setupFor(PanelMode::Constraint);
        setup.ppdFile = QStringLiteral(CORVEL_LASER_PPD);
        setup.photos = QList<Photo>(8, Photo::openAll(path)->constFirst());
        const DocumentDialog brought(setup);
        brought.choose(u"layoutKind"_s, layout);
        // The first side of a booklet has its last page, and the first one.
        const auto laid = brought.pane->plan().sheets().constFirst().photos;
        QCOMPARE(laid.size(), count);

        setup.photos.clear();
        setup.program = ProgramDocument{u"Writer"_s, u"Letter"_s, {}};
        setup.program->pageSize = size;
        const DocumentDialog opened(setup);
        opened.choose(u"layoutKind"_s, layout);
        const auto *preview = opened.pane->findChild<PreviewWidget *>();
        const QImage shown = opened.find<QWidget>(u"preview"_s)->grab().toImage();
        const auto isLine = [&shown](const QPointF &place) { // of a pixel, which may lie between two
            for (const QPoint step : {QPoint(0, 0), QPoint(1, 1), QPoint(-1, -1)}) {
                if (qGray(shown.pixel(place.toPoint() + step)) < 0xf0)
                    return true;
            }
            return false;
        };
        constexpr double share = 0.1; // of a side, far from the number and from other outlines
        for (const LaidPhoto &each : laid) {
            const QRectF outline =
                preview->pageToWidget().mapRect(each.placement.target & each.placement.clip);
            const QPointF inside(outline.width() * share, outline.height() * share);
            QVERIFY(isLine({outline.left(), outline.top() + inside.y()}));
            QVERIFY(isLine({outline.left() + inside.x(), outline.bottom()}));
            QVERIFY(!isLine(outline.topLeft() + inside));
        }
    }

    // A list names files.
    void listsNeedFiles_data() { addRows<bool>({{"a file", true}, {"a program's pages", false}}); }

    void listsNeedFiles()
    {
        const auto [isFile] = row<bool>();
        PrintDialogSetup setup = DocumentDialog::setupWith(2);
        if (!isFile) {
            const int file =
                ::open(QFile::encodeName(setup.photos.at(0).path()).constData(), O_RDONLY | O_CLOEXEC);
            const auto document = Document::open(pdekit::FileDescriptor(file), u"Letter"_s);
            QVERIFY(document);
            setup.photos = {Photo::ofPage(*document, 0), Photo::ofPage(*document, 1)};
        }
        const DocumentDialog opened(setup);
        opened.click(u"eachPage"_s);
        QContextMenuEvent event(QContextMenuEvent::Keyboard, {}, {});
        QApplication::sendEvent(opened.pane->findChild<PhotoTable *>(), &event);
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        QVERIFY(menu);
        QCOMPARE(menu->actions().constLast()->isEnabled(), isFile);
        menu->close();
    }
};

CORVEL_WIDGETS_TEST(AwaitedPagesTest)
#include "AwaitedPagesTest.moc"
