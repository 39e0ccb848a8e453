// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PageRendering.h"

#include "DocumentHelpers.h"
#include "DocumentTexts.h"
#include "HelperRun.h"
#include "ViewMessages.h"

#include <QtCore/QFile>

#include <sys/mman.h>

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstring>

using namespace std::chrono_literals;
using pdekit::FileDescriptor;

namespace printdialog {

namespace {

constexpr auto patience = 5s;

/// The pixels of the part. Where it is too long, or the whole is, both are smaller.
ViewRequest requestFor(int page, const QSize &whole, const QRectF &part)
{
    const auto number = [](double value) {
        return static_cast<std::uint32_t>(std::lround(value));
    };
    const QRectF inside = part.intersected(QRectF(0, 0, 1, 1));
    QSizeF size(qMax(1, whole.width()), qMax(1, whole.height()));
    const double longest = std::max({size.width() * inside.width(), size.height() * inside.height(),
                                     size.width() * longestRenderedSide / ViewRequest::longestWhole,
                                     size.height() * longestRenderedSide / ViewRequest::longestWhole});
    if (longest > longestRenderedSide)
        size *= longestRenderedSide / longest;
    ViewRequest request = {};
    request.page = static_cast<std::uint32_t>(page);
    request.wholeWidth = qMax(1u, number(size.width()));
    request.wholeHeight = qMax(1u, number(size.height()));
    request.left = qMin(number(inside.left() * size.width()), request.wholeWidth - 1);
    request.top = qMin(number(inside.top() * size.height()), request.wholeHeight - 1);
    const auto length = [](std::uint32_t end, std::uint32_t begin) {
        return std::clamp<std::uint32_t>(end > begin ? end - begin : 1, 1, longestRenderedSide);
    };
    request.width = length(qMin(number(inside.right() * size.width()), request.wholeWidth), request.left);
    request.height = length(qMin(number(inside.bottom() * size.height()), request.wholeHeight), request.top);
    return request;
}

/// The memory behind an image.
struct Pixels
{
    void *bytes;
    std::size_t size;
};

QImage imageOf(const FileDescriptor &answer, const ViewRequest &request, std::size_t size)
{
    void *bytes = ::mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE, answer.number(), 0);
    if (bytes == MAP_FAILED)
        return {};
    constexpr int pixel = 4; // bytes
    const int width = static_cast<int>(request.width);
    return QImage(
        static_cast<uchar *>(bytes) + sizeof(ViewAnswer), width, static_cast<int>(request.height),
        qsizetype(pixel) * width, QImage::Format_RGB32,
        [](void *memory) {
            const std::unique_ptr<Pixels> pixels(static_cast<Pixels *>(memory));
            ::munmap(pixels->bytes, pixels->size);
        },
        new Pixels{bytes, size});
}

} // namespace

Result<QImage, DocumentFault> renderPage(const Document &document, int page, const QSize &whole,
                                         const QRectF &part, const std::atomic<bool> *isGivenUp)
{
    const QString program = documentHelper("corvel-pdf-view");
    const ViewRequest request = requestFor(page, whole, part);
    const FileDescriptor question =
        memoryWith({reinterpret_cast<const char *>(&request), qsizetype(sizeof request)});
    const std::size_t size = sizeof(ViewAnswer) + std::size_t(4) * request.width * request.height;
    auto content = document.content();
    for (bool isLast = false; content; isLast = true) {
        const FileDescriptor answer = memoryToFill(static_cast<qint64>(size));
        if (!question.isOpen() || !answer.isOpen())
            return DocumentTexts::unavailable(qt_error_string(errno), document.name());
        const int source = *content;
        const HelperEnd end = runHelper(QFile::encodeName(program),
                                        {question.number(), answer.number(), source}, patience, isGivenUp);
        if (auto changed = document.content(); !changed)
            return changed.failure();
        if (const auto fault = faultOf(end))
            return *fault == DocumentFault::Unavailable
                       ? DocumentTexts::unavailable(end, program, document.name())
                       : DocumentTexts::ofPage(*fault, page, document.name());
        ViewAnswer head = {};
        if (::pread(answer.number(), &head, sizeof head, 0) != sizeof head)
            return DocumentTexts::unavailable(qt_error_string(errno), document.name());
        if (head.outcome == ViewAnswer::Done) {
            QImage image = imageOf(answer, request, size);
            if (!image.isNull())
                return image;
        }
        if (head.outcome != ViewAnswer::Refused || isLast)
            return DocumentTexts::ofPage(head.outcome == ViewAnswer::Refused ? DocumentFault::Broken
                                                                             : DocumentFault::TooCostly,
                                         page, document.name());
        content = document.rewrittenContent();

        if (content && *content == source)
            return DocumentTexts::ofPage(DocumentFault::Broken, page, document.name());
    }
    return content.failure();
}

} // namespace printdialog
