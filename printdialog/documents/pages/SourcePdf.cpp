// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "SourcePdf.h"

#include <qpdf/BufferInputSource.hh>
#include <qpdf/QPDFLogger.hh>
#include <qpdf/QUtil.hh>

#include <algorithm>
#include <cmath>
#include <optional>

namespace printdialog {

namespace {

/// Null when the password is wrong.
std::shared_ptr<QPDF> openWith(DocumentBytes bytes, const std::string &password)
{
    auto pdf = QPDF::create();
    auto logger = QPDFLogger::create();
    logger->setInfo(logger->discard());
    logger->setWarn(logger->discard());
    logger->setError(logger->discard());
    pdf->setLogger(logger);
    pdf->setSuppressWarnings(true);
    // libqpdf reads the buffer only; it belongs to the caller.
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-const-cast)
    auto *buffer = new Buffer(const_cast<unsigned char *>(bytes.data()), bytes.size());
    try {
        pdf->processInputSource(std::make_shared<BufferInputSource>("document", buffer, true),
                                password.c_str());
    } catch (const QPDFExc &error) {
        if (error.getErrorCode() != qpdf_e_password)
            throw;
        return nullptr;
    }
    return pdf;
}

/// Nothing for one that is empty or not a box.
std::optional<QPDFObjectHandle::Rectangle> boxOf(QPDFObjectHandle object)
{
    if (!object.isRectangle())
        return std::nullopt;
    const auto found = object.getArrayAsRectangle();
    const QPDFObjectHandle::Rectangle box = {std::min(found.llx, found.urx), std::min(found.lly, found.ury),
                                             std::max(found.llx, found.urx), std::max(found.lly, found.ury)};
    const bool isArea = box.llx < box.urx && box.lly < box.ury;
    const bool isFinite = std::isfinite(box.urx - box.llx) && std::isfinite(box.ury - box.lly);
    return isArea && isFinite ? std::optional(box) : std::nullopt;
}

} // namespace

std::shared_ptr<QPDF> openPdf(DocumentBytes bytes, const std::string &password)
{
    if (auto pdf = openWith(bytes, password))
        return pdf;
    if (password.empty())
        throw PasswordError{true};
    for (const std::string &encoded : QUtil::possible_repaired_encodings(password)) {
        if (auto pdf = openWith(bytes, encoded))
            return pdf;
    }
    if (auto pdf = openWith(bytes, {})) // none is needed
        return pdf;
    throw PasswordError{false};
}

SeenBox SeenBox::of(QPDFPageObjectHelper page)
{
    const QPDFObjectHandle::Rectangle letter = {0, 0, 612, 792}; // what viewers show without a media box
    SeenBox seen = {boxOf(page.getMediaBox()).value_or(letter), 0, 1};
    if (const auto crop = boxOf(page.getAttribute("/CropBox", false))) {
        const QPDFObjectHandle::Rectangle inside = {
            std::max(crop->llx, seen.box.llx), std::max(crop->lly, seen.box.lly),
            std::min(crop->urx, seen.box.urx), std::min(crop->ury, seen.box.ury)};
        if (inside.llx < inside.urx && inside.lly < inside.ury)
            seen.box = inside;
    }
    if (QPDFObjectHandle rotation = page.getAttribute("/Rotate", false); rotation.isInteger())
        seen.quarterTurns = static_cast<int>((rotation.getIntValue() / 90 % 4 + 4) % 4);
    if (QPDFObjectHandle unit = page.getObjectHandle().getKey("/UserUnit"); unit.isNumber()) {
        const double value = unit.getNumericValue();
        seen.unit = std::isfinite(value) && value > 0 ? value : 1;
    }
    return seen;
}

double SeenBox::width() const
{
    return (quarterTurns % 2 == 0 ? box.urx - box.llx : box.ury - box.lly) * unit;
}

double SeenBox::height() const
{
    return (quarterTurns % 2 == 0 ? box.ury - box.lly : box.urx - box.llx) * unit;
}

} // namespace printdialog
