// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "JpegDamage.h"

#include <QtCore/QtAlgorithms>

#include <algorithm>
#include <csetjmp>
#include <cstddef>
#include <cstdio> // jpeglib.h needs it
#include <cstdlib>
#include <cstring>
#include <memory>
#include <new>
#include <vector>

#include <jerror.h>
#include <jpeglib.h>

namespace printdialog {
namespace {

/// A coefficient times its quantization step is at most 1024 in a picture of 8 bits, and twice that from
/// encoders that overshoot on purpose.
constexpr unsigned largestCoefficient = 2048;
/// Each scan costs time for the complete picture, and a file may have millions of them. Programs write about
/// 10.
constexpr int mostScans = 500;

/// Replaces libjpeg's store for the coefficients of one component, which keeps all of them. In a sequential
/// picture, the decoder never reads a coefficient again, so a few rows of blocks are enough. In a progressive
/// one, it later needs only which coefficients are not zero: 64 bits per block.
class CoefficientRows
{
public:
    /// `rows` is borrowed: a few rows of `width` blocks.
    CoefficientRows(JBLOCKARRAY rows, JDIMENSION width, JDIMENSION height, bool isProgressive)
        : rows_(rows)
        , width_(width)
        , height_(height)
    {
        if (isProgressive)
            nonZero_.resize(std::size_t(width) * height);
    }

    /// Stores the coefficients that were decoded into the rows.
    void store()
    {
        for (JDIMENSION y = 0; y < count_ && !nonZero_.empty(); ++y) {
            for (JDIMENSION x = 0; x < width_; ++x)
                nonZero_[indexOf(first_ + y, x)] = bitsOf(rows_[y][x]);
        }
    }

    JBLOCKARRAY load(JDIMENSION first, JDIMENSION count)
    {
        first_ = first;
        count_ = first < height_ ? std::min(count, height_ - first) : 0;
        for (JDIMENSION y = 0; y < count; ++y) {
            std::memset(rows_[y], 0, width_ * sizeof(JBLOCK));
            for (JDIMENSION x = 0; y < count_ && x < width_ && !nonZero_.empty(); ++x)
                spread(nonZero_[indexOf(first + y, x)], rows_[y][x]);
        }
        return rows_;
    }

    /// Checks the coefficients in the rows that are not stored yet.
    bool isPlausible(const JQUANT_TBL *steps) const
    {
        if (!steps || !nonZero_.empty())
            return true; // for progressive scans, the values themselves are not kept
        unsigned short largest[DCTSIZE2];
        for (int i = 0; i < DCTSIZE2; ++i)
            largest[i] = static_cast<unsigned short>(
                largestCoefficient / std::max<unsigned>(1, steps->quantval[i]) + 1);
        unsigned excess = 0;
        for (JDIMENSION y = 0; y < count_; ++y) {
            for (JDIMENSION x = 0; x < width_; ++x) {
                const JCOEF *block = rows_[y][x];
                for (int i = 0; i < DCTSIZE2; ++i)
                    excess |= static_cast<unsigned>(std::abs(int(block[i])) > largest[i]);
            }
        }
        return excess == 0;
    }

private:
    std::size_t indexOf(JDIMENSION y, JDIMENSION x) const { return std::size_t(y) * width_ + x; }

    static quint64 bitsOf(const JCOEF *block)
    {
        constexpr int step = sizeof(quint64) / sizeof(JCOEF);
        quint64 bits = 0;
        for (int i = 0; i < DCTSIZE2; i += step) {
            quint64 several = 0; // nearly all are zero
            std::memcpy(&several, block + i, sizeof(several));
            for (int j = i; several != 0 && j < i + step; ++j)
                bits |= quint64(block[j] != 0) << j;
        }
        return bits;
    }

    static void spread(quint64 bits, JCOEF *block)
    {
        constexpr JCOEF anyNumber = 1 << 14; // nonzero; a later scan adds the lower bits
        for (; bits != 0; bits &= bits - 1)
            block[qCountTrailingZeroBits(bits)] = anyNumber;
    }

    JBLOCKARRAY rows_; ///< libjpeg's
    JDIMENSION width_; ///< In blocks, and so is the height.
    JDIMENSION height_;
    JDIMENSION first_ = 0;
    JDIMENSION count_ = 0;
    std::vector<quint64> nonZero_; ///< Empty for a sequential picture.
};

/// libjpeg's decoder and the data of its callbacks. These leave it with longjmp(), since exceptions must not
/// pass through C functions; all objects that need destruction are members.
struct Decoder
{
    Decoder()
    {
        jpeg.err = jpeg_std_error(&errors);
        jpeg.client_data = this;
        errors.error_exit = [](j_common_ptr common) {
            auto *self = static_cast<Decoder *>(common->client_data);
            if (self->errors.msg_code == JERR_OUT_OF_MEMORY)
                self->giveUp("");
            char text[JMSG_LENGTH_MAX] = {};
            self->errors.format_message(common, text);
            self->giveUp(text);
        };
        errors.emit_message = checkMessage;
        errors.output_message = [](j_common_ptr) {
        };
    }
    ~Decoder() { jpeg_destroy_decompress(&jpeg); }
    Decoder(const Decoder &) = delete;
    Decoder &operator=(const Decoder &) = delete;

