// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include <QtCore/QDir>
#include <QtCore/QMargins>
#include <QtGui/QImage>

#include <cstdio>

// makeHelpPictures SCREENSHOTS LANGUAGE IMAGES: cuts the printer's pages out of pictures of the whole dialog,
// which corvel-print --screenshot has made, for the help book.

namespace {

/// The pages of the printer, and the dialog's own, which comes last and is not cut out.
const QStringList pages = {QStringLiteral("coloradjust"), QStringLiteral("sharpness"),
                           QStringLiteral("matte"), QStringLiteral("summary")};
/// What belongs to a page around the things that change from page to page: its frame.
constexpr QMargins frame(8, 4, 22, 4);

/// Where the two pictures differ.
QRect difference(const QImage &one, const QImage &other)
{
    QRect place;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            if (one.pixel(x, y) != other.pixel(x, y))
                place |= QRect(x, y, 1, 1);
        }
    }
    return place;
}

/// False, with the reason on standard error, when a picture is missing or cannot be written.
bool cutPages(const QDir &screenshots, const QString &language, const QDir &images)
{
    QList<QImage> pictures;
    for (const QString &name : pages) {
        const QImage picture(screenshots.filePath(name + QLatin1String(".png")));
        if (picture.isNull() || (!pictures.isEmpty() && picture.size() != pictures.constFirst().size())) {
            std::fprintf(stderr, "makeHelpPictures: %s has no fitting picture of the page %s.\n",
                         qPrintable(screenshots.path()), qPrintable(name));
            return false;
        }
        pictures.append(picture);
    }
    QRect page;
    for (const QImage &picture : pictures)
        page |= difference(pictures.constFirst(), picture);
    page = page.marginsAdded(frame) & pictures.constFirst().rect();
    for (qsizetype i = 0; i + 1 < pages.size(); ++i) {
        const QString path = images.filePath(QStringLiteral("%1_%2.png").arg(pages.at(i), language));
        const QImage cut = pictures.at(i).copy(page).convertToFormat(QImage::Format_RGB888);
        if (!cut.save(path, "PNG", 0)) {
            std::fprintf(stderr, "makeHelpPictures: %s could not be written.\n", qPrintable(path));
            return false;
        }
    }
    return true;
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc != 4) {
        std::fputs("Usage: makeHelpPictures SCREENSHOTS LANGUAGE IMAGES\n", stderr);
        return 2;
    }
    const auto text = [argv](int i) {
        return QString::fromLocal8Bit(argv[i]);
    };
    return cutPages(QDir(text(1)), text(2), QDir(text(3))) ? 0 : 1;
}
