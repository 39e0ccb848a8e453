// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ArrangementModel.h"
#include "OpenedDialog.h"
#include "PhotoPane.h"
#include "StubPrinter.h"

#include <QtCore/QDir>
#include <QtGui/QImageReader>
#include <QtGui/QPageSize>
#include <QtGui/QPainter>
#include <QtGui/QPdfWriter>
#include <QtGui/QTextDocument>

#include <cstdio>
#include <functional>

// makeDialogPictures FOLDER: pictures of the dialog for the README.

using namespace testing_support;

namespace {

QPalette darkPalette()
{
    QPalette palette(QColor(0x2d, 0x2e, 0x30));
    palette.setColor(QPalette::Base, QColor(0x1f, 0x20, 0x22));
    palette.setColor(QPalette::Highlight, QColor(0x3d, 0x7e, 0xc4));
    palette.setColor(QPalette::Link, QColor(0x7f, 0xb2, 0xe8));
    return palette;
}

bool picture(const QDir &folder, const QString &name,
             const std::function<void(const OpenedDialog &)> &prepare,
             const PrintDialogSetup &setup = setupFor(PanelMode::Constraint))
{
    const OpenedDialog opened(setup);
    opened.find<QLineEdit>(u"folder"_s)->setText(u"/home/ada/Prints"_s);
    opened.find<QPushButton>(u"watchedFolder"_s)->setText(u"/home/ada/Photos"_s);
    prepare(opened);
    if (!QTest::qWaitFor([&opened] { return opened.dialog->isPreviewReady(); }))
        return false;
    if (opened.find<QLineEdit>(u"folder"_s)->hasFocus())
        opened.find<QComboBox>(u"printer"_s)->setFocus();
    QTest::qWait(200); // what it shows has changed the layout, and more detail arrives
    const QImage image = opened.dialog->grab().toImage().convertToFormat(QImage::Format_RGB888);
    return image.save(folder.filePath(name + u".png"_s), "PNG", 0);
}

PrintDialogSetup laser()
{
    PrintDialogSetup setup = setupFor(PanelMode::Constraint);
    setup.ppdFile = QStringLiteral(CORVEL_LASER_PPD);
    return setup;
}

void choose(const OpenedDialog &opened, const QString &name, const QString &text)
{
    auto *list = opened.find<QComboBox>(name);
    list->setCurrentIndex(list->findText(text));
    Q_EMIT list->activated(list->currentIndex());
}

/// The sample photo in as many tints, as files in the folder.
QList<Photo> tintedPhotos(const QDir &folder, int count)
{
    QImageReader reader(QStringLiteral(CORVEL_SAMPLE_PHOTO));
    reader.setAutoTransform(true);
    const QImage sample = reader.read();
    QList<Photo> photos;
    for (int i = 0; i < count; ++i) {
        QImage photo = sample.copy(0, 0, sample.width(), sample.height() * 2 / 3).scaledToWidth(1200);
        QPainter painter(&photo);
        painter.setCompositionMode(QPainter::CompositionMode_SoftLight);
        painter.fillRect(photo.rect(), QColor::fromHsv(i * 360 / count, 200, 220));
        painter.end();
        const QString path = folder.filePath(u"Lake %1.jpg"_s.arg(i + 1, 2, 10, QLatin1Char('0')));
        photo.save(path, "JPEG", 92);
        photos += *Photo::open(path);
    }
    return photos;
}

/// An article as a browser prints it.
QString article(const QDir &folder)
{
    QString text =
        u"<h1>A darkroom on the kitchen table</h1><p><i>From an enlarger in the attic to prints that "
        "last: what it takes, and what it does not.</i></p>"_s;
    const QString photo = tintedPhotos(folder, 1).constFirst().path();
    for (const QString &heading :
         {u"Light"_s, u"Paper"_s, u"Water"_s, u"The first sheet"_s, u"Test strips"_s, u"Dodging"_s}) {
        text += u"<h2>%1</h2><p><img src=\"%2\" width=\"470\"></p>"_s.arg(heading, photo);
        for (int i = 0; i < 12; ++i)
            text +=
                u"<p>The lamp is the part that everybody has an opinion about. A small one will do: the "
                "paper needs seconds, not a bright room, and what matters is that the light falls on all of "
                "the sheet alike. Switch it on, wait until it is warm, and measure the corners.</p>"_s;
    }
    QTextDocument document;
    document.setDefaultStyleSheet(u"h1 { color: #1f4e8c; }"_s);
    document.setHtml(text);
    const QString path = folder.filePath(u"Darkroom.pdf"_s);
    QPdfWriter writer(path);
    writer.setPageSize(QPageSize(QPageSize::A4));
    document.print(&writer);
    return path;
}

/// A window with a document on the laser printer.
PrintDialogSetup withDocument(const QString &path, const QString &layout)
{
    PrintDialogSetup setup = setupFor(PanelMode::Constraint);
    setup.ppdFile = QStringLiteral(CORVEL_LASER_PPD);
    setup.photos = *Photo::openAll(path);
    setup.style = ArrangementStyle{{}, *SheetLayout::fromText(layout)};
    return setup;
}

/// A window with several photos in a style, and its controls for that open.
PrintDialogSetup arranged(const QList<Photo> &photos, const PlacementChoice &placement, const QString &layout)
{
    PrintDialogSetup setup = setupFor(PanelMode::Constraint);
    setup.photos = photos;
    setup.style = ArrangementStyle{placement, *SheetLayout::fromText(layout)};
    return setup;
}

/// The stub's port is another one each time.
void nameAddress(const OpenedDialog &opened)
{
    opened.dialog->searchPrinters();
    if (!QTest::qWaitFor([&opened] { return opened.dialog->isReady(); }))
        std::fprintf(stderr, "%s\n", qPrintable(opened.dialog->whyNotReady()));
    auto *printers = opened.find<QComboBox>(u"printer"_s);
    printers->setItemText(printers->currentIndex(), u"ipp://photo.local/ipp/print"_s);
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    if (argc != 2) {
        std::fputs("Usage: makeDialogPictures FOLDER\n", stderr);
        return 2;
    }
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    const auto page = [](int number) {
        return [number](const OpenedDialog &opened) {
            opened.dialog->showPage(number);
        };
    };
    bool isDone = picture(folder, u"dialog"_s, page(0));
    const auto adjusted = [](const QString &button) {
        return [button](const OpenedDialog &opened) {
            opened.slider(4)->setValue(12);
            opened.slider(5)->setValue(18);
            opened.slider(6)->setValue(14);
            opened.click(button);
        };
    };
    isDone &= picture(folder, u"dialog-compare"_s, adjusted(u"divide"_s));
    isDone &= picture(folder, u"dialog-clipped"_s, adjusted(u"clipped"_s));
    isDone &= picture(folder, u"dialog-dots"_s, [](const OpenedDialog &opened) {
        opened.dialog->showPage(1);
        opened.slider(1)->setValue(3);
        opened.press(Qt::Key_1, Qt::ControlModifier);
    });
    isDone &= picture(folder, u"dialog-refusal"_s, [](const OpenedDialog &opened) {
        opened.dialog->showPage(2);
        opened.click(u"matte"_s);
    });
    isDone &= picture(folder, u"dialog-crop"_s, [](const OpenedDialog &opened) {
        auto *scaling = opened.find<QComboBox>(u"scaling"_s);
        auto *paper = opened.find<QComboBox>(u"pageSize"_s);
        for (const auto &[box, index] : {std::pair(paper, paper->count() - 1), {scaling, 1}}) {
            box->setCurrentIndex(index);
            Q_EMIT box->activated(index);
        }
    });
    isDone &= picture(
        folder, u"dialog-laser"_s,
        [](const OpenedDialog &opened) {
            choose(opened, u"ColorMode"_s, u"Black and White"_s);
            opened.dialog->resize(900, 620);
        },
        laser());
    isDone &= picture(
        folder, u"dialog-custom-size"_s,
        [](const OpenedDialog &opened) {
            opened.chooseLast(u"pageSize"_s);
            for (const auto &[name, text] :
                 {std::pair(u"pageWidth"_s, u"200"_s), {u"pageHeight"_s, u"150"_s}}) {
                auto *field = opened.find<QLineEdit>(name);
                field->selectAll();
                QTest::keyClicks(field, text);
            }
            opened.dialog->resize(900, 620);
        },
        laser());
    const StubPrinter printer(PrinterMessage::photoPrinter());
    isDone &= picture(
        folder, u"dialog-driverless"_s,
        [](const OpenedDialog &opened) {
            nameAddress(opened);
            opened.dialog->resize(900, 620);
        },
        setupForPrinter(PanelMode::Constraint, printer.address()));
    const QTemporaryDir files;
    const QList<Photo> photos = tintedPhotos(QDir(files.path()), 24);
    PlacementChoice passport{Scaling::Fill};
    passport.size = PrintSize::fromText(u"passport"_s);
    const auto more = [](const OpenedDialog &opened) {
        opened.dialog->resize(1000, 760);
        opened.click(u"more"_s);
    };
    isDone &= picture(folder, u"dialog-passport"_s, more, arranged(photos.first(1), passport, u"fit"_s));
    isDone &= picture(folder, u"dialog-contact"_s, more, arranged(photos, {}, u"contact:5x3,caption=name"_s));
    isDone &=
        picture(folder, u"dialog-strips"_s, more, arranged(photos.first(3), {Scaling::Fill}, u"strips:3"_s));
    isDone &= picture(
        folder, u"dialog-photos"_s,
        [](const OpenedDialog &opened) {
            opened.dialog->resize(1000, 760);
            opened.find<PhotoPane>(u"photos"_s)->model()->select({1, 2, 3, 5, 6}, 3);
        },
        arranged(photos, {Scaling::Fill}, u"2x2"_s));
    const QString document = article(QDir(files.path()));
    const auto chosen = [](const OpenedDialog &opened) {
        opened.dialog->resize(1000, 700);
        auto *model = opened.find<PhotoPane>(u"photos"_s)->model();
        model->setPages({PageChoice::Which::Ranges, *PageRanges::fromText(u"2-5"_s)});
        model->setCurrent(1);
    };
    isDone &= picture(folder, u"dialog-document"_s, chosen, withDocument(document, u"single"_s));
    isDone &= picture(folder, u"dialog-pages"_s, chosen, withDocument(document, u"pages:2"_s));
    QApplication::setPalette(darkPalette());
    isDone &= picture(folder, u"dialog-dark"_s, page(1));
    if (!isDone)
        std::fprintf(stderr, "Not every picture could be made in %s.\n", argv[1]);
    return isDone ? 0 : 1;
}