    /// False: `damage` says what is wrong; it is empty when memory is short.
    bool decode(QByteArrayView bytes)
    {
        if (setjmp(end) != 0)
            return false;
        jpeg_create_decompress(&jpeg);
        jpeg.mem->request_virt_barray = requestRows;
        jpeg.mem->realize_virt_arrays = [](j_common_ptr) {
        };
        jpeg.mem->access_virt_barray = accessRows;
        jpeg_mem_src(&jpeg, reinterpret_cast<const unsigned char *>(bytes.data()),
                     static_cast<unsigned long>(bytes.size()));
        jpeg_read_header(&jpeg, TRUE);
        jpeg_read_coefficients(&jpeg);
        for (std::size_t i = 0; i < components.size(); ++i)
            checkRows(i);
        jpeg_finish_decompress(&jpeg);
        return true;
    }

    QString damage;

private:
    [[noreturn]] void giveUp(const char *text)
    {
        damage = QString::fromLatin1(text);
        std::longjmp(end, 1);
    }

    /// Warnings about headers do not mean damage: programs write versions and scan sequences that libjpeg
    /// does not know, and the profile is read elsewhere.
    static void checkMessage(j_common_ptr common, int level)
    {
        if (level >= 0)
            return;
        switch (common->err->msg_code) {
        case JWRN_ADOBE_XFORM:
        case JWRN_BOGUS_ICC:
        case JWRN_BOGUS_PROGRESSION:
        case JWRN_JFIF_MAJOR:
        case JWRN_NOT_SEQUENTIAL:
            return;
        case JWRN_EXTRANEOUS_DATA:
            if (static_cast<Decoder *>(common->client_data)->isPadding(common->err->msg_parm.i[0]))
                return;
            break;
        default:
            break;
        }
        common->err->error_exit(common);
    }

    /// Whether the last bytes before a marker are only padding for alignment.
    bool isPadding(int size) const
    {
        constexpr int longest = 16;
        for (int i = 1; i <= size && size <= longest; ++i) {
            if (jpeg.src->next_input_byte[-i] != 0)
                return false;
        }
        return size <= longest;
    }

    static jvirt_barray_ptr requestRows(j_common_ptr common, int pool, boolean, JDIMENSION width,
                                        JDIMENSION height, JDIMENSION mostRows)
    {
        auto *self = static_cast<Decoder *>(common->client_data);
        const JBLOCKARRAY blocks = common->mem->alloc_barray(common, pool, width, mostRows);
        try {
            self->components.push_back(std::make_unique<CoefficientRows>(
                blocks, width, height, self->jpeg.progressive_mode != FALSE));
        } catch (const std::bad_alloc &) {
            self->components.clear();
        }
        if (self->components.empty())
            self->giveUp("");
        return reinterpret_cast<jvirt_barray_ptr>(self->components.back().get());
    }

    static JBLOCKARRAY accessRows(j_common_ptr common, jvirt_barray_ptr array, JDIMENSION first,
                                  JDIMENSION count, boolean)
    {
        auto *self = static_cast<Decoder *>(common->client_data);
        auto *rows = reinterpret_cast<CoefficientRows *>(array);
        if (self->jpeg.input_scan_number > mostScans)
            self->giveUp("too many scans");
        for (std::size_t i = 0; i < self->components.size(); ++i) {
            if (self->components[i].get() == rows)
                self->checkRows(i);
        }
        rows->store();
        return rows->load(first, count);
    }

    void checkRows(std::size_t component)
    {
        if (!components[component]->isPlausible(jpeg.comp_info[component].quant_table))
            giveUp("a coefficient is out of range");
    }

    jpeg_decompress_struct jpeg = {};
    jpeg_error_mgr errors = {};
    std::jmp_buf end = {};
    std::vector<std::unique_ptr<CoefficientRows>> components; ///< In the order of jpeg.comp_info.
};

} // namespace

std::optional<QString> jpegDamage(QByteArrayView jpeg)
{
    Decoder decoder;
    if (decoder.decode(jpeg) || decoder.damage.isEmpty())
        return std::nullopt;
    return decoder.damage;
}

} // namespace printdialog
