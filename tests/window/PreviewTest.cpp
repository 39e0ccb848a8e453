// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PreviewTest.h"

#include "SamplePhotos.h"
#include "SampleProfiles.h"
#include "TestMain.h"

#include <cmath>

using namespace testing_support;

namespace {

constexpr int colors = 0; // pages
constexpr int finish = 2;
constexpr int red = 1; // tags
constexpr int contrast = 5;
constexpr int enabler = 32;

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

PrintDialogSetup PreviewTest::setup() const
{
    PrintDialogSetup setup = setupFor(mode_);
    setup.photos = {*Photo::open(photos_.filePath(u"tones.png"_s))};
    return setup;
}

void PreviewTest::initTestCase()
{
    samples::store(photos_.filePath(u"tones.png"_s), samples::encoded(tones(), "png"));
}

// What the choices look like.

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
    const PageGeometry page{QSizeF(300, 200), QRectF(0, 0, 300, 200)};
    preview.setPage(page);
    const auto shows = [&](const QString &photo, const QColor &color) {
        preview.setSheet(PrintSheet::of(*Photo::open(photo), page, {}), 0);
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
    const PageGeometry square{QSizeF(200, 200), QRectF(0, 0, 200, 200)};
    preview.setPage(square);
    preview.setSheet(
        PrintSheet::of(*Photo::open(photos_.filePath(u"swapped.jpg"_s)), square, {Scaling::Fill}), 0);
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

CORVEL_WIDGETS_TEST(PreviewTest)
