// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PdfSamples.h"

namespace pdf_samples {

QByteArray joined(const QByteArrayList &objects, const QByteArray &trailer)
{
    QByteArray pdf = "%PDF-1.7\n";
    QByteArray table = "0000000000 65535 f \n";
    for (qsizetype i = 0; i < objects.size(); ++i) {
        table += QByteArray::number(pdf.size()).rightJustified(10, '0') + " 00000 n \n";
        pdf += QByteArray::number(i + 1) + " 0 obj\n" + objects.at(i) + "\nendobj\n";
    }
    const QByteArray count = QByteArray::number(objects.size() + 1);
    const QByteArray start = QByteArray::number(pdf.size());
    return pdf + "xref\n0 " + count + '\n' + table + "trailer\n<< /Size " + count + " /Root 1 0 R " +
           trailer + " >>\nstartxref\n" + start + "\n%%EOF\n";
}

QByteArray stream(const QByteArray &content, const QByteArray &dictionary)
{
    return "<< /Length " + QByteArray::number(content.size()) + ' ' + dictionary + " >>\nstream\n" + content +
           "\nendstream";
}

QByteArray withPages(const QList<Page> &pages, const QByteArrayList &further, const QByteArray &catalog)
{
    QByteArrayList objects = {"<< /Type /Catalog /Pages 2 0 R " + catalog + " >>", {}};
    QByteArray kids;
    for (const Page &page : pages) {
        const QByteArray number = QByteArray::number(objects.size() + 1);
        kids += number + " 0 R ";
        objects += "<< /Type /Page /Parent 2 0 R /Contents " + QByteArray::number(objects.size() + 2) +
                   " 0 R " + page.dictionary + " >>";
        objects += stream(page.content);
    }
    objects[1] = "<< /Type /Pages /Kids [" + kids + "] /Count " + QByteArray::number(pages.size()) + " >>";
    while (objects.size() < 9)
        objects += "null";
    return joined(objects + further);
}

QByteArray marks(int x, int y)
{
    return "1 0 0 rg " + QByteArray::number(x) + ' ' + QByteArray::number(y) + " 20 20 re f 0 0 1 rg " +
           QByteArray::number(x + 20) + ' ' + QByteArray::number(y) + " 20 20 re f\n";
}

QByteArray text(int pages)
{
    QByteArrayList objects = {
        "<< /Type /Catalog /Pages 2 0 R >>", {}, "<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica >>"};
    QByteArray kids;
    for (int page = 0; page < pages; ++page) {
        QByteArray content = "BT /F 11 Tf 50 780 Td 14 TL\n";
        for (int line = 0; line < 50; ++line)
            content += "(Page " + QByteArray::number(page) + ", line " + QByteArray::number(line) +
                       " of a text that is as long as usual lines are, and not longer) Tj T*\n";
        kids += QByteArray::number(objects.size() + 1) + " 0 R ";
        objects += "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 595 842] /Resources << /Font << /F 3 0 R >> "
                   ">> /Contents " +
                   QByteArray::number(objects.size() + 2) + " 0 R >>";
        objects += stream(content + "ET\n");
    }
    objects[1] = "<< /Type /Pages /Kids [" + kids + "] /Count " + QByteArray::number(pages) + " >>";
    return joined(objects);
}

} // namespace pdf_samples
