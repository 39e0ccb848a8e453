// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PngHeader.h"

#include "ExifData.h"

#include <QtCore/QtEndian>
#include <QtGui/QColorSpace>

#include <zlib.h>

#include <algorithm>
#include <array>
#include <vector>

namespace printdialog {
namespace {

enum ColorType { Grey = 0, Rgb = 2, Palette = 3, GreyAlpha = 4, Rgba = 6 };

constexpr qsizetype largestPngProfile = 16 << 20; // bytes, decompressed

quint32 wordAt(QByteArrayView bytes, qsizetype position)
{
    return qFromBigEndian<quint32>(bytes.data() + position);
}

quint32 checksum(QByteArrayView bytes)
{
    const auto *data = reinterpret_cast<const Bytef *>(bytes.data());
    return static_cast<quint32>(crc32_z(0, data, static_cast<z_size_t>(bytes.size())));
}

/// Decompresses a zlib stream; empty when it is damaged or longer than the limit.
QByteArray inflated(QByteArrayView bytes, qsizetype limit)
{
    QByteArray result;
    z_stream stream = {};
    if (inflateInit(&stream) != Z_OK)
        return result;
    stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(bytes.data()));
    stream.avail_in = static_cast<uInt>(bytes.size());
    std::array<char, 65536> buffer = {};
    int status = Z_OK;
    while (status == Z_OK && result.size() <= limit) {
        stream.next_out = reinterpret_cast<Bytef *>(buffer.data());
        stream.avail_out = static_cast<uInt>(buffer.size());
        status = inflate(&stream, Z_NO_FLUSH);
        result.append(buffer.data(), static_cast<qsizetype>(buffer.size() - stream.avail_out));
    }
    inflateEnd(&stream);
    return status == Z_STREAM_END && result.size() <= limit ? result : QByteArray();
}

/// Goes through the chunks of a file.
class PngChunks
{
public:
    explicit PngChunks(QByteArrayView bytes)
        : bytes_(bytes)
    {
    }

    /// Goes on to the next chunk, first to the first one. False: there are no more complete ones.
    bool next()
    {
        constexpr qsizetype frameSize = 12; // length, type and checksum
        if (position_ + frameSize > bytes_.size())
            return false;
        const auto length = qsizetype(wordAt(bytes_, position_));
        if (length > bytes_.size() - position_ - frameSize)
            return false;
        typeAndContent_ = bytes_.sliced(position_ + 4, 4 + length);
        position_ += frameSize + length;
        return true;
    }
    QByteArrayView type() const { return typeAndContent_.first(4); }
    QByteArrayView content() const { return typeAndContent_.sliced(4); }
    bool isIntact() const { return wordAt(bytes_, position_ - 4) == checksum(typeAndContent_); }

private:
    static constexpr qsizetype signatureSize = 8;

    QByteArrayView bytes_;
    QByteArrayView typeAndContent_;
    qsizetype position_ = signatureSize;
};

class PngReader
{
public:
    explicit PngReader(QByteArrayView bytes)
    {
        constexpr qsizetype imageHeaderEnd = 33; // of the signature and the first chunk
        header_.beginning = bytes.first(qMin(imageHeaderEnd, bytes.size())).toByteArray();
        header_.state = readChunks(bytes);
    }

    PngHeader header()
    {
        header_.isValid =
            hasUsualMethods_ && hasAllowedBits() && (type_ != Palette || !header_.palette.isEmpty());
        const bool hasPalette = type_ == Palette;
        header_.components = type_ == Rgb ? 3 : 1;
        header_.decodedComponents = type_ == Grey || type_ == GreyAlpha ? 1 : 3;
        const bool hasAlpha = isTransparent_ || type_ == GreyAlpha || type_ == Rgba;
        header_.decodedChannels = header_.decodedComponents + (hasAlpha ? 1 : 0);
        header_.isEmbeddable = header_.isValid && (type_ == Grey || type_ == Rgb || hasPalette) &&
                               !isTransparent_ && !header_.isInterlaced && hasPixels_;
        if (header_.isValid && hasPalette) {
            const qsizetype colors = qsizetype(1) << header_.bitsPerSample;
            header_.palette = header_.palette.leftJustified(colors * 3, '\0', true);
        }
        if (!hasPalette)
            header_.palette.clear();
        const ColorProfile embedded = ColorProfile::fromIcc(icc_);
        if (embedded.components() == (type_ == Grey || type_ == GreyAlpha ? 1 : 3))
            header_.profile = embedded;
        else if (!isSrgb_ && gamma_ > 0 && type_ != Grey)
            header_.profile = measuredProfile();
        return header_;
    }

private:
    using State = PngHeader::State;

    State readChunks(QByteArrayView bytes)
    {
        auto found = State::Whole;
        for (PngChunks chunks(bytes); chunks.next();) {
            if (!chunks.isIntact()) {
                if (chunks.type() != "IDAT")
                    return State::Broken;
                found = State::DamagedPixels;
            }
            if (chunks.type() == "IEND")
                return found;
            readChunk(chunks.type(), chunks.content());
        }
        return State::Truncated;
    }

    bool hasAllowedBits() const
    {
        const int bits = header_.bitsPerSample;
        const bool isWhole = bits == 8 || bits == 16;
        const bool isPart = bits == 1 || bits == 2 || bits == 4;
        switch (type_) {
        case Grey:
            return isPart || isWhole;
        case Palette:
            return isPart || bits == 8;
        case Rgb:
        case GreyAlpha:
        case Rgba:
            return isWhole;
        default:
            return false;
        }
    }

