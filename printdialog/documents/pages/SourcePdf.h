// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Libqpdf.h"

#include <memory>
#include <span>
#include <string>

namespace printdialog {

/// The bytes of a document, which outlive what is made of them.
using DocumentBytes = std::span<const unsigned char>;

/// Whether a password is wanted, and whether that is the wrong one.
struct PasswordError
{
    bool isMissing;
};

/// Opens a PDF and repairs it where it has to be. Throws PasswordError, and what libqpdf throws.
/// @param password in UTF-8; other encodings of it are tried as well, since older PDFs have none that is
/// fixed
std::shared_ptr<QPDF> openPdf(DocumentBytes bytes, const std::string &password = {});

/// What is seen of a page: its crop box inside its media box, turned by its rotation.
struct SeenBox
{
    QPDFObjectHandle::Rectangle box; ///< In units of the page; not empty.
    int quarterTurns;                ///< Clockwise, from 0 to 3.
    double unit;                     ///< In points.

    static SeenBox of(QPDFPageObjectHelper page);

    /// In points, as it is seen; may be too long or too short for a document.
    double width() const;
    double height() const;
};

} // namespace printdialog
