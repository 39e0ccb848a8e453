// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "DocumentComposer.h"

#include "DocumentHelpers.h"
#include "DocumentTexts.h"

#include <limits>

namespace printdialog {

namespace {

/// The documents of the sheets, each once.
struct Sources
{
    std::vector<int> descriptors = {};
    QList<Document> documents = {};
    QStringList names = {};
    qint64 size = 0;

    std::optional<Failure<DocumentFault>> add(const Document &document, std::uint32_t &index)
    {
        const auto content = document.content();
        if (!content)
            return content.failure();
        const auto known = std::ranges::find(descriptors, *content);
        index = static_cast<std::uint32_t>(known - descriptors.begin());
        if (known == descriptors.end()) {
            descriptors.push_back(*content);
            documents += document;
            names += document.name();
            size += document.identity().size;
        }
        return std::nullopt;
    }
};

} // namespace

Result<QByteArray, DocumentFault> composeDocument(const QList<ComposedSheet> &sheets, const QString &title)
{
    PagesRequest request;
    request.job = PagesRequest::Job::Compose;
    request.text = title.left(PagesLimits::longestText / 4).toStdString();
    Sources sources;
    for (const ComposedSheet &sheet : sheets) {
        PlannedSheet planned = {sheet.size.width(), sheet.size.height()};
        for (const ComposedPage &page : sheet.pages) {
            const QTransform &m = page.toSheet;
            PlannedPage placed = {0,
                                  static_cast<std::uint32_t>(page.page),
                                  {m.m11(), m.m12(), m.m21(), m.m22(), m.dx(), m.dy()},
                                  {page.clip.x(), page.clip.y(), page.clip.width(), page.clip.height()}};
            if (const auto failure = sources.add(page.document, placed.document))
                return *failure;
            planned.pages.push_back(placed);
        }
        request.sheets.push_back(std::move(planned));
    }
    if (!pagesRequestOf(toBytes(request))) // such as a sheet without a size
        return DocumentTexts::of(DocumentFault::Broken, sources.names.value(0, title));
    auto result = runPages(request, sources.descriptors, sources.names, sources.size);
    for (const Document &document : std::as_const(sources.documents)) {
        if (const auto content = document.content(); !content)
            return content.failure();
    }
    if (!result)
        return result.failure();
    const auto pdf = bytesOf(result->output, std::numeric_limits<int>::max());
    if (!pdf || pdf->isEmpty())
        return DocumentTexts::of(DocumentFault::TooCostly, sources.names.value(0));
    return *pdf;
}

} // namespace printdialog
