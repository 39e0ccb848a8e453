// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "OpenedDialog.h"
#include "PhotoPane.h"
#include "PreviewWidget.h"
#include "Rows.h"
#include "SamplePhotos.h"
#include "SampleProfiles.h"
#include "TestMain.h"

#include <QtGui/QWheelEvent>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QMenu>
#include <QtWidgets/QToolButton>

#include <algorithm>
#include <cmath>

using namespace testing_support;

namespace {

constexpr int colors = 0; // pages
constexpr int sharpness = 1;
constexpr int finish = 2;
constexpr int red = 1; // tags
constexpr int contrast = 5;
constexpr int enabler = 32;

/// A photo with every tone and some colors: four dots of the print to a step.
QImage tones()
{
    QImage image(1800, 1200, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const int tone = x * 255 / (image.width() - 1);
            image.setPixel(
                x, y, y < 600 ? qRgb(tone, tone, tone) : qRgb(tone, 255 - tone, (x + y) / 4 % 2 * 200 + 20));
        }
    }
    return image;
}

double mean(const QImage &image, int (*component)(QRgb))
{
    qint64 sum = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            sum += component(image.pixel(x, y));
    }
    return double(sum) / (qint64(image.width()) * image.height());
}

} // namespace

/// The preview follows the printer's options, with real keys and mouse.
class PreviewTest : public WindowTest
{
    Q_OBJECT

    QTemporaryDir photos_;

    PrintDialogSetup setup() const
    {
        PrintDialogSetup setup = setupFor(mode_);
        setup.photos = {*Photo::open(photos_.filePath(u"tones.png"_s))};
        return setup;
    }

private Q_SLOTS:
    void initTestCase_data() { addModes(); }
    void initTestCase()
    {
        samples::store(photos_.filePath(u"tones.png"_s), samples::encoded(tones(), "png"));
    }
    void followsEveryChange();
    void refusalLeavesIt();
    void latestOfManyValues();
    void finishAndItsRemark();
    void comparing();
    void dividing();
    void clippedTones();
    void zooming();
    void sharpnessInDetail();
    void detailOfLargePhotos();
    void colorsOfPhotoAndScreen();
    void softProof();
    void zoomingKeepsTheCrop();
};

/// A dialog whose preview is complete.
struct OpenedPreview : OpenedDialog
{
    explicit OpenedPreview(const PrintDialogSetup &setup)
        : OpenedDialog(setup)
        , preview(find<PreviewWidget>(u"preview"_s))
    {
        settle();
    }

    void settle() const
    {
        QVERIFY(QTest::qWaitFor([this] {
            QCoreApplication::processEvents(); // what was chosen arrives with the events
            return preview->isComplete();
        }));
    }

    /// The photo as it is shown, without its edges.
    QImage photo() const
    {
        settle();
        const QRect seen = PagePainter::seenPhoto(preview->view()).toAlignedRect().adjusted(3, 3, -3, -3);
        return preview->grab(seen).toImage().convertToFormat(QImage::Format_RGB32);
    }

    QToolButton *button(const QString &name) const { return find<QToolButton>(name); }

    PreviewWidget *preview;
};

void PreviewTest::followsEveryChange()
{
    const OpenedPreview opened(setup());
    const QImage before = opened.photo();
    QTest::keyClick(opened.slider(red), Qt::Key_PageUp);
    const QImage one = opened.photo();
    QVERIFY(mean(one, qRed) > mean(before, qRed) && mean(one, qGreen) < mean(before, qGreen));
    opened.type(red + 80, u"20"_s); // each key is a choice
    const QImage typed = opened.photo();
    QVERIFY(mean(typed, qRed) > mean(one, qRed));

    QTest::keyClick(opened.control(enabler), Qt::Key_Space);
    QCOMPARE(opened.photo(), before);
    opened.undo();
    QCOMPARE(opened.photo(), typed);
    opened.undo();
    QCOMPARE(opened.photo(), one);
    opened.undo();
    QCOMPARE(opened.photo(), before);
    opened.redo();
    QCOMPARE(opened.photo(), one);
    QTest::keyClick(opened.control(16), Qt::Key_Space); // restores the defaults
    QCOMPARE(opened.photo(), before);
}

