// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PhotoFormat.h"

#include "HeifLibrary.h"
#include "PlainText.h"

#include <QtCore/QBuffer>
#include <QtCore/QByteArrayView>
#include <QtCore/QDirIterator>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>
#include <QtCore/QPluginLoader>
#include <QtGui/QImageReader>

#include <algorithm>
#include <array>

namespace printdialog {
namespace {

constexpr const char *qtPackage = "qt6-image-formats-plugins";
constexpr const char *heifPackage = "libheif1";

struct KnownFormat
{
    const char *name; ///< as the image reader names it
    const char *text;
    const char *package; ///< the package needed when the image reader cannot read it; null: there is none
};

constexpr std::array knownFormats{
    KnownFormat{"jpeg", "JPEG", nullptr},       KnownFormat{"png", "PNG", nullptr},
    KnownFormat{"heif", "HEIF", heifPackage},   KnownFormat{"avif", "AVIF", heifPackage},
    KnownFormat{"tiff", "TIFF", qtPackage},     KnownFormat{"webp", "WebP", qtPackage},
    KnownFormat{"jp2", "JPEG 2000", qtPackage}, KnownFormat{"bmp", "BMP", nullptr},
    KnownFormat{"gif", "GIF", nullptr},         KnownFormat{"ppm", "PPM", nullptr},
    KnownFormat{"pgm", "PGM", nullptr},         KnownFormat{"pbm", "PBM", nullptr},
    KnownFormat{"jxl", "JPEG XL", nullptr},     KnownFormat{"psd", "Photoshop", nullptr},
    KnownFormat{"pdf", "PDF", nullptr},
};

struct Signature
{
    qsizetype position;
    QByteArrayView bytes;
    const char *name; ///< of a known format, or "raw"
};

// If one signature is a prefix of another, the longer one comes first.
constexpr std::array signatures{
    Signature{0, QByteArrayView("\xff\xd8\xff", 3), "jpeg"},
    Signature{0, QByteArrayView("\x89PNG\r\n\x1a\n", 8), "png"},
    Signature{8, QByteArrayView("CR\2\0", 4), "raw"},
    Signature{0, QByteArrayView("IIU\0", 4), "raw"},
    Signature{0, QByteArrayView("IIRO", 4), "raw"},
    Signature{8, QByteArrayView("CCD-RAW", 7), "raw"}, // after its writer's letters
    Signature{4, QByteArrayView("ftypcrx ", 8), "raw"},
    Signature{0, QByteArrayView("II*\0", 4), "tiff"},
    Signature{0, QByteArrayView("MM\0*", 4), "tiff"},
    Signature{8, QByteArrayView("WEBP", 4), "webp"},
    Signature{0, QByteArrayView("\0\0\0\x0cjP  ", 8), "jp2"},
    Signature{0, QByteArrayView("\xff\x4f\xff\x51", 4), "jp2"},
    Signature{0, QByteArrayView("\0\0\0\x0cJXL ", 8), "jxl"},
    Signature{0, QByteArrayView("\xff\x0a", 2), "jxl"},
    Signature{0, QByteArrayView("8BPS", 4), "psd"},
    Signature{0, QByteArrayView("%PDF", 4), "pdf"},
};

/// The format of a file of boxes (ISO base media) by its brands; empty when it is not a picture.
QByteArray boxedFormat(const QByteArray &head)
{
    constexpr std::array<QByteArrayView, 2> avif{"avif", "avis"};
    constexpr std::array<QByteArrayView, 8> heif{"heic", "heix", "hevc", "hevx",
                                                 "heim", "heis", "mif1", "msf1"};
    constexpr qsizetype brandSize = 4;
    if (head.size() < 16 || head.sliced(4, 4) != "ftyp")
        return {};
    const qsizetype end =
        qMin(head.size(), qsizetype(static_cast<quint8>(head[2])) << 8 | static_cast<quint8>(head[3]));
    QByteArray name;
    for (qsizetype i = 8; i + brandSize <= end; i += brandSize) {
        const QByteArrayView brand = QByteArrayView(head).sliced(i, brandSize);
        if (std::find(avif.begin(), avif.end(), brand) != avif.end())
            return QByteArrayLiteral("avif");
        if (std::find(heif.begin(), heif.end(), brand) != heif.end())
            name = QByteArrayLiteral("heif");
    }
    return name;
}

QByteArray nameOf(QByteArray head)
{
    for (const Signature &signature : signatures) {
        if (head.size() >= signature.position + signature.bytes.size() &&
            QByteArrayView(head).sliced(signature.position, signature.bytes.size()) == signature.bytes)
            return signature.name;
    }
    return boxedFormat(head);
}

/// Whether a plug-in of the image reader names the format. It is only looked at, not loaded.
bool isNamedByPlugin(const QByteArray &name)
{
    const QStringList folders = QCoreApplication::libraryPaths();
    for (const QString &folder : folders) {
        QDirIterator files(folder + QLatin1String("/imageformats"), QDir::Files);
        while (files.hasNext()) {
            const QJsonObject description = QPluginLoader(files.next()).metaData();
            const QJsonArray keys = description[QLatin1String("MetaData")][QLatin1String("Keys")].toArray();
            if (keys.contains(QString::fromLatin1(name)))
                return true;
        }
    }
    return false;
}

/// To ask the image reader loads all of its plug-ins. A window would wait for them as it opens, while the
/// thread that decodes its photo loads them anyway; so nearly every photo's format goes without.
bool imageReaderReads(const QByteArray &name)
{
    if (name == "jpeg") {
        static const bool isNamed = isNamedByPlugin("jpeg");
        if (isNamed)
            return true;
    }
    static const QList<QByteArray> formats = QImageReader::supportedImageFormats();
    return formats.contains(name);
}

bool canRead(const QByteArray &name)
{
    return PhotoFormat::isHeif(name) ? HeifLibrary::instance() != nullptr : imageReaderReads(name);
}

} // namespace

PhotoFormat PhotoFormat::of(const QByteArray &head)
{
    PhotoFormat format;
    format.name_ = nameOf(head);
    if (format.name_ == "raw")
        return ofCamera();
    if (format.name_.isEmpty()) {
        QByteArray bytes = head;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::ReadOnly);
        format.name_ = QImageReader::imageFormat(&buffer);
    }
    const auto *known = std::find_if(knownFormats.begin(), knownFormats.end(),
                                     [&](const KnownFormat &entry) { return format.name_ == entry.name; });
    if (known == knownFormats.end())
        return {};
    format.text_ = QString::fromLatin1(known->text);
    format.package_ = QString::fromLatin1(known->package);
    format.isReadable_ = canRead(format.name_);
    return format;
}

