// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "JpegHeader.h"

#include <cstring>
#include <map>

namespace printdialog {
namespace {

enum Marker : int {
    Temporary = 0x01,
    FirstFrame = 0xc0,
    ProgressiveFrame = 0xc2,
    HuffmanTables = 0xc4,
    FrameExtension = 0xc8,
    ArithmeticFrame = 0xc9,
    ProgressiveArithmeticFrame = 0xca,
    ArithmeticTables = 0xcc,
    LastFrame = 0xcf,
    FirstRestart = 0xd0,
    StartOfImage = 0xd8,
    EndOfImage = 0xd9,
    StartOfScan = 0xda,
    App0 = 0xe0,
    App1 = 0xe1,
    App2 = 0xe2,
    App14 = 0xee,
};

bool isFrame(int marker)
{
    return marker >= FirstFrame && marker <= LastFrame && marker != HuffmanTables &&
           marker != FrameExtension && marker != ArithmeticTables;
}

class JpegReader
{
public:
    /// `last` are the last ones of the file that `bytes` begins with.
    JpegReader(QByteArrayView bytes, QByteArrayView last)
        : bytes_(bytes)
        , last_(last)
    {
    }

    JpegHeader read()
    {
        header_.state = readSegments();
        header_.isEmbeddable = isPlain_ && hasPlainColors();
        header_.isInverted = header_.components == 4 && hasAdobeMarker_;
        header_.iccProfile = profile();
        if (hasExif_ && header_.resolution == ExifData::unknownResolution)
            header_.resolution.reset();
        return header_;
    }

private:
    using State = JpegHeader::State;

    int byteAt(qsizetype position) const { return static_cast<quint8>(bytes_[position]); }
    int wordAt(qsizetype position) const { return byteAt(position) << 8 | byteAt(position + 1); }

    State readSegments()
    {
        while (const int marker = nextMarker()) {
            if (marker == Temporary || (marker >= FirstRestart && marker <= StartOfImage))
                continue;
            if (marker == EndOfImage)
                return State::Broken;
            if (position_ + 2 > bytes_.size())
                return State::Truncated;
            const int length = wordAt(position_);
            if (length < 2)
                return State::Broken;
            if (position_ + length > bytes_.size())
                return State::Truncated;
            const QByteArrayView content = bytes_.sliced(position_ + 2, length - 2);
            position_ += length;
            if (marker == StartOfScan)
                return header_.size.isEmpty() ? State::Broken : findEnd();
            if (isFrame(marker) && !readFrame(marker, content))
                return State::Broken;
            readApplicationData(marker, content);
        }
        return State::Truncated;
    }

    /// Moves behind the next marker and returns it; 0 at the end of the bytes.
    int nextMarker()
    {
        while (position_ < bytes_.size()) {
            const int byte = byteAt(position_++);
            if (byte == 0xff && position_ < bytes_.size() && byteAt(position_) != 0 &&
                byteAt(position_) != 0xff)
                return byteAt(position_++);
            isPlain_ = false; // padding between segments: decoders skip it, but not all PDF programs
        }
        return 0;
    }

    bool readFrame(int marker, QByteArrayView content)
    {
        if (content.size() < 6)
            return false;
        const auto at = [content](qsizetype i) {
            return static_cast<quint8>(content[i]);
        };
        header_.size = QSize(at(3) << 8 | at(4), at(1) << 8 | at(2));
        const int components = header_.components = at(5);
        if (header_.size.isEmpty() || components == 0 || content.size() < 6 + 3 * components)
            return false;
        namesRgb_ = components == 3 && at(6) == 'R' && at(9) == 'G' && at(12) == 'B';
        header_.isUsual = at(0) == 8 && (marker <= ProgressiveFrame || marker == ArithmeticFrame ||
                                         marker == ProgressiveArithmeticFrame);
        isPlain_ = isPlain_ && header_.isUsual && marker <= ProgressiveFrame;
        return true;
    }

