// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "BenchTable.h"
#include "Benches.h"
#include "PreviewConversion.h"
#include "PreviewPeers.h"
#include "PreviewWidget.h"
#include "PrintDialog.h"
#include "SystemLog.h"
#include "ViewTags.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QElapsedTimer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QSlider>

#include <algorithm>
#include <cstdio>
#include <unistd.h>

using namespace printdialog;

namespace {

constexpr int sliderSteps = 201;
constexpr int quickValues = 100;

/// Has the preview convert its colors, as for a wide screen and a paper with a small gamut.
void convert(PreviewWidget &preview, PreviewConversion conversion)
{
    const bool isOn = conversion != PreviewConversion::None;
    const bool isProof = conversion == PreviewConversion::ScreenProfileAndProof;
    preview.setProfiles(isOn ? benchProfile(2.4, 0.21, 0.71) : QByteArray(),
                        isProof ? benchProfile(1.8, 0.29, 0.55) : QByteArray());
    while (!preview.isComplete())
        QCoreApplication::processEvents();
}

/// Ends the process with a sentence for the table.
[[noreturn]] void giveUp(const QString &sentence)
{
    std::printf("note %s\n", qPrintable(sentence));
    std::fflush(stdout);
    _exit(1);
}

void report(const char *name, double value)
{
    std::printf("%s %.4f\n", name, value);
}

/// Watches the preview's paints.
class PreviewPaints : public QObject
{
public:
    explicit PreviewPaints(QWidget *preview) { preview->installEventFilter(this); }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        count_ += event->type() == QEvent::Paint;
        return QObject::eventFilter(watched, event);
    }

    /// Processes events until it has been painted; false when that does not happen in time.
    bool await()
    {
        constexpr int patience = 1000;
        const int before = count_;
        const QDeadlineTimer deadline(patience);
        while (count_ == before && !deadline.hasExpired())
            QCoreApplication::processEvents(); // paints and flushes
        QGuiApplication::sync();               // until an X server has it
        return count_ != before;
    }

    /// Processes events until it has not been painted for so long. Returns when the last paint was over, or
    /// 0.
    double settle(int milliseconds)
    {
        double last = 0;
        QElapsedTimer quiet;
        quiet.start();
        while (!quiet.hasExpired(milliseconds)) {
            const int before = count_;
            QCoreApplication::processEvents();
            if (count_ == before)
                continue;
            last = monotonicMilliseconds();
            quiet.start();
        }
        return last;
    }

private:
    int count_ = 0;
};

/// All seven colors, a sharpening of the largest radius, and a matte surface.
PrintDialogSetup setupWith(const Photo &photo)
{
    PrintDialogSetup setup;
    setup.photos = {photo};
    setup.remembers = false;
    for (const auto &[option, choice] :
         {std::pair("Red", "4"), std::pair("Green", "-3"), std::pair("Blue", "2"),
          std::pair("Brightness", "3"), std::pair("Contrast", "6"), std::pair("Saturation", "8"),
          std::pair("Gamma", "-4"), std::pair("SharpnessRadius", "3"),
          std::pair("SharpnessIntensity", "1.50"), std::pair("Quality", "Fine"),
          std::pair("Overcoat", "Matte"), std::pair("MatteValue", "10")})
        setup.options.append({QString::fromLatin1(option), QString::fromLatin1(choice)});
    return setup;
}

/// The slider for red on the page of colors, which it turns to.
QSlider *colorSlider(PrintDialog &dialog)
{
    for (int page = 0; page < dialog.pageCount(); ++page) {
        if (dialog.pageKindSuffix(page) == QLatin1String("coloradjust"))
            dialog.showPage(page);
    }
    const QList<QWidget *> views = dialog.findChildren<QWidget *>(QStringLiteral("PDEView"));
    for (QWidget *view : views) {
        if (auto *slider = qobject_cast<QSlider *>(pdekit::viewWithTag(view, 1)); slider && view->isVisible())
            return slider;
    }
    giveUp(QStringLiteral("the window has no page of colors"));
}

QSizeF shownSize(const PreviewWidget &preview)
{
    const auto place = preview.placement();
    return place ? preview.pageToWidget().mapRect(place->target).size() : QSizeF();
}