void PreviewTest::refusalLeavesIt()
{
    if (mode_ == PanelMode::Settings)
        return; // nothing is refused before the job is made
    const OpenedPreview opened(setup());
    const QImage before = opened.photo();
    opened.dialog->showPage(finish);
    opened.click(u"matte"_s);
    QCOMPARE(feedback_->beeps, 1);
    QCOMPARE(opened.photo(), before);
    opened.dialog->showPage(colors);
    opened.type(red + 80, u"99"_s); // outside of the range: 9 was one
    const QImage nine = opened.photo();
    opened.type(red + 80, u"9"_s);
    QCOMPARE(opened.photo(), nine);
}

void PreviewTest::latestOfManyValues()
{
    const OpenedPreview opened(setup());
    opened.slider(contrast)->setValue(17);
    const QImage wanted = opened.photo();
    for (int i = 0; i < 100; ++i)
        opened.slider(contrast)->setValue(i % 51 - 25);
    opened.slider(contrast)->setValue(17);
    QCOMPARE(opened.photo(), wanted);
    opened.slider(contrast)->setValue(16);
    QVERIFY(opened.photo() != wanted);
}

void PreviewTest::finishAndItsRemark()
{
    const OpenedPreview opened(setup());
    const auto note = [&opened] {
        return opened.find<QLabel>(u"previewNote"_s)->text();
    };
    const QImage glossy = opened.photo();
    QVERIFY(note().startsWith(u"Preview is approximate"_s));
    const QString usual = note();
    opened.dialog->showPage(finish);
    opened.click(u"fine"_s);
    opened.click(u"matte"_s);
    const QImage matte = opened.photo();
    const auto darkest = [](const QImage &image) {
        return qGray(image.pixel(2, 2));
    };
    QVERIFY2(darkest(matte) > darkest(glossy) + 8, qPrintable(QString::number(darkest(matte))));
    QTest::keyClick(opened.control(enabler), Qt::Key_Space);
    QCOMPARE(opened.photo(), glossy);
    QVERIFY2(note().contains(u'\n') && note() != usual, qPrintable(note()));
}

void PreviewTest::comparing()
{
    const OpenedPreview opened(setup());
    const QImage before = opened.photo();
    QTest::keyClick(opened.slider(red), Qt::Key_End);
    const QImage after = opened.photo();
    opened.control(red)->setFocus();
    QTest::keyPress(opened.control(red), Qt::Key_F9);
    QCOMPARE(opened.photo(), before);
    QTest::keyRelease(opened.control(red), Qt::Key_F9, Qt::ControlModifier); // pressed meanwhile
    QCOMPARE(opened.photo(), after);
    QTest::mousePress(opened.button(u"compare"_s), Qt::LeftButton);
    QCOMPARE(opened.photo(), before);
    QTest::mouseRelease(opened.button(u"compare"_s), Qt::LeftButton);
    QCOMPARE(opened.photo(), after);
}

void PreviewTest::dividing()
{
    const OpenedPreview opened(setup());
    const QImage before = opened.photo();
    QTest::keyClick(opened.slider(red), Qt::Key_End);
    const QImage after = opened.photo();
    opened.click(u"divide"_s);
    const auto sameAs = [&opened](const QImage &other, int percent) {
        const QImage shown = opened.photo();
        const int x = shown.width() * percent / 100;
        return shown.copy(x, 0, 4, shown.height()) == other.copy(x, 0, 4, other.height());
    };
    QVERIFY(sameAs(before, 45) && sameAs(after, 55));
    const QRectF photo = PagePainter::seenPhoto(opened.preview->view());
    const QPoint middle = photo.center().toPoint();
    const QPoint there = middle + QPoint(qRound(photo.width() * 0.3), 10);
    QTest::mousePress(opened.preview, Qt::LeftButton, {}, middle);
    QTest::mouseMove(opened.preview, there);
    QTest::mouseRelease(opened.preview, Qt::LeftButton, {}, there);
    QVERIFY(sameAs(before, 75) && sameAs(after, 85));
    for (int i = 0; i < 30; ++i)
        QTest::keyClick(opened.preview, Qt::Key_Left, Qt::ControlModifier);
    QVERIFY(sameAs(before, 15) && sameAs(after, 25));
    opened.slider(contrast)->setValue(25);
    opened.click(u"clipped"_s); // which marks nothing that is not adjusted
    QVERIFY(sameAs(before, 15) && !sameAs(after, 25));
    opened.click(u"clipped"_s);
    opened.slider(contrast)->setValue(0);
    opened.click(u"divide"_s);
    QCOMPARE(opened.photo(), after);
}

