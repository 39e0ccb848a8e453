// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PictureAdjuster.h"
#include "BandThreads.h"
#include "ColorTables.h"
#include "Lanes.h"
#include "Rows.h"
#include "TestMain.h"
#include "UnsharpMask.h"

#include <QtCore/QRandomGenerator>

#include <cmath>

using namespace printdialog;
using pdekit::Adjustment;

namespace {

/// Noise over a gradient, with black, white and edges in it; the same each time.
QImage picture(const QSize &size)
{
    QImage image(size, QImage::Format_RGB32);
    QRandomGenerator random(7);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const int base = (x * 255 / size.width() + (y / 8 % 2) * 90) % 256;
            const auto noisy = [&] {
                return std::clamp(base + random.bounded(-40, 41), 0, 255);
            };
            image.setPixel(x, y, qRgb(noisy(), noisy(), noisy()));
        }
    }
    return image;
}

QSize sizeFor(quint32 seed)
{
    static constexpr QSize sizes[] = {{1, 1}, {1, 9}, {7, 3}, {5, 1}, {33, 20}, {40, 31}};
    return sizes[seed % std::size(sizes)];
}

/// The largest difference between components.
int difference(const QImage &a, const QImage &b)
{
    if (a.size() != b.size())
        return 256;
    int largest = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb one = a.pixel(x, y);
            const QRgb other = b.pixel(x, y);
            largest =
                std::max({largest, std::abs(qRed(one) - qRed(other)), std::abs(qGreen(one) - qGreen(other)),
                          std::abs(qBlue(one) - qBlue(other)), std::abs(qAlpha(one) - qAlpha(other))});
        }
    }
    return largest;
}

/// How many bytes differ, by 1 or more.
int differences(const QImage &a, const QImage &b)
{
    int count = 0;
    for (qsizetype i = 0; i < a.sizeInBytes(); ++i)
        count += a.constBits()[i] != b.constBits()[i];
    return count;
}

using Color = std::array<double, 3>;

QRgb rounded(const Color &color)
{
    const auto level = [](double value) {
        return static_cast<int>(std::lround(std::clamp(value, 0.0, 255.0)));
    };
    return qRgb(level(color[0]), level(color[1]), level(color[2]));
}

template <class Function>
QImage mapped(QImage image, const Function &function)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, rounded(function(x, y, image.pixel(x, y))));
    }
    return image;
}

/// The colors of a pixel, without a limit.
Color colorsOf(const Adjustment &adjustment, QRgb pixel)
{
    const int levels[] = {qRed(pixel), qGreen(pixel), qBlue(pixel)};
    Color result = {};
    for (std::size_t to = 0; to < 3; ++to) {
        for (std::size_t from = 0; from < 3; ++from) {
            const auto &curve = adjustment.curves[from];
            const auto level = static_cast<std::size_t>(levels[from]);
            result[to] += adjustment.matrix[to][from] * (curve.empty() ? levels[from] : curve[level] * 255.0);
        }
    }
    return result;
}

/// By the definition: a Gaussian function over the luminance, in both directions at once.
QImage sharpened(const QImage &image, double radius, double amount)
{
    const int half = std::max(1, static_cast<int>(std::lround(2.7 * radius)));
    std::vector<double> weights;
    double sum = 0.0;
    for (int i = -half; i <= half; ++i)
        sum += weights.emplace_back(std::exp(-i * i / (2.0 * radius * radius)));
    const auto luminance = [&](int x, int y) {
        const QRgb pixel =
            image.pixel(std::clamp(x, 0, image.width() - 1), std::clamp(y, 0, image.height() - 1));
        return 0.2126 * qRed(pixel) + 0.7152 * qGreen(pixel) + 0.0722 * qBlue(pixel);
    };
    const auto weight = [&](int i) {
        return weights[static_cast<std::size_t>(i + half)] / sum;
    };
    std::vector<double> columns(static_cast<std::size_t>(image.width() * image.height()));
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            for (int i = -half; i <= half; ++i)
                columns[static_cast<std::size_t>(y * image.width() + x)] += weight(i) * luminance(x, y + i);
        }
    }
    return mapped(image, [&](int x, int y, QRgb pixel) {
        double mean = 0.0;
        for (int i = -half; i <= half; ++i)
            mean += weight(i) * columns[static_cast<std::size_t>(y * image.width() +
                                                                 std::clamp(x + i, 0, image.width() - 1))];
        const double more = amount * (luminance(x, y) - mean);
        return Color{qRed(pixel) + more, qGreen(pixel) + more, qBlue(pixel) + more};
    });
}

