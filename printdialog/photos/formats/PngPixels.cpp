// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PngPixels.h"

#include <array>
#include <csetjmp>
#include <cstddef>
#include <cstring>
#include <new>
#include <vector>

#include <png.h>

namespace printdialog {
namespace {

constexpr int opaque = 255;

unsigned char onWhite(int number, int alpha)
{
    return static_cast<unsigned char>((number * alpha + opaque * (opaque - alpha) + opaque / 2) / opaque);
}

} // namespace

/// libpng's reader. Its errors leave it with longjmp(), since exceptions must not pass through C functions.
/// Each function here that calls it begins with setjmp() and has no objects that need destruction.
class PngPixels::Decoder
{
public:
    explicit Decoder(QByteArrayView png)
        : unread_(png)
        , png_(png_create_read_struct(PNG_LIBPNG_VER_STRING, this, leaveWithError,
                                      [](png_structp, png_const_charp) {}))
        , info_(png_ ? png_create_info_struct(png_) : nullptr)
    {
        isShortOfMemory_ = !info_;
        hasFailed_ = !info_ || !begin();
        try {
            if (!hasFailed_)
                makeRoom();
        } catch (const std::bad_alloc &) {
            hasFailed_ = isShortOfMemory_ = true;
        }
    }
    ~Decoder() { png_destroy_read_struct(&png_, &info_, nullptr); }
    Decoder(const Decoder &) = delete;
    Decoder &operator=(const Decoder &) = delete;

    const unsigned char *nextRow()
    {
        if (hasFailed_ || y_ == height_)
            return nullptr;
        if (isInterlaced_ && y_ == 0)
            hasFailed_ = !readWhole();
        else if (!isInterlaced_)
            hasFailed_ = !readRow();
        if (hasFailed_)
            return nullptr;
        const unsigned char *row = stored_.data() + (isInterlaced_ ? rowSize_ * y_ : 0);
        ++y_;
        return channels_ % 2 == 0 ? laidOnPaper(row) : row;
    }

    QString error() const { return QString::fromLatin1(error_.data()); }
    bool isShortOfMemory() const { return isShortOfMemory_; }

private:
    [[noreturn]] static void leaveWithError(png_structp png, png_const_charp text)
    {
        auto *self = static_cast<Decoder *>(png_get_error_ptr(png));
        self->isShortOfMemory_ = std::strcmp(text, "Out of memory") == 0;
        std::strncpy(self->error_.data(), text, self->error_.size() - 1);
        std::longjmp(self->end_, 1);
    }

    static void read(png_structp png, png_bytep bytes, std::size_t size)
    {
        auto *self = static_cast<Decoder *>(png_get_io_ptr(png));
        if (size > static_cast<std::size_t>(self->unread_.size()))
            png_error(png, "the data end");
        std::memcpy(bytes, self->unread_.data(), size);
        self->unread_ = self->unread_.sliced(static_cast<qsizetype>(size));
    }

    bool begin()
    {
        if (setjmp(end_) != 0)
            return false;
        png_set_read_fn(png_, this, read);
        // Other chunks are read elsewhere.
        png_set_keep_unknown_chunks(png_, PNG_HANDLE_CHUNK_NEVER, nullptr, -1);
        png_set_user_limits(png_, PNG_UINT_31_MAX, PNG_UINT_31_MAX);
        png_read_info(png_, info_);
        png_set_expand(png_);
        png_set_scale_16(png_);
        isInterlaced_ = png_set_interlace_handling(png_) > 1;
        png_read_update_info(png_, info_);
        channels_ = png_get_channels(png_, info_);
        rowSize_ = png_get_rowbytes(png_, info_);
        height_ = png_get_image_height(png_, info_);
        width_ = png_get_image_width(png_, info_);
        return true;
    }

    void makeRoom()
    {
        stored_.resize(rowSize_ * (isInterlaced_ ? height_ : 1));
        if (channels_ % 2 == 0)
            opaque_.resize(std::size_t(channels_ - 1) * width_);
        if (!isInterlaced_)
            return;
        rows_.resize(height_);
        for (std::size_t y = 0; y < height_; ++y)
            rows_[y] = stored_.data() + rowSize_ * y;
    }

    bool readRow()
    {
        if (setjmp(end_) != 0)
            return false;
        png_read_row(png_, stored_.data(), nullptr);
        return true;
    }

    bool readWhole()
    {
        if (setjmp(end_) != 0)
            return false;
        png_read_image(png_, rows_.data());
        return true;
    }

    /// Composes a row on white; its last channel is alpha.
    const unsigned char *laidOnPaper(const unsigned char *row)
    {
        const std::size_t colors = channels_ - 1;
        unsigned char *out = opaque_.data();
        for (std::size_t x = 0; x < width_; ++x, row += channels_) {
            for (std::size_t i = 0; i < colors; ++i)
                *out++ = onWhite(row[i], row[colors]);
        }
        return opaque_.data();
    }

    QByteArrayView unread_;
    png_structp png_;
    png_infop info_;
    std::jmp_buf end_ = {};
    std::array<char, 128> error_ = {};
    std::vector<unsigned char> stored_; ///< One row, or all of them.
    std::vector<unsigned char> opaque_; ///< One row.
    std::vector<png_bytep> rows_;
    std::size_t rowSize_ = 0;
    std::size_t width_ = 0;
    std::size_t height_ = 0;
    std::size_t y_ = 0;
    std::size_t channels_ = 0;
    bool isInterlaced_ = false;
    bool isShortOfMemory_ = false;
    bool hasFailed_ = false;
};

PngPixels::PngPixels(QByteArrayView png)
    : decoder_(std::make_unique<Decoder>(png))
{
}

PngPixels::~PngPixels() = default;

const unsigned char *PngPixels::nextRow()
{
    return decoder_->nextRow();
}

QString PngPixels::error() const
{
    return decoder_->error();
}

bool PngPixels::isShortOfMemory() const
{
    return decoder_->isShortOfMemory();
}

} // namespace printdialog
