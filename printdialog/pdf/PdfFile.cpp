// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PdfFile.h"

namespace printdialog {

PdfFile::PdfFile(QIODevice &device)
    : device_(device)
{
    // The second line marks the file as binary for transfer programs.
    write("%PDF-1.7\n%\xe2\xe3\xcf\xd3\n");
}

int PdfFile::reserve()
{
    offsets_.push_back(0);
    return static_cast<int>(offsets_.size());
}

void PdfFile::writeObject(int number, const QByteArray &content)
{
    beginObject(number);
    write(content + "\nendobj\n");
}

void PdfFile::beginStream(int number, const QByteArray &entries)
{
    lengthNumber_ = reserve();
    beginObject(number);
    write("<< " + entries + " /Length " + reference(lengthNumber_) + " >>\nstream\n");
    dataBegin_ = position_;
}

void PdfFile::writeData(QByteArrayView data)
{
    write(data);
}

void PdfFile::endStream()
{
    const qint64 length = position_ - dataBegin_;
    write("\nendstream\nendobj\n");
    writeObject(lengthNumber_, QByteArray::number(length));
}

bool PdfFile::finish(int catalog, int information)
{
    const qint64 begin = position_;
    const QByteArray count = QByteArray::number(qsizetype(offsets_.size()) + 1);
    QByteArray table = "xref\n0 " + count + "\n0000000000 65535 f \n";
    for (const qint64 offset : offsets_)
        table += QByteArray::number(offset).rightJustified(10, '0') +
                 (offset > 0 ? " 00000 n \n" : " 65535 f \n"); // reserved and not written
    table += "trailer\n<< /Size " + count + " /Root " + reference(catalog) + " /Info " +
             reference(information) + " >>\nstartxref\n" + QByteArray::number(begin) + "\n%%EOF\n";
    write(table);
    return !hasFailed_;
}

QByteArray PdfFile::reference(int number)
{
    return QByteArray::number(number) + " 0 R";
}

QByteArray PdfFile::number(double value)
{
    QByteArray digits = QByteArray::number(value, 'f', 5);
    while (digits.endsWith('0'))
        digits.chop(1);
    if (digits.endsWith('.'))
        digits.chop(1);
    return digits == "-0" ? QByteArray("0") : digits;
}

QByteArray PdfFile::string(const QString &text)
{
    QByteArray hex = "<feff";
    for (const QChar c : text)
        hex += QByteArray::number(c.unicode(), 16).rightJustified(4, '0');
    return hex + '>';
}

void PdfFile::write(QByteArrayView bytes)
{
    hasFailed_ = hasFailed_ || device_.write(bytes.data(), bytes.size()) != bytes.size();
    position_ += bytes.size();
}

void PdfFile::beginObject(int number)
{
    offsets_[static_cast<std::size_t>(number - 1)] = position_;
    write(QByteArray::number(number) + " 0 obj\n");
}

} // namespace printdialog