    void readApplicationData(int marker, QByteArrayView content)
    {
        constexpr QByteArrayView exif("Exif\0\0", 6);
        constexpr QByteArrayView icc("ICC_PROFILE\0", 12);
        if (marker == App0 && content.startsWith("JFIF")) {
            isJfif_ = true;
            readDensity(content);
        } else if (marker == App14 && content.startsWith("Adobe")) {
            hasAdobeMarker_ = true;
        } else if (marker == App1 && !hasExif_ && content.startsWith(exif)) {
            hasExif_ = true;
            const ExifData data = ExifData::fromTiff(content.sliced(exif.size()));
            header_.orientation = data.orientation;
            header_.resolution = data.resolution ? data.resolution : header_.resolution;
            header_.taken = data.taken;
            header_.thumbnail = data.thumbnail;
            if (header_.thumbnail)
                header_.thumbnail->offset += content.data() + exif.size() - bytes_.data();
        } else if (marker == App2 && content.size() > icc.size() + 2 && content.startsWith(icc)) {
            profileParts_.emplace(static_cast<quint8>(content[icc.size()]), content.sliced(icc.size() + 2));
            profileCount_ = static_cast<quint8>(content[icc.size() + 1]);
        }
    }

    void readDensity(QByteArrayView content)
    {
        constexpr double centimetresPerInch = 2.54;
        constexpr qsizetype densitySize = 12;
        if (content.size() < densitySize || header_.resolution)
            return;
        const auto wordOf = [content](qsizetype i) {
            return static_cast<quint8>(content[i]) << 8 | static_cast<quint8>(content[i + 1]);
        };
        const auto unit = static_cast<quint8>(content[7]);
        const double perInch = unit == 2 ? centimetresPerInch : 1;
        if (unit == 1 || unit == 2)
            header_.resolution = plausibleResolution(wordOf(8) * perInch, wordOf(10) * perInch);
    }

    /// The joined parts of the profile; empty when one is missing.
    QByteArray profile() const
    {
        QByteArray whole;
        if (profileParts_.size() != std::size_t(profileCount_) || profileParts_.empty() ||
            profileParts_.begin()->first != 1 || profileParts_.rbegin()->first != profileCount_)
            return whole;
        for (const auto &[number, part] : profileParts_)
            whole += part;
        return whole;
    }

    /// Decoders take components named R, G and B as RGB, but PDF readers convert them from YCbCr.
    bool hasPlainColors() const
    {
        const int components = header_.components;
        return components == 1 || components == 4 ||
               (components == 3 && (!namesRgb_ || isJfif_ || hasAdobeMarker_));
    }

    /// Skips the compressed data from behind the first scan's header to the end of the picture.
    State findEnd()
    {
        if (last_.endsWith("\xff\xd9"))
            return State::Complete;
        while (position_ + 1 < bytes_.size()) {
            const void *found = std::memchr(bytes_.data() + position_, 0xff,
                                            static_cast<std::size_t>(bytes_.size() - position_ - 1));
            if (!found)
                break;
            position_ = static_cast<const char *>(found) - bytes_.data() + 1;
            const int marker = byteAt(position_);
            if (marker == EndOfImage)
                return State::Complete;
            if (marker == 0xff)
                continue;
            ++position_;
            if (marker > Temporary && (marker < FirstRestart || marker > StartOfImage)) {
                if (position_ + 2 > bytes_.size())
                    break;
                position_ += wordAt(position_);
            }
        }
        return State::Truncated;
    }

    QByteArrayView bytes_;
    QByteArrayView last_;
    qsizetype position_ = 0;
    JpegHeader header_;
    std::map<int, QByteArrayView> profileParts_;
    int profileCount_ = 0;
    bool isPlain_ = true;
    bool namesRgb_ = false;
    bool isJfif_ = false;
    bool hasAdobeMarker_ = false;
    bool hasExif_ = false;
};

} // namespace

JpegHeader JpegHeader::read(QByteArrayView bytes)
{
    return JpegReader(bytes, bytes).read();
}

std::optional<JpegHeader> JpegHeader::ofEnds(QByteArrayView first, QByteArrayView last)
{
    JpegHeader header = JpegReader(first, last).read();
    return header.state == State::Truncated ? std::nullopt : std::optional(std::move(header));
}

} // namespace printdialog
