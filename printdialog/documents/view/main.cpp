// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0
//
// corvel-pdf-view: renders a part of a page of a PDF with QtPdf, in a process without rights, so that a
// hostile PDF ends this process at most. See ViewMessages.h for what it is asked. Exit status: 0, it has
// answered; 2, no sandbox is available; 3, it was not asked properly. Run by renderPage().

#include "Sandbox.h"
#include "ViewMessages.h"

#include <QtCore/QBuffer>
#include <QtPdf/QPdfDocument>

#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <climits>
#include <new>

using namespace printdialog;

namespace {

/// Memory of a descriptor.
struct Mapping
{
    void *bytes = nullptr; ///< Null when there is none.
    std::size_t size = 0;
};

Mapping map(int descriptor, int protection, int flags)
{
    struct stat status = {};
    if (::fstat(descriptor, &status) != 0 || status.st_size <= 0)
        return {};
    const auto size = static_cast<std::size_t>(status.st_size);
    void *bytes = ::mmap(nullptr, size, protection, flags, descriptor, 0);
    return bytes == MAP_FAILED ? Mapping() : Mapping{bytes, size};
}

bool isPossible(const ViewRequest &request, std::size_t answerSize)
{
    const std::size_t pixels = std::size_t(4) * request.width * request.height;
    return request.wholeWidth <= ViewRequest::longestWhole &&
           request.wholeHeight <= ViewRequest::longestWhole && request.width >= 1 &&
           request.width <= ViewRequest::longestSide && request.height >= 1 &&
           request.height <= ViewRequest::longestSide && request.left <= request.wholeWidth - request.width &&
           request.width <= request.wholeWidth && request.top <= request.wholeHeight - request.height &&
           request.height <= request.wholeHeight && request.page < INT_MAX &&
           answerSize == sizeof(ViewAnswer) + pixels;
}

/// Lays the picture on white paper. QImage and QPainter do that on several threads, which the sandbox
/// refuses.
void layOnWhite(const QImage &picture, quint32 *pixels)
{
    for (int y = 0; y < picture.height(); ++y) {
        const auto *row = reinterpret_cast<const QRgb *>(picture.constScanLine(y));
        for (int x = 0; x < picture.width(); ++x) {
            const quint32 alpha = row[x] >> 24;
            const auto laid = [alpha](int color) {
                return (static_cast<quint32>(color) * alpha + 255 * (255 - alpha) + 127) / 255;
            };
            *pixels++ = alpha == 255 ? row[x]
                                     : 0xff000000u | laid(qRed(row[x])) << 16 | laid(qGreen(row[x])) << 8 |
                                           laid(qBlue(row[x]));
        }
    }
}

ViewAnswer::Outcome render(const Mapping &document, const ViewRequest &request, quint32 *pixels)
{
    QByteArray bytes = QByteArray::fromRawData(static_cast<const char *>(document.bytes),
                                               static_cast<qsizetype>(document.size));
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QPdfDocument pdf;
    pdf.load(&buffer);
    const int page = static_cast<int>(request.page);
    if (pdf.status() != QPdfDocument::Status::Ready || page >= pdf.pageCount())
        return ViewAnswer::Refused;
    const auto number = [](quint32 value) {
        return static_cast<int>(value);
    };
    QPdfDocumentRenderOptions options;
    options.setRenderFlags(QPdfDocumentRenderOptions::RenderFlag::Annotations);
    const bool isWhole = request.width == request.wholeWidth && request.height == request.wholeHeight;
    if (!isWhole) {
        options.setScaledSize({number(request.wholeWidth), number(request.wholeHeight)});
        // QPdfDocument::render() takes the distance between its first and last pixel for its size.
        options.setScaledClipRect({number(request.left), number(request.top), number(request.width) + 1,
                                   number(request.height) + 1});
    }
    const QImage picture = pdf.render(page, {number(request.width), number(request.height)}, options);
    if (picture.format() != QImage::Format_ARGB32 || picture.width() != number(request.width) ||
        picture.height() != number(request.height))
        return ViewAnswer::Refused;
    layOnWhite(picture, pixels);
    return ViewAnswer::Done;
}

} // namespace

int main()
{
    constexpr int noSandbox = 2;
    constexpr int notAsked = 3;
    constexpr std::uint64_t memory = std::uint64_t(512) << 20;
    constexpr unsigned processorTime = 3;
    ViewRequest request = {};
    const bool isRead = ::read(ViewDescriptors::request, &request, sizeof request) == sizeof request;
    const Mapping answer = map(ViewDescriptors::answer, PROT_READ | PROT_WRITE, MAP_SHARED);
    const Mapping document = map(ViewDescriptors::document, PROT_READ, MAP_PRIVATE);
    if (!isRead || !answer.bytes || !document.bytes || !isPossible(request, answer.size))
        _exit(notAsked);
    // The picture is in memory twice.
    if (!enterSandbox({.memory = memory + document.size + 2 * answer.size, .processorTime = processorTime}))
        _exit(noSandbox);
    auto *head = static_cast<ViewAnswer *>(answer.bytes);
    try {
        head->outcome = render(document, request, reinterpret_cast<quint32 *>(head + 1));
    } catch (const std::bad_alloc &) {
        head->outcome = ViewAnswer::TooCostly;
    }
    _exit(0); // skips exit handlers, which the sandbox would not allow to run
}