    void readChunk(QByteArrayView type, QByteArrayView content)
    {
        if (type == "IHDR" && content.size() >= 13)
            readImageHeader(content);
        else if (type == "PLTE" && content.size() % 3 == 0 && content.size() <= 768)
            header_.palette = content.toByteArray();
        else if (type == "IDAT")
            hasPixels_ = true;
        else if (type == "tRNS")
            isTransparent_ = true;
        else if (type == "pHYs" && content.size() >= 9)
            readResolution(content);
        else if (type == "eXIf")
            readExif(content);
        else if (type == "sRGB")
            isSrgb_ = true;
        else if (type == "gAMA" && content.size() >= 4)
            gamma_ = wordAt(content, 0) / 100000.0;
        else if (type == "cHRM" && content.size() >= 32)
            readPrimaries(content);
        else if (type == "iCCP")
            readProfile(content);
    }

    void readImageHeader(QByteArrayView content)
    {
        const quint32 width = wordAt(content, 0);
        const quint32 height = wordAt(content, 4);
        if (width <= INT_MAX && height <= INT_MAX)
            header_.size = QSize(static_cast<int>(width), static_cast<int>(height));
        header_.bitsPerSample = static_cast<quint8>(content[8]);
        type_ = static_cast<quint8>(content[9]);
        hasUsualMethods_ = content[10] == 0 && content[11] == 0;
        header_.isInterlaced = content[12] != 0;
    }

    void readExif(QByteArrayView content)
    {
        const ExifData data = ExifData::fromTiff(content);
        header_.orientation = data.orientation;
        header_.taken = data.taken;
    }

    void readResolution(QByteArrayView content)
    {
        constexpr double metresPerInch = 0.0254;
        if (content[8] == 1)
            header_.resolution =
                plausibleResolution(wordAt(content, 0) * metresPerInch, wordAt(content, 4) * metresPerInch);
    }

    void readPrimaries(QByteArrayView content)
    {
        for (std::size_t i = 0; i < points_.size(); ++i)
            points_[i] = QPointF(wordAt(content, qsizetype(i) * 8) / 100000.0,
                                 wordAt(content, qsizetype(i) * 8 + 4) / 100000.0);
    }

    /// The chunk holds a name, a null byte, the compression method, and the profile.
    void readProfile(QByteArrayView content)
    {
        const qsizetype end = content.indexOf('\0');
        if (end >= 0 && end + 2 < content.size())
            icc_ = inflated(content.sliced(end + 2), largestPngProfile);
    }

    ColorProfile measuredProfile() const
    {
        constexpr double largestDifference = 0.003;
        const auto isNear = [](const QPointF &a, const QPointF &b) {
            return (a - b).manhattanLength() < largestDifference;
        };
        const bool hasUsualPoints = std::equal(points_.begin(), points_.end(), usualPoints.begin(), isNear);
        if (hasUsualPoints && gamma_ > 0.44 && gamma_ < 0.47)
            return {}; // written by programs that mean sRGB
        const QColorSpace space(points_[0], points_[1], points_[2], points_[3],
                                QColorSpace::TransferFunction::Gamma, static_cast<float>(1 / gamma_));
        return space.isValid() ? ColorProfile::fromIcc(space.iccProfile()) : ColorProfile();
    }

    /// The white point and primaries of sRGB: white, red, green, blue.
    static constexpr std::array<QPointF, 4> usualPoints{QPointF(0.3127, 0.329), QPointF(0.64, 0.33),
                                                        QPointF(0.3, 0.6), QPointF(0.15, 0.06)};

    PngHeader header_;
    QByteArray icc_;
    std::array<QPointF, 4> points_ = usualPoints;
    double gamma_ = 0;
    int type_ = -1;
    bool hasUsualMethods_ = false; // of compression and filtering: only one of each is defined
    bool hasPixels_ = false;
    bool isTransparent_ = false;
    bool isSrgb_ = false;
};

} // namespace

PngHeader PngHeader::read(QByteArrayView bytes)
{
    return PngReader(bytes).header();
}

QList<QByteArrayView> PngHeader::pixelParts(QByteArrayView bytes)
{
    QList<QByteArrayView> parts;
    for (PngChunks chunks(bytes); chunks.next() && chunks.type() != "IEND";) {
        if (chunks.type() == "IDAT")
            parts.append(chunks.content());
    }
    return parts;
}

bool PngHeader::hasAllPixels(QByteArrayView bytes) const
{
    constexpr Bytef lastFilter = 4;
    const qint64 rowSize = (qint64(size.width()) * components * bitsPerSample + 7) / 8 + 1;
    const qint64 wanted = rowSize * size.height();
    z_stream stream = {};
    if (inflateInit(&stream) != Z_OK)
        return false;
    std::vector<Bytef> buffer(std::size_t(256) << 10);
    qint64 done = 0;
    int status = Z_OK;
    const QList<QByteArrayView> parts = pixelParts(bytes);
    for (const QByteArrayView part : parts) {
        stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(part.data()));
        stream.avail_in = static_cast<uInt>(part.size());
        do {
            stream.next_out = buffer.data();
            stream.avail_out = static_cast<uInt>(buffer.size());
            status = inflate(&stream, Z_NO_FLUSH);
            const auto count = qint64(buffer.size()) - stream.avail_out;
            // Each row begins with its filter's number.
            for (qint64 i = (rowSize - done % rowSize) % rowSize; i < count; i += rowSize) {
                if (buffer[std::size_t(i)] > lastFilter)
                    status = Z_DATA_ERROR;
            }
            done += count;
        } while (status == Z_OK && stream.avail_out == 0 && done <= wanted);
        if (status != Z_OK && status != Z_BUF_ERROR)
            break;
    }
    inflateEnd(&stream);
    return status == Z_STREAM_END && done == wanted;
}

} // namespace printdialog