void PreviewTest::clippedTones()
{
    const OpenedPreview opened(setup());
    auto *clipped = opened.button(u"clipped"_s);
    const QString name = clipped->text();
    QTest::keyClick(opened.slider(contrast), Qt::Key_End);
    const QImage plain = opened.photo();
    opened.click(u"clipped"_s);
    const QImage marked = opened.photo();
    QCOMPARE(marked.pixel(marked.width() / 2, marked.height() / 4),
             plain.pixel(plain.width() / 2, plain.height() / 4)); // middle grey
    for (const int x : {plain.width() / 20, plain.width() * 19 / 20})
        QVERIFY(marked.pixel(x, marked.height() / 4) != plain.pixel(x, plain.height() / 4));
    // Greys lose 1 - 1 / 1.4 of their range, and the colors a little more.
    QVERIFY2(opened.preview->clippedShare() > 0.28 && opened.preview->clippedShare() < 0.6,
             qPrintable(QString::number(opened.preview->clippedShare())));
    QTRY_COMPARE(clipped->text(),
                 u"Clipped: %1 %"_s.arg(QLocale().toString(opened.preview->clippedShare() * 100, 'f', 1)));
    QTest::keyClick(opened.slider(contrast), Qt::Key_Home);
    (void)opened.photo();
    QCOMPARE(opened.preview->clippedShare(), 0.0);
    opened.click(u"clipped"_s);
    QCOMPARE(clipped->text(), name);
}