PhotoFormat PhotoFormat::ofCamera()
{
    PhotoFormat format;
    format.text_ = tr("camera raw");
    return format;
}

Failure<PhotoFault> PhotoFormat::failure(const QString &path) const
{
    const QString name = plainText(path);
    if (!package_.isEmpty())
        return {PhotoFault::NeedsPackage,
                tr("\"%1\" is a photo of the format %2, which needs the package %3. Install it, or save the "
                   "photo as JPEG.")
                    .arg(name, text_, package_),
                {}};
    if (!text_.isEmpty())
        return {PhotoFault::UnknownType,
                tr("\"%1\" is of the format %2, which cannot be printed. Save it as one of these: %3.")
                    .arg(name, text_, readableTexts()),
                {}};
    return {PhotoFault::UnknownType,
            tr("\"%1\" is not a photo or document of a known kind, whatever its name says. Save it as one of "
               "these: %2.")
                .arg(name, readableTexts() + QLatin1String(", PDF")),
            {}};
}

QString PhotoFormat::readableTexts()
{
    QStringList texts;
    for (const KnownFormat &known : knownFormats) {
        if (canRead(known.name))
            texts.append(QString::fromLatin1(known.text));
    }
    return texts.join(QLatin1String(", "));
}

} // namespace printdialog
