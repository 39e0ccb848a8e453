// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QByteArrayView>

#include <zlib.h>

#include <cstddef>
#include <functional>
#include <vector>

namespace printdialog {

/// Compresses the rows of a picture without loss, like PNG: each row with the filter that gives the smallest
/// sum, then all of them as one zlib stream.
class DeflatedRows
{
public:
    using Sink = std::function<void(QByteArrayView)>;

    /// Sizes are in bytes. The sink receives the compressed bytes as they are produced.
    DeflatedRows(std::size_t rowSize, std::size_t pixelSize, Sink sink);
    ~DeflatedRows();
    DeflatedRows(const DeflatedRows &) = delete;
    DeflatedRows &operator=(const DeflatedRows &) = delete;

    void addRow(const unsigned char *row);
    void finish();

private:
    void compress(std::vector<Bytef> &bytes, int flush);

    std::size_t rowSize_;
    std::size_t pixelSize_;
    Sink sink_;
    z_stream stream_ = {};
    // Each filtered row begins with its filter's number; the previous row begins with a pixel of zeros.
    std::vector<Bytef> previous_;
    std::vector<Bytef> current_;
    std::vector<Bytef> best_;
    std::vector<Bytef> candidate_;
    std::vector<Bytef> output_;
};

} // namespace printdialog
