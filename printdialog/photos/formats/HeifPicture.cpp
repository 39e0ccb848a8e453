// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "HeifPicture.h"

#include "ExifData.h"
#include "HeifLibrary.h"

#include <QtCore/QtEndian>
#include <QtGui/QColorSpace>

#include <cstring>
#include <memory>

namespace printdialog {
namespace {

Failure<std::monostate> failure(const QString &detail)
{
    return {{}, {}, detail};
}

Failure<std::monostate> failure(const heif_error &error)
{
    return failure(QString::fromUtf8(error.message));
}

/// The primary picture of a file opened by libheif.
class OpenedPicture
{
public:
    /// Borrows both.
    OpenedPicture(const HeifLibrary &heif, const QByteArray &content)
        : heif_(heif)
        , context_(heif.contextAlloc(), heif.contextFree)
        , handle_(nullptr, heif.handleRelease)
    {
        constexpr int longestSide = 32767; // pixels
        heif.setMaximumImageSize(context_.get(), longestSide);
        error_ = heif.readFromMemory(context_.get(), content.constData(),
                                     static_cast<std::size_t>(content.size()), nullptr);
        heif_image_handle *handle = nullptr;
        if (error_.code == heif_error_Ok)
            error_ = heif.primaryImageHandle(context_.get(), &handle);
        handle_.reset(handle);
    }

    bool isOpen() const { return error_.code == heif_error_Ok && handle_; }
    const heif_error &error() const { return error_; }

    QSize size() const { return {heif_.handleWidth(handle_.get()), heif_.handleHeight(handle_.get())}; }

    ColorProfile profile() const
    {
        const heif_color_profile_type type = heif_.profileType(handle_.get());
        if (type != heif_color_profile_type_prof && type != heif_color_profile_type_rICC)
            return primariesProfile();
        constexpr std::size_t largest = std::size_t(16) << 20;
        const std::size_t size = heif_.rawProfileSize(handle_.get());
        QByteArray icc(static_cast<qsizetype>(qMin(size, largest)), Qt::Uninitialized);
        if (size > largest || heif_.rawProfile(handle_.get(), icc.data()).code != heif_error_Ok)
            return {};
        return ColorProfile::fromIcc(icc);
    }

    /// The Exif block begins with the position of its TIFF structure behind that number.
    ExifData exif() const
    {
        constexpr std::size_t largest = std::size_t(1) << 20;
        constexpr qint64 numberSize = sizeof(quint32);
        heif_item_id id = 0;
        if (heif_.metadataIds(handle_.get(), "Exif", &id, 1) != 1)
            return {};
        const std::size_t size = heif_.metadataSize(handle_.get(), id);
        QByteArray block(static_cast<qsizetype>(qMin(size, largest)), Qt::Uninitialized);
        if (size > largest || qint64(size) < numberSize ||
            heif_.metadata(handle_.get(), id, block.data()).code != heif_error_Ok)
            return {};
        const qint64 begin = numberSize + qFromBigEndian<quint32>(block.constData());
        return begin < block.size() ? ExifData::fromTiff(QByteArrayView(block).sliced(begin)) : ExifData();
    }

    Result<QImage, std::monostate> decoded() const
    {
        const std::unique_ptr<heif_decoding_options, decltype(heif_.optionsFree)> options(
            heif_.optionsAlloc(), heif_.optionsFree);
        options->convert_hdr_to_8bit = 1;
        const bool hasAlpha = heif_.handleHasAlpha(handle_.get()) != 0;
        heif_image *pixels = nullptr;
        const heif_error error = heif_.decodeImage(
            handle_.get(), &pixels, heif_colorspace_RGB,
            hasAlpha ? heif_chroma_interleaved_RGBA : heif_chroma_interleaved_RGB, options.get());
        const std::unique_ptr<heif_image, decltype(heif_.imageRelease)> owner(pixels, heif_.imageRelease);
        if (error.code != heif_error_Ok)
            return failure(error);
        int stride = 0;
        const uint8_t *plane = heif_.imagePlane(pixels, heif_channel_interleaved, &stride);
        QImage image(heif_.imageWidth(pixels, heif_channel_interleaved),
                     heif_.imageHeight(pixels, heif_channel_interleaved),
                     hasAlpha ? QImage::Format_RGBA8888 : QImage::Format_RGB888);
        if (!plane || image.isNull())
            return failure(QStringLiteral("no memory for the pixels"));
        const auto rowSize = static_cast<std::size_t>(image.width()) * (hasAlpha ? 4 : 3);
        for (int y = 0; y < image.height(); ++y)
            std::memcpy(image.scanLine(y), plane + std::ptrdiff_t(stride) * y, rowSize);
        return image;
    }

private:
    /// Pictures are meant for screens, so the transfer curve is assumed to be that of sRGB.
    ColorProfile primariesProfile() const
    {
        heif_color_profile_nclx *nclx = nullptr;
        if (heif_.nclxProfile(handle_.get(), &nclx).code != heif_error_Ok || !nclx)
            return {};
        const std::unique_ptr<heif_color_profile_nclx, decltype(heif_.nclxProfileFree)> owner(
            nclx, heif_.nclxProfileFree);
        switch (nclx->color_primaries) {
        case heif_color_primaries_SMPTE_EG_432_1:
            return ColorProfile::fromIcc(
                QColorSpace(QColorSpace::Primaries::DciP3D65, QColorSpace::TransferFunction::SRgb)
                    .iccProfile());
        case heif_color_primaries_ITU_R_BT_2020_2_and_2100_0:
            return ColorProfile::fromIcc(QColorSpace(QPointF(0.3127, 0.329), QPointF(0.708, 0.292),
                                                     QPointF(0.17, 0.797), QPointF(0.131, 0.046),
                                                     QColorSpace::TransferFunction::SRgb)
                                             .iccProfile());
        default:
            return {};
        }
    }

    const HeifLibrary &heif_;
    std::unique_ptr<heif_context, decltype(HeifLibrary::contextFree)> context_;
    std::unique_ptr<heif_image_handle, decltype(HeifLibrary::handleRelease)> handle_;
    heif_error error_ = {};
};

} // namespace

Result<HeifPicture, std::monostate> HeifPicture::read(const QByteArray &content)
{
    const HeifLibrary *heif = HeifLibrary::instance();
    if (!heif)
        return failure(QStringLiteral("libheif is not installed"));
    const OpenedPicture picture(*heif, content);
    if (!picture.isOpen())
        return failure(picture.error());
    if (picture.size().isEmpty())
        return failure(QStringLiteral("the picture has no size"));
    return HeifPicture{picture.size(), picture.profile(), picture.exif().taken};
}

Result<QImage, std::monostate> HeifPicture::decode(const QByteArray &content)
{
    const HeifLibrary *heif = HeifLibrary::instance();
    if (!heif)
        return failure(QStringLiteral("libheif is not installed"));
    const OpenedPicture picture(*heif, content);
    if (!picture.isOpen())
        return failure(picture.error());
    return picture.decoded();
}

} // namespace printdialog
