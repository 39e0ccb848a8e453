// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PdfWriter.h"
#include "Photo.h"
#include "Rows.h"
#include "SamplePhotos.h"
#include "TestMain.h"

#include <QtCore/QBuffer>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include <libheif/heif.h>

#include <cstring>

using namespace printdialog;
using namespace Qt::StringLiterals;

/// The encoder of the samples leaks; the program only decodes.
// NOLINTBEGIN(bugprone-reserved-identifier): the sanitizer looks for this name
extern "C" Q_DECL_EXPORT const char *__lsan_default_suppressions();
extern "C" Q_DECL_EXPORT const char *__lsan_default_suppressions()
{
    return "leak:libx265\n";
}
// NOLINTEND(bugprone-reserved-identifier)

namespace {

heif_error append(heif_context * /*context*/, const void *data, size_t size, void *bytes)
{
    static_cast<QByteArray *>(bytes)->append(static_cast<const char *>(data), qsizetype(size));
    return {heif_error_Ok, heif_suberror_Unspecified, ""};
}

/// With an orientation and a date.
QByteArray exifOf(int orientation)
{
    return QByteArray("II*\0\x08\0\0\0\x02\0\x12\x01\x03\0\x01\0\0\0", 18) + static_cast<char>(orientation) +
           QByteArray("\0\0\0\x32\x01\x02\0\x14\0\0\0\x26\0\0\0\0\0\0\0", 19) +
           QByteArray("2024:02:29 08:15:59", 20);
}

/// The picture turned by the file's own properties, and by an Exif block that says the same; empty without
/// an encoder for it.
QByteArray encoded(const QImage &picture, heif_compression_format format, int orientation,
                   const QByteArray &icc = {})
{
    QByteArray bytes;
    heif_context *context = heif_context_alloc();
    heif_encoder *encoder = nullptr;
    if (heif_context_get_encoder_for_format(context, format, &encoder).code == heif_error_Ok) {
        const QImage rgb = picture.convertToFormat(QImage::Format_RGB888);
        heif_image *image = nullptr;
        heif_image_create(rgb.width(), rgb.height(), heif_colorspace_RGB, heif_chroma_interleaved_RGB,
                          &image);
        heif_image_add_plane(image, heif_channel_interleaved, rgb.width(), rgb.height(), 8);
        int stride = 0;
        uint8_t *plane = heif_image_get_plane(image, heif_channel_interleaved, &stride);
        for (int y = 0; y < rgb.height(); ++y)
            std::memcpy(plane + std::ptrdiff_t(stride) * y, rgb.constScanLine(y), size_t(rgb.width()) * 3);
        if (!icc.isEmpty())
            heif_image_set_raw_color_profile(image, "prof", icc.constData(), size_t(icc.size()));
        heif_encoding_options *options = heif_encoding_options_alloc();
        options->image_orientation = heif_orientation(orientation);
        heif_encoder_set_lossy_quality(encoder, 90);
        heif_image_handle *handle = nullptr;
        heif_context_encode_image(context, image, encoder, options, &handle);
        const QByteArray exif = exifOf(orientation);
        heif_context_add_exif_metadata(context, handle, exif.constData(), int(exif.size()));
        heif_writer writer{1, append};
        heif_context_write(context, &writer, &bytes);
        heif_image_handle_release(handle);
        heif_encoding_options_free(options);
        heif_image_release(image);
        heif_encoder_release(encoder);
    }
    heif_context_free(context);
    return bytes;
}

} // namespace

/// HEIF and AVIF, made by libheif's own encoders.
class HeifTest : public QObject
{
    Q_OBJECT

private:
    QString pathOf(const QString &name) const { return folder_.filePath(name); }

    QTemporaryDir folder_;

private Q_SLOTS:
    void isTurnedOnce_data()
    {
        const auto add = rows<int, int>();
        for (int orientation = 1; orientation <= 8; ++orientation) {
            add(qPrintable(u"HEIF, orientation %1"_s.arg(orientation)), heif_compression_HEVC, orientation);
            add(qPrintable(u"AVIF, orientation %1"_s.arg(orientation)), heif_compression_AV1, orientation);
        }
    }

