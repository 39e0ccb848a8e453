// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PdfWriter.h"
#include "Photo.h"
#include "Rows.h"
#include "SamplePhotos.h"
#include "TestMain.h"

#include <QtCore/QBuffer>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include <functional>
#include <unistd.h>

using namespace printdialog;
using namespace Qt::StringLiterals;

namespace {

/// In bytes.
qint64 residentMemory()
{
    const QByteArrayList numbers = samples::load(u"/proc/self/statm"_s).split(' ');
    return numbers.value(1).toLongLong() * sysconf(_SC_PAGESIZE);
}

} // namespace

/// What becomes of a photo's bytes between opening it and printing it.
class PhotoContentTest : public QObject
{
    Q_OBJECT

private:
    using Change = std::function<void(const QString &path)>;

    QString pathOf(const QString &name) const { return folder_.filePath(name); }

    QTemporaryDir folder_;

private Q_SLOTS:
    void changes_data()
    {
        const auto add = rows<Change, PhotoFault>();
        const auto setTime = [](const QString &path, const QDateTime &time) {
            QFile file(path);
            return file.open(QFile::ReadWrite) && file.setFileTime(time, QFile::FileModificationTime);
        };
        const auto resized = [](qint64 by) {
            return [by](const QString &path) {
                QVERIFY(QFile::resize(path, QFileInfo(path).size() + by));
            };
        };
        add("grown", resized(1), PhotoFault::Changed);
        add("cut", resized(-1), PhotoFault::Changed);
        add(
            "written to",
            [setTime](const QString &path) {
                const QDateTime before = QFileInfo(path).lastModified();
                samples::store(path, samples::load(path).replace("JFIF", "JFXX"));
                QVERIFY(setTime(path, before.addMSecs(1)));
            },
            PhotoFault::Changed);
        add(
            "another file of the same size and time",
            [setTime](const QString &path) {
                samples::store(path + u".new"_s, samples::load(path));
                QVERIFY(setTime(path + u".new"_s, QFileInfo(path).lastModified()));
                QVERIFY(QFile::rename(path, path + u".old"_s) && QFile::rename(path + u".new"_s, path));
            },
            PhotoFault::Changed);
        add(
            "removed", [](const QString &path) { QVERIFY(QFile::remove(path)); }, PhotoFault::NotFound);
        add(
            "a folder in its place",
            [](const QString &path) { QVERIFY(QFile::remove(path) && QDir().mkdir(path)); },
            PhotoFault::NotReadable);
    }

    /// Also when its bytes are still in memory.
    void changes()
    {
        const auto [change, fault] = row<Change, PhotoFault>();
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"photo.jpg"_s);
        const QByteArray jpeg = samples::encoded(samples::quarters(QSize(120, 80)), "jpeg");
        samples::store(path, jpeg);
        const auto photo = Photo::open(path);
        QVERIFY(photo && *photo->content() == jpeg);
        change(path);
        const auto content = photo->content();
        QVERIFY(!content);
        QCOMPARE(content.failure().reason, fault);
        QVERIFY2(content.failure().text.contains(u"photo.jpg"_s), qPrintable(content.failure().text));
        QCOMPARE(photo->decoded().failure().reason, fault);
        QVERIFY(photo->preview({60, 40}).isNull());
        QCOMPARE(photo->damage()->reason, fault);
        QVERIFY(!photo->isChecked());
        QBuffer pdf;
        pdf.open(QIODevice::WriteOnly);
        const auto written = PdfWriter::write(*photo, {QSizeF(300, 300), QRectF(0, 0, 300, 300)}, pdf);
        QVERIFY(!written);
        QCOMPARE(written.failure().reason, PdfFault::PhotoUnusable);
        QCOMPARE(written.failure().text, content.failure().text);
    }

    /// Its rows would be shorter than those that the photo was opened with.
    void anotherPictureInTheSameFile()
    {
        const auto store = [this](const QSize &size) {
            const QByteArray row(size.width() + 1, '\0');
            const QByteArray png = samples::pngOf(samples::pngHeader(size, 0), row.repeated(size.height()));
            QFile file(pathOf(u"photo.png"_s));
            QVERIFY(file.open(QFile::ReadWrite) && file.write(png) == png.size());
            QVERIFY(file.flush() && file.setFileTime(QDateTime::fromSecsSinceEpoch(1'700'000'000),
                                                     QFile::FileModificationTime));
        };
        store(QSize(30, 20));
        const auto photo = Photo::open(pathOf(u"photo.png"_s));
        QVERIFY(photo && photo->decoded());
        store(QSize(19, 31));
        for (int i = 0; i < 65; ++i) // whose bytes take the place of the first ones
            QCOMPARE(Photo::open(pathOf(u"photo.png"_s))->identity(), photo->identity());
        for (const auto &failure : {photo->decoded().failure(), photo->content().failure()})
            QCOMPARE(failure.reason, PhotoFault::Changed);
    }

    /// Of most JPEG files, only the ends are read to open them; of the contents used last, 32 MiB are kept.
    void manyPhotosFitIntoMemory()
    {
#ifdef __SANITIZE_ADDRESS__
        QSKIP("AddressSanitizer keeps what was freed.");
#endif
        constexpr qint64 mebibyte = 1 << 20;
        constexpr int count = 16;
        const QByteArray padding = samples::noise(8 * mebibyte).replace('\xff', "") + "\xff\xd9";
        QByteArray jpeg = samples::encoded(samples::quarters(QSize(120, 80)), "jpeg");
        jpeg.chop(2);
        QList<Photo> photos;
        for (int i = 0; i < count; ++i)
            samples::store(pathOf(QString::number(i)), jpeg + padding);
        const qint64 before = residentMemory();
        for (int i = 0; i < count; ++i)
            photos.append(*Photo::open(pathOf(QString::number(i))));
        QVERIFY2(residentMemory() - before < 4 * mebibyte,
                 qPrintable(QString::number(residentMemory() - before)));
        for (const Photo &photo : std::as_const(photos))
            QVERIFY(photo.content()->endsWith(padding));
        QVERIFY2(residentMemory() - before < 52 * mebibyte,
                 qPrintable(QString::number(residentMemory() - before)));
        // Whoever needs it at the same time, or soon after, has the same bytes.
        QCOMPARE(static_cast<const void *>(Photo(photos.constLast()).content()->constData()),
                 static_cast<const void *>(photos.constLast().content()->constData()));
    }
};

CORVEL_TEST(PhotoContentTest)
#include "PhotoContentTest.moc"