/// Makes the widget as large as it has to be.
void showAtSize(PreviewWidget &preview, PreviewPaints &paints)
{
    constexpr int untilDecoded = 400;
    for (int round = 0; round < 3; ++round) {
        preview.setFixedSize((QSizeF(preview.size()) + shownPhoto - shownSize(preview)).toSize());
        paints.settle(untilDecoded);
    }
    report("width", shownSize(preview).width());
    report("height", shownSize(preview).height());
}

/// Another one than the last, for each index.
int valueOf(int index)
{
    return index * 7 % 51 - 25;
}

void measureSteps(QSlider &slider, PreviewPaints &paints)
{
    constexpr int untilNext = 20;
    std::vector<double> times;
    std::vector<double> later;
    for (int i = -10; i < sliderSteps; ++i) { // the first ones warm up
        const double begin = monotonicMilliseconds();
        slider.setValue(valueOf(i + 51));
        if (!paints.await())
            giveUp(QStringLiteral("a step of the slider does not paint the preview"));
        const double painted = monotonicMilliseconds();
        const double last = paints.settle(untilNext);
        if (i < 0)
            continue;
        times.push_back(painted - begin);
        later.push_back(std::max(painted, last) - begin);
    }
    report("median", median(times));
    report("last", median(later));
    std::sort(times.begin(), times.end());
    report("rarely", times[times.size() * 95 / 100]);

    const double begin = monotonicMilliseconds();
    for (int i = 0; i < quickValues; ++i)
        slider.setValue(valueOf(i));
    paints.await();
    const double painted = monotonicMilliseconds();
    report("quick", std::max(painted, paints.settle(10 * untilNext)) - begin);
}

void measureOutside(QSlider &slider, QWidget &preview)
{
    preview.hide();
    QCoreApplication::processEvents();
    std::vector<double> times;
    for (int i = -10; i < sliderSteps; ++i) {
        const double time = millisecondsOf([&] {
            slider.setValue(valueOf(i + 51));
            QCoreApplication::processEvents();
        });
        if (i >= 0)
            times.push_back(time);
    }
    report("outside", median(times));
    preview.show();
}

bool showsChange(QSlider &slider, QWidget &preview, PreviewPaints &paints)
{
    constexpr int untilPainted = 100;
    slider.setValue(slider.minimum());
    paints.settle(untilPainted);
    const QImage before = preview.grab().toImage();
    slider.setValue(slider.maximum());
    paints.settle(untilPainted);
    return preview.grab().toImage() != before;
}

} // namespace

int runPreviewChild(const QStringList &arguments)
{
    const pdekit::LogSink log = pdekit::setSystemLogSink([](const QString &) {});
    const auto photo = Photo::open(arguments.value(0));
    if (!photo)
        giveUp(photo.failure().text);
    PrintDialog dialog(setupWith(*photo));
    auto *preview = dialog.findChild<PreviewWidget *>(QStringLiteral("preview"));
    PreviewPaints paints(preview);
    dialog.show();
    const QDeadlineTimer deadline(20000);
    while (!(dialog.isReady() && dialog.isPreviewReady()) && !deadline.hasExpired())
        QCoreApplication::processEvents();
    if (!dialog.isReady())
        giveUp(dialog.whyNotReady());
    if (!dialog.message().isEmpty()) // that a choice was refused
        giveUp(dialog.message());
    QSlider *slider = colorSlider(dialog);
    showAtSize(*preview, paints);
    const auto conversion = static_cast<PreviewConversion>(arguments.value(1).toInt());
    convert(*preview, conversion);
    measureOutside(*slider, *preview);
    paints.settle(100);
    measureSteps(*slider, paints);
    report("peak", peakMemory(getpid()));
    const QImage converted = preview->grab().toImage();
    convert(*preview, PreviewConversion::None);
    if (conversion != PreviewConversion::None && preview->grab().toImage() == converted)
        giveUp(QStringLiteral("the colors were not converted"));
    report("changes", showsChange(*slider, *preview, paints));
    std::fflush(stdout);
    pdekit::setSystemLogSink(log);
    return 0;
}