Adjustment sharpening(double radius, double amount, Adjustment::Unit unit = Adjustment::Unit::Dots)
{
    Adjustment adjustment;
    adjustment.sharpeningRadius = radius;
    adjustment.sharpeningUnit = unit;
    adjustment.sharpeningAmount = amount;
    return adjustment;
}

/// Each curve and element up to a share of its limits.
Adjustment randomColors(quint32 seed)
{
    QRandomGenerator random(seed);
    const double share = (seed % 5 + 1) / 5.0;
    const auto between = [&](double least, double most) {
        return least + random.generateDouble() * (most - least);
    };
    Adjustment adjustment;
    for (auto &curve : adjustment.curves) {
        for (int i = 0; i < Adjustment::curvePoints; ++i)
            curve.push_back(between(-share, 1.0 + share));
        std::sort(curve.begin(), curve.end());
    }
    for (auto &row : adjustment.matrix) {
        for (double &element : row)
            element = seed % 7 == 6 ? (random.bounded(2) == 0 ? -4.0 : 4.0) : between(-4.0, 4.0) * share;
    }
    return adjustment;
}

Adjustment brighter()
{
    Adjustment adjustment;
    for (std::size_t i = 0; i < 3; ++i)
        adjustment.matrix[i][i] = 1.1;
    return adjustment;
}

QImage adjusted(const QImage &image, const QList<Adjustment> &adjustments, const PictureScale &scale = {})
{
    PictureAdjuster adjuster;
    adjuster.setAdjustment(PictureAdjustment::of(adjustments));
    adjuster.setScale(scale);
    return adjuster.adjusted(image);
}

} // namespace

class PictureAdjusterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void colorsAreExact()
    {
        for (quint32 seed = 0; seed < 60; ++seed) {
            const Adjustment colors = randomColors(seed);
            const QImage image = picture(sizeFor(seed));
            const QImage expected =
                mapped(image, [&](int, int, QRgb pixel) { return colorsOf(colors, pixel); });
            const int off = difference(adjusted(image, {colors}), expected);
            QVERIFY2(off <= 1, qPrintable(QStringLiteral("%1 with seed %2").arg(off).arg(seed)));
        }
        // Moderate colors have enough bits that hardly any byte is off.
        const QImage image = picture({40, 31});
        const QImage expected =
            mapped(image, [](int, int, QRgb pixel) { return colorsOf(brighter(), pixel); });
        QVERIFY(differences(adjusted(image, {brighter()}), expected) <= image.sizeInBytes() / 100);
    }

    void identityKeepsEachByte()
    {
        const QImage image = picture({40, 31});
        QCOMPARE(adjusted(image, {{}}).cacheKey(), image.cacheKey());
        // As a second stage may be, whose first one is worked out.
        PictureAdjustment::ColorStage stage = {{}, Adjustment::unchangedColors};
        for (auto &curve : stage.curves) {
            for (int i = 0; i < Adjustment::curvePoints; ++i)
                curve.push_back(i / 255.0);
        }
        QImage result(image.size(), image.format());
        ColorTables(stage).apply(reinterpret_cast<const QRgb *>(image.constBits()),
                                 reinterpret_cast<QRgb *>(result.bits()), image.width() * image.height());
        QCOMPARE(result, image);
    }

    void masksAreExact_data()
    {
        addRows<double, double>({
            {"smallest radius", 0.5, 3.0},
            {"fraction", 1.3, 1.5},
            {"much", 2.0, 10.0},
            {"wider than some pictures", 6.0, 10.0},
            {"largest radius", 24.0, 2.0},
        });
    }
    void masksAreExact()
    {
        const auto [radius, amount] = row<double, double>();
        for (quint32 i = 0; i < 6; ++i) {
            const QImage image = picture(sizeFor(i));
            const QImage result = adjusted(image, {sharpening(radius, amount)});
            const QImage expected = sharpened(image, radius, amount);
            QVERIFY(difference(result, expected) <= 1);
            QVERIFY(differences(result, expected) <= image.sizeInBytes() / 100);
        }
    }

    void radiusFollowsTheScale_data()
    {
        using Unit = Adjustment::Unit;
        addRows<Adjustment, PictureScale, double>({
            {"dots, enlarged", sharpening(1.5, 2.0), {.pixelsPerInch = 600.0, .dotsPerInch = 300.0}, 3.0},
            {"dots, reduced", sharpening(4.0, 2.0), {.pixelsPerInch = 150.0, .dotsPerInch = 600.0}, 1.0},
            {"dots, too fine", sharpening(1.0, 2.0), {.pixelsPerInch = 100.0, .dotsPerInch = 300.0}, 0.0},
            {"dots, too coarse", sharpening(60.0, 2.0), {.pixelsPerInch = 600.0, .dotsPerInch = 300.0}, 24.0},
            {"millimeters", sharpening(0.254, 2.0, Unit::Millimeters), {200.0, 300.0}, 2.0},
            {"no scale", sharpening(1.0, 2.0), {.pixelsPerInch = 0.0, .dotsPerInch = 0.0}, 0.0},
        });
    }
    void radiusFollowsTheScale()
    {
        const auto [adjustment, scale, radius] = row<Adjustment, PictureScale, double>();
        const QImage image = picture({33, 20});
        PictureAdjuster adjuster;
        adjuster.setAdjustment(PictureAdjustment::of({adjustment}));
        (void)adjuster.adjusted(image); // at another scale
        adjuster.setScale(scale);
        QCOMPARE(adjuster.hidesSharpening(), radius == 0.0);
        const QImage expected = radius == 0.0 ? image : sharpened(image, radius, adjustment.sharpeningAmount);
        QVERIFY(difference(adjuster.adjusted(image), expected) <= 1);
    }

    /// Each step works on the result of the one before, whichever adjustment it comes from.
    void stepsFollowEachOther()
    {
        const QImage image = picture({40, 31});
        Adjustment first = sharpening(1.5, 1.0);
        first.matte = 0.6;
        first.matrix[0][0] = 0.8;
        Adjustment second = sharpening(3.0, 0.5);
        second.curves[1] = randomColors(1).curves[1];
        const Adjustment third = sharpening(1.0, 0.5);
        QImage expected = mapped(mapped(image, [&](int, int, QRgb pixel) { return colorsOf(first, pixel); }),
                                 [&](int, int, QRgb pixel) { return colorsOf(second, pixel); });
        expected = sharpened(sharpened(sharpened(expected, 1.5, 1.0), 3.0, 0.5), 1.0, 0.5);
        expected = mapped(expected, [](int, int, QRgb pixel) {
            const auto level = [](int value) {
                return value + (255 - value) * 0.12 * 0.6;
            };
            return Color{level(qRed(pixel)), level(qGreen(pixel)), level(qBlue(pixel))};
        });
        QVERIFY(difference(adjusted(image, {first, second, third}), expected) <= 5); // steps round
    }

    void matteLiftsBlackAndKeepsWhite()
    {
        QImage image(256, 1, QImage::Format_RGB32);
        for (int i = 0; i < 256; ++i)
            image.setPixel(i, 0, qRgb(i, 255 - i, i));
        for (const double matte : {0.05, 0.5, 1.0}) {
            Adjustment adjustment;
            adjustment.matte = matte;
            const QImage result = adjusted(image, {adjustment});
            QCOMPARE(qRed(result.pixel(255, 0)), 255);
            QVERIFY(
                difference(result, mapped(image, [matte](int, int, QRgb pixel) {
                               const auto level = [matte](int value) {
                                   return value + (255 - value) * 0.12 * matte;
                               };
                               return Color{level(qRed(pixel)), level(qGreen(pixel)), level(qBlue(pixel))};
                           })) <= 1);
        }
    }

    void bandsGiveTheSameBytes()
    {
        const QImage image = picture({240, 200});
        const auto *pixels = reinterpret_cast<const QRgb *>(image.constBits());
        const auto read = [&](int row, QRgb *to) {
            std::copy_n(pixels + row * 240, 240, to);
        };
        const UnsharpMask mask(6.0, 4.0);
        QImage whole(image.size(), image.format());
        auto *to = reinterpret_cast<QRgb *>(whole.bits());
        UnsharpMask::Scratch scratch;
        mask.apply(image.size(), 0, 200, read, to, 240, scratch);
        QImage parts(image.size(), image.format());
        to = reinterpret_cast<QRgb *>(parts.bits());
        for (int begin = 0, end = 1; begin < 200; begin = end, end = std::min(200, 2 * end + 1)) {
            UnsharpMask::Scratch own;
            mask.apply(image.size(), begin, end, read, to + begin * 240, 240, own);
        }
        QCOMPARE(parts, whole);

        PictureAdjuster adjuster;
        adjuster.setAdjustment(PictureAdjustment::of({sharpening(6.0, 4.0)}));
        for (int run = 0; run < 10; ++run) {
            QCOMPARE(adjuster.adjusted(image), whole);
            adjuster.setLookup(nullptr);
            adjuster.setScale({300.0, 301.0}); // so that it is worked out again
            adjuster.setScale({});
        }
    }

    /// However many bands, each row is worked on once, and all of them before it returns.
    void bandsCoverEachRowOnce()
    {
        BandThreads threads;
        for (int run = 0; run < 400; ++run) {
            std::vector<std::atomic<int>> rows(static_cast<std::size_t>(run % 9 + 1));
            threads.run(int(rows.size()), run % 7, [&rows](int begin, int end, int /*thread*/) {
                for (int row = begin; row < end; ++row)
                    ++rows[static_cast<std::size_t>(row)];
            });
            QVERIFY(std::all_of(rows.begin(), rows.end(), [](const auto &count) { return count == 1; }));
        }
    }

    void clippedTonesAreCounted()
    {
        const QImage image = picture({41, 30});
        const QRect part(5, 2, 30, 20);
        for (quint32 seed = 0; seed < 10; ++seed) {
            PictureAdjuster adjuster;
            const Adjustment colors = seed == 0 ? brighter() : randomColors(seed);
            adjuster.setAdjustment(PictureAdjustment::of({colors}));
            const ClippedTones clipped = adjuster.clippedTones(image, part);
            QCOMPARE(clipped.overlay.size(), image.size());
            qint64 least = 0;
            qint64 most = 0;
            for (int y = 0; y < image.height(); ++y) {
                for (int x = 0; x < image.width(); ++x) {
                    const QRgb pixel = image.pixel(x, y);
                    const Color result = colorsOf(colors, pixel);
                    const int before[] = {qRed(pixel), qGreen(pixel), qBlue(pixel)};
                    // What is this close to the limit may be seen on either side of it.
                    const auto isBeyond = [&](double margin) {
                        bool is = false;
                        for (std::size_t i = 0; i < 3; ++i)
                            is |= (result[i] > 255.5 + margin && before[i] != 255) ||
                                  (result[i] < -0.5 - margin && before[i] != 0);
                        return is && part.contains(x, y);
                    };
                    const bool isMarked = qAlpha(clipped.overlay.pixel(x, y)) != 0;
                    QVERIFY(isMarked || !isBeyond(0.4));
                    QVERIFY(!isMarked || isBeyond(-0.4));
                    least += isBeyond(0.4);
                    most += isBeyond(-0.4);
                }
            }
            QVERIFY(least > 0 && most < 30 * 20 && clipped.pixels >= least && clipped.pixels <= most);
        }
    }

    void whiteAndBlackAreMarkedApart()
    {
        QImage image(3, 1, QImage::Format_RGB32);
        image.setPixel(0, 0, qRgb(250, 100, 100));
        image.setPixel(1, 0, qRgb(255, 255, 0)); // white and black already
        image.setPixel(2, 0, qRgb(100, 100, 2));
        Adjustment contrast;
        for (auto &curve : contrast.curves) {
            for (int i = 0; i < Adjustment::curvePoints; ++i)
                curve.push_back(1.2 * i / 255.0 - 0.1);
        }
        PictureAdjuster adjuster;
        adjuster.setAdjustment(PictureAdjustment::of({contrast, brighter()}));
        const ClippedTones clipped = adjuster.clippedTones(image, image.rect());
        const QRgb white = clipped.overlay.pixel(0, 0);
        const QRgb black = clipped.overlay.pixel(2, 0);
        QVERIFY(qRed(white) > qBlue(white) && qRed(black) < qBlue(black));
        QCOMPARE(qAlpha(clipped.overlay.pixel(1, 0)), 0);
        QCOMPARE(clipped.pixels, 2);
    }

    /// A result that is still held stays as it was; otherwise its memory is used again.
    void resultIsKept()
    {
        const QImage image = picture({40, 31});
        QImage other = image.mirrored();
        other.setDevicePixelRatio(2.0);
        PictureAdjuster adjuster;
        adjuster.setAdjustment(PictureAdjustment::of({brighter()}));
        const uchar *memory = adjuster.adjusted(image).constBits();
        QCOMPARE(adjuster.adjusted(other).constBits(), memory);
        const QImage held = adjuster.adjusted(other);
        QCOMPARE(held.devicePixelRatio(), 2.0);
        QCOMPARE(held, adjusted(other, {brighter()}));
        (void)adjuster.adjusted(image);
        QCOMPARE(held, adjusted(other, {brighter()}));
        adjuster.setAdjustment({});
        QCOMPARE(adjuster.adjusted(image).cacheKey(), image.cacheKey());
    }

    /// What is written for one processor does the same as what is written for all.
    void lanesAreAlike()
    {
        QRandomGenerator random(3);
        for (int run = 0; run < 200; ++run) {
            std::array<std::int16_t, 16> numbers;
            for (auto &number : numbers)
                number = static_cast<std::int16_t>(random.bounded(-32768, 32768) >> random.bounded(10));
            const auto low = lanes::loaded<lanes::Shorts>(numbers.data());
            const auto high = lanes::loaded<lanes::Shorts>(numbers.data() + 8);
            const auto isSame = [](const auto &a, const auto &b) {
                return std::memcmp(&a, &b, sizeof a) == 0;
            };
            QVERIFY(isSame(lanes::packed(low, high), lanes::portable::packed(low, high)));
            const int one = random.bounded(257);
            const int other = random.bounded(257);
            const auto sums = lanes::weighted(numbers.data(), one, numbers.data() + 4, other);
            QVERIFY(isSame(sums, lanes::portable::weighted(numbers.data(), one, numbers.data() + 4, other)));
            QVERIFY(isSame(lanes::narrowed(sums, sums >> 9), lanes::portable::narrowed(sums, sums >> 9)));
        }
    }
};

CORVEL_TEST(PictureAdjusterTest)
#include "PictureAdjusterTest.moc"
