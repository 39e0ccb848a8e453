// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Document.h"

#include <QtCore/QByteArray>
#include <QtCore/QStringList>
#include <QtGui/QRgb>

/// In the place of a reason, where there is no failure.
inline constexpr auto fine = printdialog::DocumentFault(-1);

template <class Value>
printdialog::DocumentFault reasonOf(const printdialog::Result<Value, printdialog::DocumentFault> &result)
{
    return result ? fine : result.failure().reason;
}

/// Small PDFs, whose text stands in the tests.
namespace pdf_samples {

/// Joins the objects, of which the first is number 1 and the catalog, to a PDF with a right table.
QByteArray joined(const QByteArrayList &objects, const QByteArray &trailer = {});
/// A stream with its length.
QByteArray stream(const QByteArray &content, const QByteArray &dictionary = {});
/// A page's dictionary and content.
struct Page
{
    QByteArray content;
    QByteArray dictionary = "/MediaBox [0 0 200 100]";
};
/// Pages, with further objects; those are numbered from 10 on. Fewer than four pages.
QByteArray withPages(const QList<Page> &pages, const QByteArrayList &further = {},
                     const QByteArray &catalog = {});
inline constexpr QRgb red = qRgb(255, 0, 0);
inline constexpr QRgb blue = qRgb(0, 0, 255);
/// A red square of 20 points with its lower left corner at (x, y), and a blue one to the right of it.
QByteArray marks(int x = 0, int y = 0);
/// Text on as many pages, in one font.
QByteArray text(int pages);

} // namespace pdf_samples
