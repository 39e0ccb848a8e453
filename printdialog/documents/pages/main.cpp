// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

//
// corvel-pdf-pages: reads the structure of PDFs and writes it with libqpdf, in a process without rights, so
// that a hostile PDF ends this process at most. See PagesMessages.h for what it is asked. Exit status: 0, it
// has answered; 2, no sandbox is available; 3, it was not asked properly. Run by runPages().

#include "PagesJobs.h"
#include "Sandbox.h"

#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <limits>
#include <optional>
#include <system_error>

using namespace printdialog;

namespace {

/// Writes in large parts to a descriptor. Throws when that fails.
class DescriptorPipeline final : public Pipeline
{
public:
    explicit DescriptorPipeline(int descriptor)
        : Pipeline("output", nullptr)
        , descriptor_(descriptor)
    {
    }

    void write(const unsigned char *data, std::size_t size) override
    {
        constexpr std::size_t part = 256 << 10;
        buffer_.append(reinterpret_cast<const char *>(data), size);
        if (buffer_.size() >= part)
            flush();
    }
    void finish() override { flush(); }

private:
    void flush()
    {
        for (std::size_t done = 0; done < buffer_.size();) {
            const ssize_t count = ::write(descriptor_, buffer_.data() + done, buffer_.size() - done);
            if (count < 0)
                throw std::bad_alloc(); // the memory behind a memfd is used up
            done += static_cast<std::size_t>(count);
        }
        buffer_.clear();
    }

    int descriptor_;
    std::string buffer_;
};

std::optional<DocumentBytes> map(int descriptor)
{
    struct stat status = {};
    if (::fstat(descriptor, &status) != 0)
        return std::nullopt;
    const auto size = static_cast<std::size_t>(status.st_size);
    if (size == 0)
        return DocumentBytes();
    void *content = ::mmap(nullptr, size, PROT_READ, MAP_PRIVATE, descriptor, 0);
    if (content == MAP_FAILED)
        return std::nullopt;
    return DocumentBytes(static_cast<const unsigned char *>(content), size);
}

/// Of the process: what is read is mapped, and libqpdf holds a stream twice while it writes it.
SandboxRights rightsFor(std::uint64_t read)
{
    constexpr std::uint64_t memory = std::uint64_t(512) << 20;
    constexpr std::uint64_t largestOutput = (std::uint64_t(2) << 30) - 1; // what a byte array holds
    constexpr unsigned processorTime = 10;
    constexpr std::uint64_t perSecond = std::uint64_t(16) << 20; // packing what is not takes longest
    return {.memory = memory + 3 * read,
            .processorTime = processorTime + static_cast<unsigned>(read / perSecond),
            .writable = {PagesDescriptors::answer, PagesDescriptors::output},
            .largestOutput = largestOutput};
}

} // namespace

int main()
{
    constexpr int noSandbox = 2;
    constexpr int notAsked = 3;
    const auto asked = map(PagesDescriptors::request);
    std::vector<DocumentBytes> documents;
    std::uint64_t read = 0;
    struct stat status = {};
    for (int descriptor = PagesDescriptors::firstDocument; ::fstat(descriptor, &status) == 0; ++descriptor) {
        const auto document = map(descriptor);
        if (!document)
            _exit(notAsked);
        read += document->size();
        documents.push_back(*document);
    }
    if (!enterSandbox(rightsFor(read)))
        _exit(noSandbox);
    const auto request =
        asked ? pagesRequestOf({reinterpret_cast<const char *>(asked->data()), asked->size()}) : std::nullopt;
    if (!request)
        _exit(notAsked);
    DescriptorPipeline output(PagesDescriptors::output);
    const std::string answer = toBytes(answerTo(*request, documents, output));
    const bool isWritten = ::write(PagesDescriptors::answer, answer.data(), answer.size()) ==
                           static_cast<ssize_t>(answer.size());
    _exit(isWritten ? 0 : notAsked); // skips exit handlers, which the sandbox would not allow to run
}
