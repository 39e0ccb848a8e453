// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "BenchPicture.h"
#include "BenchTable.h"
#include "Benches.h"
#include "PreviewConversion.h"
#include "PreviewPeers.h"
#include "VirtualDisplay.h"

#include <QtCore/QMap>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtWidgets/QApplication>

namespace {

constexpr QSize widestDisplay(4000, 3000);
constexpr QSize largeEnough(6000, 4000); ///< the photo that all is measured with

constexpr std::pair<PreviewConversion, const char *> conversions[] = {
    {PreviewConversion::None, ""},
    {PreviewConversion::ScreenProfile, ", screen profile"},
    {PreviewConversion::ScreenProfileAndProof, ", screen profile and soft proof"},
};

/// The aim for the median, at a device pixel ratio of 1 or 2.
double largestStep(PreviewConversion conversion, int ratio)
{
    if (conversion == PreviewConversion::None)
        return ratio == 1 ? 5 : 15;
    return ratio == 1 ? 9 : 28;
}

struct PreviewCase
{
    QString photoName;
    QString photo; ///< its path
    QString platform;
    QProcessEnvironment environment;
    int ratio;
    PreviewConversion conversion;
};

/// What the child has reported. It is noted when it has not come to its end.
QMap<QString, double> measured(const PreviewCase &each, const QString &name)
{
    QProcessEnvironment environment = each.environment;
    environment.insert(QStringLiteral("QT_SCALE_FACTOR"), QString::number(each.ratio));
    QProcess child;
    child.setProcessEnvironment(environment);
    child.start(QApplication::applicationFilePath(),
                {QStringLiteral("--child"), QStringLiteral("preview"), each.photo,
                 QString::number(static_cast<int>(each.conversion))});
    const bool isOver = child.waitForFinished(120000);
    QMap<QString, double> values;
    QString note = QStringLiteral("the window has not come to an end");
    for (const QByteArray &line : child.readAllStandardOutput().split('\n')) {
        if (line.startsWith("note "))
            note = QString::fromLocal8Bit(line.sliced(5));
        else if (const qsizetype space = line.indexOf(' '); space > 0)
            values.insert(QString::fromLatin1(line.first(space)), line.sliced(space + 1).toDouble());
    }
    if (!isOver || child.exitStatus() != QProcess::NormalExit || child.exitCode() != 0)
        printNote(QStringLiteral("%1: not measured, %2").arg(name, note));
    return values;
}

/// The peers' times for each ratio.
struct PreviewPeers
{
    explicit PreviewPeers(int ratio)
        : lcms(lcmsMilliseconds(shownPhoto * ratio))
        , vips(vipsMilliseconds(shownPhoto * ratio))
    {
    }

    double lcms;
    std::optional<double> vips;
};

void benchCase(const PreviewCase &each, const PreviewPeers &peers)
{
    const QString name =
        QStringLiteral("%1, ratio %2, %3%4")
            .arg(each.photoName)
            .arg(each.ratio)
            .arg(each.platform, QLatin1String(conversions[static_cast<std::size_t>(each.conversion)].second));
    const QMap<QString, double> values = measured(each, name);
    const auto row = [&name, &values](const char *what, const char *key, const BenchRow &rest = {}) {
        if (!values.contains(QLatin1String(key)))
            return;
        BenchRow whole = rest;
        whole.what = QStringLiteral("%1: %2").arg(name, QLatin1String(what));
        whole.ours = values.value(QLatin1String(key));
        printRow(whole);
    };
    const double largest = largestStep(each.conversion, each.ratio);
    row("slider to painted preview", "median",
        {{}, 0, QStringLiteral("lcms2, colors"), peers.lcms, {}, largest});
    if (peers.vips)
        row("slider to painted preview", "median", {{}, 0, QStringLiteral("libvips"), peers.vips, {}, {}});
    row("its 95th percentile", "rarely", {{}, 0, {}, {}, {}, 2 * largest});
    if (values.value(QStringLiteral("last")) > 1.1 * values.value(QStringLiteral("median")))
        row("until its last paint", "last");
    row("100 values at once, until the last is painted", "quick");
    row("a step with the preview hidden", "outside");
    row("peak memory", "peak", {{}, 0, {}, {}, {}, {}, QStringLiteral("MiB")});
    if (values.value(QStringLiteral("changes"), 1) == 0)
        printNote(QStringLiteral("%1: THE PREVIEW SHOWS NO CHANGE").arg(name));
    if (const QSizeF seen(values.value(QStringLiteral("width")), values.value(QStringLiteral("height")));
        seen.toSize() != shownPhoto)
        printNote(QStringLiteral("%1: SHOWN AT %2 x %3").arg(name).arg(seen.width()).arg(seen.height()));
}

} // namespace

void benchPreview()
{
    const QTemporaryDir folder;
    const VirtualDisplay display(widestDisplay);
    QList<std::pair<QString, QProcessEnvironment>> platforms{
        {QStringLiteral("offscreen"), QProcessEnvironment::systemEnvironment()}};
    if (const auto environment = display.environment())
        platforms.append({QStringLiteral("Xvfb"), *environment});
    else
        printNote(QStringLiteral("the preview on an X display: not measured, there is no Xvfb"));
    const PreviewPeers peers[] = {PreviewPeers(1), PreviewPeers(2)};
    if (!peers[0].vips)
        printNote(QStringLiteral("the preview beside libvips: not measured, it is not installed"));
    for (const auto &[photoName, size] :
         {std::pair("24 megapixels", largeEnough), std::pair("100 megapixels", QSize(12240, 8160))}) {
        const QString path = folder.filePath(QStringLiteral("photo.jpg"));
        picture(size).save(path, "JPEG", 90);
        for (const auto &[platform, environment] : std::as_const(platforms)) {
            for (const int ratio : {1, 2}) {
                for (const auto &[conversion, suffix] : conversions) {
                    // The photo's size makes no difference to what is done with the shown pixels.
                    if (conversion == PreviewConversion::None || size == largeEnough)
                        benchCase({QLatin1String(photoName), path, platform, environment, ratio, conversion},
                                  peers[ratio - 1]);
                }
            }
        }
    }
}
