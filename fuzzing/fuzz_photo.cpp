// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

// Pictures: their headers, their placement on a page, and the PDF of the small ones.

#include "ColorProfile.h"
#include "ExifData.h"
#include "Fuzzing.h"
#include "PdfWriter.h"
#include "Photo.h"
#include "PhotoPlacement.h"
#include "TiffDamage.h"

#include <QtCore/QBuffer>

using namespace printdialog;

namespace {

constexpr qint64 mostPixels = 40'000; // larger ones decode slowly and show no more

void place(const Photo &photo)
{
    const PageGeometry page = {{288, 432}, {6, 12, 274, 408}};
    const auto content = photo.content();
    fuzzing::require(static_cast<bool>(content), "what was opened can be read");
    const auto selector = static_cast<unsigned char>(content->back());
    PlacementChoice choice;
    choice.scaling = std::array{Scaling::Fit, Scaling::Fill, Scaling::ActualSize}.at(selector % 3);
    choice.turns = selector / 3 % 4;
    choice.crop = {(selector & 1) / 1.0, (selector >> 4) / 15.0};
    const auto placement =
        PhotoPlacement::place(photo.orientedSize(), photo.printedResolution(), page, choice);
    fuzzing::require(placement.target.isValid(), "a photo takes a part of its page");
    const double cut = placement.cutOff(page);
    fuzzing::require(cut >= 0 && cut <= 1, "the share that is cut off is one");

    const QSize stored = photo.storedSize();
    if (qint64(stored.width()) * stored.height() > mostPixels)
        return;
    if (const auto damage = photo.damage())
        fuzzing::require(!damage->detail.isEmpty(), "damage has a reason");
    QBuffer device;
    device.open(QIODevice::WriteOnly);
    if (PdfWriter::write(photo, page, device, choice))
        fuzzing::require(device.data().startsWith("%PDF-") && device.data().trimmed().endsWith("%%EOF"),
                         "a PDF that was written is whole");
    const QImage preview = photo.preview({64, 48});
    fuzzing::require(preview.width() <= 64 && preview.height() <= 48, "a preview stays within its bound");
    const QImage thumbnail = photo.thumbnail({32, 24});
    fuzzing::require(thumbnail.width() <= 32 && thumbnail.height() <= 24, "so does a thumbnail");
    const QImage part = photo.part({0.25, 0.5, 0.5, 0.25}, {16 + selector, 48}).image;
    fuzzing::require(part.width() <= 16 + selector && part.height() <= 48, "a part is not larger than all");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes = fuzzing::input(data, size);
    const ExifData exif = ExifData::fromTiff(bytes);
    ColorProfile::fromIcc(exif.iccProfile);
    tiffDamage(bytes); // the picture itself needs a plug-in
    if (exif.resolution)
        fuzzing::require(*exif.resolution > 0, "a resolution is a positive number");
    const auto photo = Photo::open(fuzzing::write(fuzzing::folder() + QLatin1String("/photo"), bytes));
    if (!photo) {
        fuzzing::require(!photo.failure().text.isEmpty(), "a refusal says why");
        return 0;
    }
    fuzzing::require(!photo->storedSize().isEmpty(), "a photo has pixels");
    place(*photo);
    return 0;
}
