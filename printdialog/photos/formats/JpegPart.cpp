// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "JpegPart.h"

#include <algorithm>
#include <csetjmp>
#include <cstdio> // jpeglib.h needs it
#include <vector>

#include <jpeglib.h>

namespace printdialog {
namespace {

constexpr int cmyk = 4;
/// Pixels beside the part that are decoded too, since the colors of those at its edges depend on them.
constexpr int margin = 16;
/// Rows that are skipped at once: whole rows of blocks of every kind.
constexpr JDIMENSION rowsAtOnce = 256;

/// libjpeg's decoder. Its errors leave it with longjmp(), since exceptions must not pass through C functions;
/// all objects that need destruction are members.
class PartDecoder
{
public:
    /// Borrows it.
    explicit PartDecoder(const std::atomic<bool> *isGivenUp)
        : isGivenUp_(isGivenUp)
    {
        jpeg_.err = jpeg_std_error(&errors_);
        jpeg_.client_data = this;
        errors_.error_exit = [](j_common_ptr common) {
            std::longjmp(static_cast<PartDecoder *>(common->client_data)->end_, 1);
        };
        errors_.output_message = [](j_common_ptr) {
        };
        progress_.progress_monitor = checkProgress;
    }
    ~PartDecoder() { jpeg_destroy_decompress(&jpeg_); }
    PartDecoder(const PartDecoder &) = delete;
    PartDecoder &operator=(const PartDecoder &) = delete;

    /// Reads the header, and prepares the decoder to scale by the largest of its own fast steps, halves.
    bool begin(QByteArrayView bytes, const QSize &size, const QSize &scaled)
    {
        if (setjmp(end_) != 0)
            return false;
        jpeg_create_decompress(&jpeg_);
        jpeg_.progress = &progress_;
        jpeg_mem_src(&jpeg_, reinterpret_cast<const unsigned char *>(bytes.data()),
                     static_cast<unsigned long>(bytes.size()));
        jpeg_read_header(&jpeg_, TRUE);
        const int components = jpeg_.num_components;
        if (size != QSize(static_cast<int>(jpeg_.image_width), static_cast<int>(jpeg_.image_height)) ||
            (components != 1 && components != 3 && components != cmyk))
            return false;
        jpeg_.out_color_space = components == 1 ? JCS_GRAYSCALE : components == 3 ? JCS_RGB : JCS_CMYK;
        const int factor = std::min(size.width() / scaled.width(), size.height() / scaled.height());
        jpeg_.scale_num = 1;
        jpeg_.scale_denom = factor >= 8 ? 8 : factor >= 4 ? 4 : factor >= 2 ? 2 : 1;
        return true;
    }

    /// The size that the decoder scales to; its last pixels reach beyond the picture.
    QSizeF scaledSize() const { return QSizeF(jpeg_.image_width, jpeg_.image_height) / jpeg_.scale_denom; }

    int components() const { return jpeg_.num_components == 1 ? 1 : 3; }

    void makeRow()
    {
        row_.resize(std::size_t(jpeg_.image_width) * static_cast<std::size_t>(jpeg_.num_components));
    }

    bool decode(AreaScaler &scaler)
    {
        if (setjmp(end_) != 0)
            return false;
        jpeg_start_decompress(&jpeg_);
        const QRect needed = scaler.needed();
        auto left = static_cast<JDIMENSION>(std::max(0, needed.left() - margin));
        JDIMENSION width =
            std::min(static_cast<JDIMENSION>(needed.right() + 1 + margin), jpeg_.output_width) - left;
        jpeg_crop_scanline(&jpeg_, &left, &width);
        const auto top = static_cast<JDIMENSION>(needed.top());
        skipTo(top > margin ? top - margin : 0);
        while (jpeg_.output_scanline <= static_cast<JDIMENSION>(needed.bottom())) {
            const JDIMENSION y = jpeg_.output_scanline;
            readRow();
            if (y >= top)
                scaler.addRow(row_.data() +
                              std::size_t(needed.left() - int(left)) * std::size_t(components()));
        }
        return true;
    }

private:
    static void checkProgress(j_common_ptr common)
    {
        constexpr int largestCount = 500; // of scans, each of which costs time for the whole picture
        auto *self = static_cast<PartDecoder *>(common->client_data);
        if (self->jpeg_.input_scan_number > largestCount || (self->isGivenUp_ && *self->isGivenUp_))
            std::longjmp(self->end_, 1);
    }

    void skipTo(JDIMENSION y)
    {
        while (jpeg_.output_scanline < y) {
            checkProgress(reinterpret_cast<j_common_ptr>(&jpeg_));
            if (jpeg_skip_scanlines(&jpeg_, std::min(rowsAtOnce, y - jpeg_.output_scanline)) == 0)
                std::longjmp(end_, 1);
        }
    }

    void readRow()
    {
        JSAMPROW row = row_.data();
        if (jpeg_read_scanlines(&jpeg_, &row, 1) == 0)
            std::longjmp(end_, 1);
        if (jpeg_.num_components != cmyk)
            return;
        // Inverted inks, as programs store them.
        unsigned char *out = row;
        for (JDIMENSION x = 0; x < jpeg_.output_width; ++x, row += cmyk) {
            for (int i = 0; i < 3; ++i)
                *out++ = static_cast<unsigned char>(row[i] * row[3] / 255);
        }
    }

    jpeg_decompress_struct jpeg_ = {};
    jpeg_error_mgr errors_ = {};
    jpeg_progress_mgr progress_ = {};
    std::jmp_buf end_ = {};
    std::vector<unsigned char> row_;
    const std::atomic<bool> *isGivenUp_;
};

} // namespace

QImage decodedJpegPart(QByteArrayView jpeg, const QSize &size, const ScaledPart &wanted,
                       const std::atomic<bool> *isGivenUp)
{
    PartDecoder decoder(isGivenUp);
    if (!decoder.begin(jpeg, size, wanted.whole))
        return {};
    AreaScaler scaler(decoder.scaledSize(), wanted, decoder.components());
    decoder.makeRow();
    return !scaler.image().isNull() && decoder.decode(scaler) ? scaler.image() : QImage();
}

} // namespace printdialog
