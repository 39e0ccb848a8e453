// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "CommandLine.h"
#include "PreviewWidget.h"
#include "ProgramRun.h"
#include "Rows.h"
#include "TestMain.h"
#include "WindowRun.h"

#include <QtCore/QTemporaryDir>
#include <QtGui/QColorSpace>
#include <QtGui/QImage>
#include <QtTest/QTest>

using namespace printdialog;
using namespace testing_support;
using namespace Qt::StringLiterals;

/// Pictures of pages: those of --preview beside the window's.
class PreviewRunTest : public QObject
{
    Q_OBJECT

private:
    QString pathOf(const QString &name) const { return folder_.filePath(name); }

    QTemporaryDir folder_;

private Q_SLOTS:
    void isWhatTheWindowShows_data()
    {
        addRows<QString, QString>({
            {"fit", samplePhoto, u"-o PageSize=5x7"_s},
            {"fill, cropped", samplePhoto, u"-o PageSize=5x7 --scaling fill --crop 0,50"_s},
            {"actual size", samplePhoto, u"-o PageSize=8x10 --scaling actual --crop 20,90"_s},
            {"adjusted", samplePhoto, u"-o Quality=Fine -o Overcoat=Matte -o Red=10 -o Saturation=7"_s},
            {"sharpened, at 600 dpi", samplePhoto,
             u"-o SharpnessEnabled=True -o SharpnessIntensity=2 --ppd "_s + pathOf(u"good.ppd"_s)},
            {"settings mode", samplePhoto,
             u"--mode settings -o Gamma=-9 -o Overcoat=Matte -o Quality=Fine"_s},
            {"colors of its own", pathOf(u"wide.jpg"_s), u"-o Contrast=5"_s},
            {"small, at its side", pathOf(u"small.png"_s), u"-o PageSize=6x8"_s},
        });
        QByteArray good = contentOf(QStringLiteral(CORVEL_PPD));
        QVERIFY(store(pathOf(u"good.ppd"_s), good.replace("300x300dpi", "600x600dpi")));
        QImage wide = QImage(samplePhoto).scaled(1500, 700);
        wide.setColorSpace(QColorSpace::AdobeRgb);
        QVERIFY(wide.save(pathOf(u"wide.jpg"_s)));
        QVERIFY(wide.scaled(123, 77).transformed(QTransform().rotate(90)).save(pathOf(u"small.png"_s)));
    }

    void isWhatTheWindowShows()
    {
        const auto [photo, options] = row<QString, QString>();
        const QString file = pathOf(u"page.PNG"_s);
        const QStringList arguments = QStringList{u"--printer"_s, u"built-in"_s, photo} + options.split(u' ');
        const ProgramRun run = runProgram(arguments + QStringList{u"--overwrite"_s, u"--preview"_s, file});
        QVERIFY2(run.status == 0 && run.err.isEmpty(), run.err.constData());
        const QImage picture(file);
        QCOMPARE(std::max(picture.width(), picture.height()), 1200);

        PrintDialogSetup setup = windowSetup(*CommandLine::parse(QStringList{u"corvel-print"_s} + arguments));
        setup.remembers = false;
        PrintDialog dialog(setup);
        dialog.show();
        auto *preview = dialog.findChild<PreviewWidget *>(u"preview"_s);
        QVERIFY(preview && dialog.isReady());
        QPalette white;
        white.setColor(QPalette::Window, Qt::white);
        preview->setPalette(white);
        constexpr int margin = 16;
        preview->setFixedSize(picture.size() + QSize(2 * margin, 2 * margin));
        QTRY_VERIFY(!preview->grab().isNull() && preview->isComplete());
        QImage shown = preview->grab().toImage().copy(picture.rect().translated(margin, margin));
        shown.setColorSpace(picture.colorSpace());
        // Where a photo goes on beyond the picture, Qt interpolates its last pixels in another order.
        const QRect inside = picture.rect().adjusted(4, 4, -4, -4);
        QCOMPARE(picture.copy(inside), shown.convertToFormat(picture.format()).copy(inside));
    }

    // Of a print of 4 x 6 inches.
    void hasItsSizeOnPaper()
    {
        const QString file = pathOf(u"sized.png"_s);
        QCOMPARE(runProgram({samplePhoto, u"-d"_s, u"built-in"_s, u"--preview"_s, file}).status, 0);
        const QImage picture(file);
        QCOMPARE(qRound(picture.width() / (picture.dotsPerMeterX() * 0.0254) * 10), 60);
        QCOMPARE(picture.dotsPerMeterY(), picture.dotsPerMeterX());
    }
};

CORVEL_WIDGETS_TEST(PreviewRunTest)
#include "PreviewRunTest.moc"
