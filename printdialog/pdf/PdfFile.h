// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QByteArrayView>
#include <QtCore/QIODevice>
#include <QtCore/QString>

#include <vector>

namespace printdialog {

/// The objects of a PDF file (ISO 32000-1), written one after the other to a device that need not be able to
/// go back. Nothing of a stream is kept. After the device has refused something nothing more is written.
class PdfFile
{
public:
    /// The device is borrowed and open for writing.
    explicit PdfFile(QIODevice &device);

    /// The number of an object that is to be written later.
    int reserve();
    /// An object's content, without its frame.
    void writeObject(int number, const QByteArray &content);
    /// A stream object: its dictionary's entries but for the length, then its data in parts.
    void beginStream(int number, const QByteArray &entries);
    void writeData(QByteArrayView data);
    void endStream();
    /// The table of the objects, all of which have been written. False when the device has refused anything.
    bool finish(int catalog, int information);

    bool hasFailed() const { return hasFailed_; }

    /// How an object refers to another.
    static QByteArray reference(int number);
    static QByteArray number(double value);
    /// Any text.
    static QByteArray string(const QString &text);

private:
    void write(QByteArrayView bytes);
    void beginObject(int number);

    QIODevice &device_;
    qint64 position_ = 0;
    std::vector<qint64> offsets_; // of object 1 and those behind it
    qint64 dataBegin_ = 0;
    int lengthNumber_ = 0;
    bool hasFailed_ = false;
};

} // namespace printdialog