void PreviewTest::zooming()
{
    const OpenedPreview opened(setup());
    opened.dialog->showPage(sharpness);
    opened.slider(2)->setValue(0); // nothing changes a pixel
    PreviewWidget &preview = *opened.preview;
    const QString fit = opened.button(u"zoom"_s)->text();
    opened.press(Qt::Key_1, Qt::ControlModifier);
    QCOMPARE(preview.zoom(), 1.0);
    QCOMPARE(opened.button(u"zoom"_s)->text(), u"100 %"_s);
    // The photo has 300 pixels to the inch, as the print has: they are on the screen as they are.
    const auto isCopied = [&](int factor) {
        opened.settle();
        const QImage shown = preview.grab().toImage();
        const QRectF part = PagePainter::seenPart(preview.view());
        const QImage all = tones();
        const QPoint corner(qRound(part.left() * all.width() * factor),
                            qRound(part.top() * all.height() * factor));
        const QPoint place = PagePainter::seenPhoto(preview.view()).topLeft().toPoint();
        for (const QPoint at : {QPoint(40, 40), QPoint(100, 73), QPoint(150, 151)}) {
            const QRgb one = shown.pixel(place + at);
            const QRgb other = all.pixel((corner + at) / factor);
            const int apart =
                std::max({std::abs(qRed(one) - qRed(other)), std::abs(qGreen(one) - qGreen(other)),
                          std::abs(qBlue(one) - qBlue(other))});
            if (apart > (factor == 1 ? 0 : 3))
                return false;
        }
        return true;
    };
    QVERIFY(isCopied(1));
    const QRectF middle = PagePainter::seenPart(preview.view());
    const QPoint from = preview.rect().center();
    QTest::mousePress(&preview, Qt::LeftButton, {}, from);
    QTest::mouseMove(&preview, from + QPoint(-60, -30));
    QTest::mouseRelease(&preview, Qt::LeftButton, {}, from + QPoint(-60, -30));
    const QRectF dragged = PagePainter::seenPart(preview.view());
    QVERIFY(std::abs((dragged.left() - middle.left()) * 1800 - 60) < 1);
    QVERIFY(std::abs((dragged.top() - middle.top()) * 1200 - 30) < 1);
    QVERIFY(isCopied(1));
    for (int i = 0; i < 60; ++i)
        QTest::keyClick(&preview, Qt::Key_Left); // no farther than to the paper's edge
    QVERIFY(std::abs(PagePainter::seenPart(preview.view()).left()) < 0.01);
    QCOMPARE(opened.dialog->findChild<PhotoPane *>()->photos().constFirst().placement, PlacementChoice());

    opened.press(Qt::Key_Plus, Qt::ControlModifier);
    QCOMPARE(preview.zoom(), 2.0);
    QVERIFY(!opened.button(u"zoomIn"_s)->isEnabled());
    opened.click(u"zoomOut"_s);
    QCOMPARE(preview.zoom(), 1.0);
    // What is under the pointer stays there.
    const QPointF pointer(preview.width() / 3.0, preview.height() / 3.0);
    const QPointF onPage = preview.pageToWidget().inverted().map(pointer);
    QWheelEvent wheel(pointer, preview.mapToGlobal(pointer), {}, QPoint(0, 120), Qt::NoButton, {},
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&preview, &wheel);
    QVERIFY(*preview.zoom() > 1.1 && *preview.zoom() < 1.3);
    const QPointF moved = preview.pageToWidget().map(onPage) - pointer;
    QVERIFY2(moved.manhattanLength() < 2, qPrintable(QString::number(moved.manhattanLength())));
    QNativeGestureEvent pinch(Qt::ZoomNativeGesture, QPointingDevice::primaryPointingDevice(), 2, pointer,
                              pointer, preview.mapToGlobal(pointer), 0.25, {});
    const double before = *preview.zoom();
    QCoreApplication::sendEvent(&preview, &pinch);
    QCOMPARE(*preview.zoom(), before * 1.25);
    preview.setFocus();
    QTest::keyClick(&preview, Qt::Key_0);
    QVERIFY(!preview.zoom());
    QCOMPARE(opened.button(u"zoom"_s)->text(), fit);
}

void PreviewTest::sharpnessInDetail()
{
    const OpenedPreview opened(setup());
    const auto note = [&opened] {
        return opened.find<QLabel>(u"previewNote"_s)->text();
    };
    const QString hint = u"sharpness shows at 100 %"_s;
    QTRY_VERIFY(note().contains(hint)); // the defaults do sharpen
    opened.press(Qt::Key_1, Qt::ControlModifier);
    opened.settle();
    QTRY_VERIFY(!note().contains(hint));
    opened.dialog->showPage(sharpness);
    const auto contrastOf = [&opened](int radius, double amount) {
        opened.slider(1)->setValue(radius);
        opened.type(82, QLocale().toString(amount, 'f', 2));
        const QImage shown = opened.photo();
        double sum = 0;
        for (int y = shown.height() * 3 / 4; y < shown.height() - 1; ++y)
            sum += std::abs(qBlue(shown.pixel(9, y)) - qBlue(shown.pixel(9, y + 1)));
        return sum;
    };
    const double none = contrastOf(0, 1);
    QCOMPARE(contrastOf(1, 0), none);
    QVERIFY(contrastOf(1, 0.5) > none);
    QVERIFY(contrastOf(1, 1) > contrastOf(1, 0.5));
    QVERIFY(contrastOf(3, 1) > none);
}

