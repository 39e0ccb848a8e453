// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "DialogSession.h"
#include "Rows.h"
#include "SampleProfiles.h"
#include "SessionOpening.h"
#include "SmallPpd.h"
#include "TestMain.h"

#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include <sys/stat.h>

using namespace printdialog;
using namespace smallppd;
using namespace testing_support;
using namespace Qt::StringLiterals;

namespace {

QByteArray line(const QByteArray &qualifiers, const QByteArray &file)
{
    return "*cupsICCProfile " + qualifiers + ": \"" + file + "\"\n";
}

} // namespace

class PaperProfileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(folder_.isValid());
        double gamma = 1;
        for (const QString &name :
             {u"one/color/icc/rgb.icc"_s, u"one/color/icc/fine.icc"_s, u"one/color/icc/glossy.icc"_s,
              u"two/color/icc/matte.icc"_s, u"two/color/icc/maker/photo/below.icc"_s,
              u"one/color/icc/a/b/c/deep.icc"_s, u"cups/profiles/cups.icc"_s, u"two/color/icc/both.icc"_s,
              u"outside.icc"_s, u"one/color/outside.icc"_s, u"one/color/icc/.hidden.icc"_s})
            QVERIFY(storeBelow(path(name), profile(gamma += 0.1)));
        QVERIFY(storeBelow(path(u"one/color/icc/paper.icc"_s), profile(gamma, cmsSigOutputClass)) &&
                storeBelow(path(u"one/color/icc/camera.icc"_s), profile(gamma, cmsSigInputClass)) &&
                storeBelow(path(u"one/color/icc/text.icc"_s), "text") &&
                storeBelow(path(u"one/color/icc/huge.icc"_s), profile(gamma) + QByteArray(4 << 20, '\0')) &&
                QDir().mkpath(path(u"one/color/icc/folder.icc"_s)));
        for (const QString &name : {u"one/color/icc/pipe.icc"_s, u"one/color/icc/both.icc"_s})
            QCOMPARE(::mkfifo(qPrintable(path(name)), 0600), 0);
        qputenv("XDG_DATA_DIRS", QFile::encodeName(path(u"one"_s) + u':' + path(u"two"_s)));
        qputenv("CUPS_DATADIR", QFile::encodeName(path(u"cups"_s)));
    }

    void fitsTheChoices_data()
    {
        // The PPD's lines; what is chosen instead of RGB, Glossy and 300dpi; the profile's file.
        const auto add = rows<QByteArray, QStringList, QString>();
        const QStringList matte = {u"MediaType"_s, u"Matte"_s};
        const QString rgb = u"one/color/icc/rgb.icc"_s;
        const QString glossy = u"one/color/icc/glossy.icc"_s;
        add("all three", line("RGB.Glossy.300dpi/Glossy paper", "glossy.icc"), {}, glossy);
        add("in other letters", line("rgb.GLOSSY.300DPI", "glossy.icc"), {}, glossy);
        add("an empty qualifier fits all", line("RGB..", "rgb.icc"), matte, rgb);
        add("a star fits all", line("RGB.*.*", "rgb.icc"), matte, rgb);
        add("no qualifiers", "*cupsICCProfile: \"rgb.icc\"\n", matte, rgb);
        add("none fits", line("Gray..", "fine.icc") + line("RGB.Glossy.", "glossy.icc"), matte, {});
        add("the most specific",
            line("RGB..", "rgb.icc") + line("RGB.Matte.", "matte.icc") + line("RGB..600dpi", "fine.icc"),
            matte, u"two/color/icc/matte.icc"_s);
        add("the paper before the resolution",
            line("RGB..300dpi", "fine.icc") + line("RGB.Glossy.", "glossy.icc"), {}, glossy);
        add("by another option", "*cupsICCQualifier2: PageSize\n" + line(".w360h504.", "rgb.icc"),
            {u"PageSize"_s, u"w360h504"_s}, rgb);
        add("a fixed one", "*cupsICCQualifier1: Inks\n*DefaultInks: Six\n" + line("Six..", "rgb.icc"), {},
            rgb);
    }

    void fitsTheChoices()
    {
        const auto [lines, choice, file] = row<QByteArray, QStringList, QString>();
        const auto session = opened(lines);
        if (!choice.isEmpty())
            QCOMPARE(session->choose(choice.at(0), choice.at(1)).verdict, Verdict::Accepted);
        QCOMPARE(session->paperProfile(), contents(file));
    }

    void findsFiles_data()
    {
        addRows<QByteArray, QString>({
            {"of a printer", "paper.icc", u"one/color/icc/paper.icc"_s},
            {"by a path of its maker's", "/Library/Photo/rgb.icc", u"one/color/icc/rgb.icc"_s},
            {"in a folder below", "below.icc", u"two/color/icc/maker/photo/below.icc"_s},
            {"of CUPS", "cups.icc", u"cups/profiles/cups.icc"_s},
            {"behind a pipe of the name", "both.icc", u"two/color/icc/both.icc"_s},
            {"too deep", "deep.icc", {}},
            {"missing", "none.icc", {}},
            {"outside", "a/../../outside.icc", {}},
            {"outside by its path", QFile::encodeName(path(u"outside.icc"_s)), {}},
            {"no name", "", {}},
            {"only a folder's", "rgb.icc/", {}},
            {"the folder above", "..", {}},
            {"hidden", ".hidden.icc", {}},
            {"a folder", "folder.icc", {}},
            {"a pipe", "pipe.icc", {}},
            {"of a camera", "camera.icc", {}},
            {"not a profile", "text.icc", {}},
            {"too large", "huge.icc", {}},
        });
    }

    void findsFiles()
    {
        const auto [name, file] = row<QByteArray, QString>();
        QCOMPARE(opened(line("RGB..", name))->paperProfile(), contents(file));
    }

    // It is asked for after each choice.
    void readsAFileOnce()
    {
        const QString file = path(u"one/color/icc/once.icc"_s);
        const QByteArray bytes = profile(3);
        QVERIFY(storeBelow(file, bytes));
        const auto session = opened(line("RGB.Glossy.", "once.icc"));
        QCOMPARE(session->paperProfile(), bytes);
        QVERIFY(QFile::remove(file));
        QCOMPARE(session->choose(u"Resolution"_s, u"600dpi"_s).verdict, Verdict::Accepted);
        QCOMPARE(session->paperProfile(), bytes);
        QCOMPARE(session->choose(u"MediaType"_s, u"Matte"_s).verdict, Verdict::Accepted);
        QCOMPARE(session->paperProfile(), QByteArray());
    }

private:
    QString path(const QString &name) const { return folder_.filePath(name); }

    QByteArray contents(const QString &name) const
    {
        QFile file(path(name));
        if (!name.isEmpty() && !file.open(QFile::ReadOnly))
            qFatal("%s: %s", qPrintable(name), qPrintable(file.errorString()));
        return name.isEmpty() ? QByteArray() : file.readAll();
    }

    static std::unique_ptr<DialogSession> opened(const QByteArray &lines)
    {
        const auto ppd = trustPpd(minimal() + option("ColorModel", {"RGB", "Gray"}) +
                                      option("MediaType", {"Glossy", "Matte"}) +
                                      option("Resolution", {"300dpi", "600dpi"}) + lines,
                                  u"queue"_s);
        if (!ppd)
            qFatal("%s", qPrintable(ppd.failure().text));
        auto session = openQueue({}, *ppd, PanelMode::Constraint);
        if (!session)
            qFatal("%s", qPrintable(session.failure().text));
        return *std::move(session);
    }

    QTemporaryDir folder_;
};

CORVEL_TEST(PaperProfileTest)
#include "PaperProfileTest.moc"
