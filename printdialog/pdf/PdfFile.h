// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QByteArrayView>
#include <QtCore/QIODevice>
#include <QtCore/QString>

#include <vector>

namespace printdialog {

/// Writes the objects of a PDF file (ISO 32000-1) one after the other to a device that may be sequential.
/// Streams are not buffered. After a write error, nothing more is written.
class PdfFile
{
public:
    /// Borrows the device, which is open for writing.
    explicit PdfFile(QIODevice &device);

    /// Reserves the number of an object that is written later.
    int reserve();
    /// Writes an object; `content` is without "obj" and "endobj".
    void writeObject(int number, const QByteArray &content);
    /// Begins a stream object with its dictionary's entries except the length. The data follow in parts.
    void beginStream(int number, const QByteArray &entries);
    void writeData(QByteArrayView data);
    void endStream();
    /// Writes the cross-reference table; all objects are written by then. False after a write error.
    bool finish(int catalog, int information);

    bool hasFailed() const { return hasFailed_; }

    /// A reference to an object.
    static QByteArray reference(int number);
    static QByteArray number(double value);
    /// A text string object for any text.
    static QByteArray string(const QString &text);

private:
    void write(QByteArrayView bytes);
    void beginObject(int number);

    QIODevice &device_;
    qint64 position_ = 0;
    std::vector<qint64> offsets_; // of object 1 and the following ones
    qint64 dataBegin_ = 0;
    int lengthNumber_ = 0;
    bool hasFailed_ = false;
};

} // namespace printdialog