// Lines as thin as a pixel, in a photo that is too large to be kept as a whole.
void PreviewTest::detailOfLargePhotos()
{
    if (mode_ == PanelMode::Settings)
        return; // the same
    QImage lines(6000, 4000, QImage::Format_Grayscale8);
    for (int y = 0; y < lines.height(); ++y) {
        for (int x = 0; x < lines.width(); ++x)
            lines.scanLine(y)[x] = x % 2 == 0 ? 0 : 255;
    }
    const QString path = photos_.filePath(u"lines.png"_s);
    samples::store(path, samples::encoded(lines, "png"));
    PreviewWidget preview;
    preview.resize(401, 301); // whose middle lies between two pixels
    preview.setPage({QSizeF(288, 192), QRectF(0, 0, 288, 192)});
    preview.setDotsPerInch(1500); // a pixel for each dot
    preview.setPhoto(*Photo::open(path));
    preview.show();
    const auto contrast = [&preview] {
        const QImage shown = preview.grab().toImage();
        return std::abs(qGray(shown.pixel(200, 150)) - qGray(shown.pixel(201, 150)));
    };
    QTRY_VERIFY(preview.isComplete());
    QVERIFY(contrast() < 60);
    preview.zoomTo(PreviewWidget::dotForDot);
    QTRY_COMPARE(contrast(), 255);
    for (int i = 0; i < 50; ++i)
        QTest::keyClick(&preview, Qt::Key_Right);
    QTRY_COMPARE(contrast(), 255);
    QVERIFY(PagePainter::seenPart(preview.view()).right() > 0.999);
    preview.zoomTo(std::nullopt);
    QTRY_VERIFY(preview.isComplete() && contrast() < 60);
    // A part that is wanted again, after it was given up and before it is over.
    for (const auto zoom : {std::optional(PreviewWidget::dotForDot), std::optional<double>(),
                            std::optional(PreviewWidget::dotForDot)}) {
        preview.zoomTo(zoom);
        (void)preview.grab();
    }
    QTRY_COMPARE(contrast(), 255);
}

// The printer gets the photo's own values, so these are adjusted, and converted then.
void PreviewTest::colorsOfPhotoAndScreen()
{
    if (mode_ == PanelMode::Settings)
        return; // the same
    QImage red(60, 40, QImage::Format_RGB32);
    red.fill(QColor(200, 40, 40));
    const QByteArray jpeg = samples::encoded(red, "jpeg");
    samples::store(photos_.filePath(u"swapped.jpg"_s), samples::withProfile(jpeg, samples::swappedProfile()));
    samples::store(photos_.filePath(u"plain.jpg"_s), jpeg);
    pdekit::Adjustment half;
    half.matrix[0][0] = 0.5;
    const auto adjustment = PictureAdjustment::of({half});

    PreviewWidget preview;
    preview.resize(300, 240);
    preview.setPage({QSizeF(300, 200), QRectF(0, 0, 300, 200)});
    const auto shows = [&preview](const QString &photo, const QColor &color) {
        preview.setPhoto(*Photo::open(photo));
        if (!QTest::qWaitFor([&preview] { return preview.isComplete(); }))
            return false;
        const QColor shown(preview.grab().toImage().pixel(150, 120));
        constexpr int most = 4; // for the JPEG and the table
        return std::abs(shown.red() - color.red()) <= most &&
               std::abs(shown.green() - color.green()) <= most &&
               std::abs(shown.blue() - color.blue()) <= most;
    };
    QVERIFY(shows(photos_.filePath(u"swapped.jpg"_s), QColor(40, 200, 40)));
    QVERIFY(shows(photos_.filePath(u"plain.jpg"_s), QColor(200, 40, 40)));
    preview.setAdjustment(adjustment);
    QVERIFY(shows(photos_.filePath(u"plain.jpg"_s), QColor(100, 40, 40)));
    QVERIFY(shows(photos_.filePath(u"swapped.jpg"_s), QColor(40, 100, 40)));
    preview.setProfiles(samples::swappedProfile(), {}); // the screen's
    QVERIFY(shows(photos_.filePath(u"plain.jpg"_s), QColor(40, 100, 40)));
    QVERIFY(shows(photos_.filePath(u"swapped.jpg"_s), QColor(100, 40, 40)));

    // What is cut off is dimmed.
    preview.setPlacement({Scaling::Fill, 0, {0.5, 0.5}});
    preview.setPage({QSizeF(200, 200), QRectF(0, 0, 200, 200)});
    const QColor around = preview.palette().color(QPalette::Window);
    const QPoint cut = preview.pageToWidget().map(QPointF(-10, 100)).toPoint();
    const QColor dim(preview.grab().toImage().pixel(cut));
    QVERIFY(dim.blue() > 60 && dim.blue() < around.blue() - 20);
}