    void isTurnedOnce()
    {
        const auto [format, orientation] = row<int, int>();
        const QByteArray content =
            encoded(samples::quarters(QSize(128, 64)), heif_compression_format(format), orientation);
        if (content.isEmpty())
            QSKIP("libheif has no encoder for it here");
        QVERIFY(content.contains("Exif"));
        samples::store(pathOf(u"photo.jpg"_s), content);
        const auto photo = Photo::open(pathOf(u"photo.jpg"_s));
        QVERIFY2(photo, photo ? "" : qPrintable(photo.failure().text + photo.failure().detail));
        QCOMPARE(photo->format(), format == heif_compression_AV1 ? "avif" : "heif");
        QCOMPARE(photo->orientedSize(), orientation >= 5 ? QSize(64, 128) : QSize(128, 64));
        QCOMPARE(photo->taken(), QDateTime({2024, 2, 29}, {8, 15, 59}));
        const auto decoded = photo->decoded();
        QVERIFY(decoded);
        const QString &corners = samples::seenCorners[std::size_t(orientation)];
        QCOMPARE(
            samples::cornersOf(photo->orientation().applied(*decoded), QRect({}, photo->orientedSize()), 8),
            corners);
        const QImage small = photo->preview(QSize(50, 50));
        QCOMPARE(small.size(), photo->orientedSize().scaled(50, 50, Qt::KeepAspectRatio));
        QCOMPARE(samples::cornersOf(small, small.rect(), 5), corners);
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        const auto written = PdfWriter::write(*photo, {QSizeF(288, 432), QRectF(0, 0, 288, 432)}, buffer);
        QVERIFY(written);
        QCOMPARE(*written, PdfWriter::Embedding::Pixels);
    }

    void profileIsKept()
    {
        const QByteArray icc = samples::swappedProfile();
        const QByteArray content = encoded(samples::quarters(QSize(128, 64)), heif_compression_HEVC, 1, icc);
        if (content.isEmpty())
            QSKIP("libheif has no encoder for it here");
        samples::store(pathOf(u"photo.heic"_s), content);
        const auto photo = Photo::open(pathOf(u"photo.heic"_s));
        QVERIFY(photo);
        QCOMPARE(photo->profile().icc(), icc);
        QCOMPARE(samples::cornersOf(photo->preview(QSize(128, 64)), QRect(0, 0, 128, 64), 8), u"GRBY"_s);
    }

    void damage()
    {
        const QByteArray content = encoded(samples::quarters(QSize(128, 64)), heif_compression_HEVC, 1);
        if (content.isEmpty())
            QSKIP("libheif has no encoder for it here");
        const QByteArray changed =
            QByteArray(content).replace(content.indexOf("meta") + 8, 200, QByteArray(200, 'x'));
        for (const QByteArray &damaged : {content.first(60), content.chopped(1), changed}) {
            samples::store(pathOf(u"photo.heic"_s), damaged);
            const auto photo = Photo::open(pathOf(u"photo.heic"_s));
            QVERIFY(!photo);
            QCOMPARE(photo.failure().reason, damaged == changed ? PhotoFault::Broken : PhotoFault::Truncated);
        }
    }

    void anotherSizeThanTold()
    {
        QByteArray content = encoded(samples::quarters(QSize(128, 64)), heif_compression_HEVC, 1);
        if (content.isEmpty())
            QSKIP("libheif has no encoder for it here");
        for (qsizetype at = 0; (at = content.indexOf("ispe", at + 1)) > 0;)
            content[at + 4 + 4 + 3] = 16; // the width's last byte
        samples::store(pathOf(u"photo.heic"_s), content);
        const auto photo = Photo::open(pathOf(u"photo.heic"_s));
        QVERIFY2(photo, photo ? "" : qPrintable(photo.failure().detail));
        QCOMPARE(photo->storedSize(), QSize(16, 64));
        const auto decoded = photo->decoded();
        QVERIFY(!decoded);
        QCOMPARE(decoded.failure().reason, PhotoFault::Broken);
        QVERIFY(photo->preview(QSize(64, 64)).isNull());
    }
};

CORVEL_TEST(HeifTest)
#include "HeifTest.moc"