void PreviewTest::softProof()
{
    {
        const OpenedPreview opened(setup());
        QVERIFY(!opened.isSeen(u"proof"_s)); // this printer names no paper
    }
    QFile model(QStringLiteral(CORVEL_SIBLING_PPD));
    QVERIFY(model.open(QIODevice::ReadOnly));
    const QString ppd = config_->filePath(u"paper.ppd"_s);
    QVERIFY(storeBelow(ppd, model.readAll() + "*cupsICCProfile ..: \"/elsewhere/paper.icc\"\n"));
    QVERIFY(storeBelow(config_->filePath(u"color/icc/paper.icc"_s), profile(1.2, cmsSigOutputClass, 0.45)));
    qputenv("XDG_DATA_DIRS", QFile::encodeName(config_->path()));
    PrintDialogSetup named = setup();
    named.ppdFile = ppd;
    const OpenedPreview opened(named);
    const QImage before = opened.photo();
    QVERIFY(opened.isSeen(u"proof"_s));
    opened.click(u"proof"_s);
    QVERIFY(opened.photo() != before);
    opened.click(u"proof"_s);
    QCOMPARE(opened.photo(), before);
    qunsetenv("XDG_DATA_DIRS");
}

// The first finger of a pinch, or the button that is held, is no wish to move the photo on its page.
void PreviewTest::zoomingKeepsTheCrop()
{
    PrintDialogSetup square = setup();
    samples::store(photos_.filePath(u"square.png"_s),
                   samples::encoded(tones().copy(0, 0, 1000, 1000), "png"));
    square.photos = {*Photo::open(photos_.filePath(u"square.png"_s))};
    square.placement = {Scaling::Fill, 0, {0.4, 0.5}};
    const OpenedPreview opened(square);
    PreviewWidget &preview = *opened.preview;
    const auto isKept = [&] {
        const auto *pane = opened.dialog->findChild<PhotoPane *>();
        return pane->photos().constFirst().placement == square.placement;
    };
    const QPoint middle = preview.rect().center();
    const std::unique_ptr<QPointingDevice> screen(QTest::createTouchDevice());
    constexpr QPoint apart(20, 20);
    constexpr QPoint step(6, 6);
    QTest::touchEvent(&preview, screen.get()).press(0, middle - apart, &preview);
    QTest::touchEvent(&preview, screen.get()).stationary(0).press(1, middle + apart, &preview);
    for (int i = 1; i <= 10; ++i) {
        QTest::touchEvent(&preview, screen.get())
            .move(0, middle - apart - i * step, &preview)
            .move(1, middle + apart + i * step, &preview);
        QCoreApplication::processEvents();
    }
    QTest::touchEvent(&preview, screen.get())
        .release(0, middle - apart - 10 * step, &preview)
        .release(1, middle + apart + 10 * step, &preview);
    QVERIFY(preview.zoom() && isKept());
    QTest::keyClick(&preview, Qt::Key_Home);
    QVERIFY(isKept());

    preview.zoomTo(std::nullopt);
    QTest::mousePress(&preview, Qt::LeftButton, {}, middle);
    QWheelEvent wheel(middle, preview.mapToGlobal(middle), {}, QPoint(0, 480), Qt::LeftButton, {},
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&preview, &wheel);
    QTest::mouseMove(&preview, middle + QPoint(-30, 0));
    QTest::mouseRelease(&preview, Qt::LeftButton, {}, middle + QPoint(-30, 0));
    QVERIFY(preview.zoom() && isKept());
}

CORVEL_WIDGETS_TEST(PreviewTest)

#include "PreviewTest.moc"
