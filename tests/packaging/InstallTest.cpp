// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "CommandRun.h"

#include <QtCore/QDirIterator>
#include <QtCore/QFile>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QScopeGuard>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

using namespace testing_support;
using namespace Qt::StringLiterals;

namespace {

const QString samplePhoto = QStringLiteral(CORVEL_SAMPLE_PHOTO);

QStringList filesIn(const QString &folder)
{
    QStringList files;
    for (QDirIterator i(folder, QDir::Files | QDir::System | QDir::Hidden, QDirIterator::Subdirectories);
         i.hasNext();)
        files.append(i.next());
    return files;
}

QStringList foldersIn(const QString &folder)
{
    QStringList folders;
    for (QDirIterator i(folder, QDir::Dirs | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
         i.hasNext();)
        folders.append(i.next());
    return folders;
}

} // namespace

/// The program as it is installed, away from where it was built.
class InstallTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void holdsNoPathOfTheBuild();
    void findsItsParts();
    void worksWhereverItIsMovedTo();
    void takesAPlugInBuiltAgainstIt();
    void loadsNoStrangersLibrary();
    void uninstalls();

private:
    QString inPrefix(const QString &path) const { return prefix_ + u'/' + path; }
    QString program() const { return inPrefix(QStringLiteral(CORVEL_BINDIR "/corvel-print")); }
    CommandRun run(const QStringList &arguments, const QMap<QString, QString> &environment = {}) const;

    QTemporaryDir folder_;
    QString prefix_;
    QString manifest_; ///< of what is installed in the prefix
};

// The list of what was installed is taken away at once: the user's own, of an installation from this build,
// stays.
void InstallTest::initTestCase()
{
    const QString written = QStringLiteral(CORVEL_BUILD_DIR "/install_manifest.txt");
    const QByteArray before = contentOf(written);
    prefix_ = folder_.filePath(u"in stalled"_s);
    manifest_ = folder_.filePath(u"manifest.txt"_s);
    const CommandRun install =
        runCommand(QStringLiteral(CORVEL_CMAKE),
                   {u"--install"_s, QStringLiteral(CORVEL_BUILD_DIR), u"--prefix"_s, prefix_, u"--strip"_s});
    QVERIFY2(install.status == 0, install.output.constData());
    QVERIFY(QFile::rename(written, manifest_));
    QFile file(written);
    if (!before.isEmpty())
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(before) == before.size());
}

CommandRun InstallTest::run(const QStringList &arguments, const QMap<QString, QString> &environment) const
{
    QMap<QString, QString> variables = {
        {u"CORVEL_PDE_PATH"_s, {}}, {u"QT_QPA_PLATFORM"_s, {}}, {u"LC_ALL"_s, {}}};
    variables.insert(environment);
    return runCommand(program(), arguments, variables);
}

void InstallTest::holdsNoPathOfTheBuild()
{
#ifdef __SANITIZE_ADDRESS__
    QSKIP("The sanitizers name the places in the sources that they watch.");
#endif
    const QStringList files = filesIn(prefix_);
    QVERIFY(files.size() > 30);
    for (const QString &path : files) {
        const QByteArray content = contentOf(path);
        for (const char *build : {CORVEL_BUILD_DIR, CORVEL_SOURCE_DIR})
            QVERIFY2(!content.contains(build), qPrintable(path));
    }
    const CommandRun kit =
        runCommand(u"readelf"_s, {u"-d"_s, inPrefix(QStringLiteral(CORVEL_LIBDIR "/libpdekit.so"))});
    QVERIFY2(kit.output.contains("[libpdekit.so.0]"), kit.output.constData());
    QVERIFY2(!kit.output.contains("RUNPATH"), kit.output.constData());
}

// The plug-in, its forms and strings table, its Info.json, the picture of its icon.
void InstallTest::findsItsParts()
{
    const QString bundle =
        inPrefix(QStringLiteral(CORVEL_LIBDIR "/corvel-print/PDEs/Corvel9031.bundle/Contents/"));
    const CommandRun german =
        run({u"--list-options"_s, u"--printer"_s, u"built-in"_s}, {{u"LANG"_s, u"de_DE.UTF-8"_s}});
    QVERIFY2(german.status == 0, german.output.constData());
    for (const char *panel : {"Farbanpassung", "Schärfe", "Druckqualität und Oberfläche"})
        QVERIFY2(german.output.contains(panel), german.output.constData());
    const QJsonObject info = QJsonDocument::fromJson(contentOf(bundle + "Info.json"_L1)).object();
    QCOMPARE("corvel-print " + info["CFBundleVersion"_L1].toString().toUtf8() + '\n',
             run({u"--version"_s}).output);
    for (const char *help : {"index.html", "index_de.html", "index_fr.html", "index_es.html", "index_ja.html",
                             "style.css", "images/matte_de.png", "images/matte_ja.png"})
        QVERIFY(QFile::exists(bundle + "Resources/Corvel9031Help/"_L1 + QLatin1String(help)));
    for (const char *file :
         {"applications/org.corvel.print.desktop", "metainfo/org.corvel.print.metainfo.xml",
          "icons/hicolor/scalable/apps/corvel-print.svg", "icons/hicolor/48x48/apps/corvel-print.png",
          "man/man1/corvel-print.1.gz", "bash-completion/completions/corvel-print",
          "ppd/corvel-print/Corvel9045.ppd"})
        QVERIFY2(QFile::exists(inPrefix(QStringLiteral(CORVEL_DATADIR "/") + QLatin1String(file))), file);
}

void InstallTest::worksWhereverItIsMovedTo()
{
    const QString there = prefix_;
    prefix_ = folder_.filePath(u"moved"_s);
    QVERIFY(QDir().rename(there, prefix_));
    const auto back = qScopeGuard([&] {
        QDir().rename(prefix_, there);
        prefix_ = there;
    });
    // A PPD of the user's needs the program that tries it out.
    const CommandRun printed =
        run({u"--batch"_s, u"--ppd"_s,
             inPrefix(QStringLiteral(CORVEL_DATADIR "/ppd/corvel-print/Corvel9045.ppd")), u"-o"_s, u"Red=7"_s,
             u"--output"_s, folder_.path(), samplePhoto});
    QVERIFY2(printed.status == 0, printed.output.constData());
    QVERIFY(contentOf(folder_.filePath(u"sample.pdf"_s)).startsWith("%PDF-"));
}

// The example is configured, built and loaded as its reader would do it.
void InstallTest::takesAPlugInBuiltAgainstIt()
{
    const QString source = QStringLiteral(CORVEL_SOURCE_DIR "/examples/postcard");
    const QString build = folder_.filePath(u"postcard"_s);
    const CommandRun configured =
        runCommand(QStringLiteral(CORVEL_CMAKE),
                   {u"-G"_s, u"Ninja"_s, u"-S"_s, source, u"-B"_s, build, u"-DCMAKE_PREFIX_PATH="_s + prefix_,
                    u"-DCMAKE_UNITY_BUILD=ON"_s, u"-DCMAKE_CXX_FLAGS=-Wall -Wextra -Werror"_s,
                    u"-DCMAKE_CXX_COMPILER="_s + QStringLiteral(CORVEL_COMPILER)});
    QVERIFY2(configured.status == 0, configured.output.constData());
    const CommandRun built = runCommand(QStringLiteral(CORVEL_CMAKE), {u"--build"_s, build});
    QVERIFY2(built.status == 0, built.output.constData());
    const CommandRun installed = runCommand(QStringLiteral(CORVEL_CMAKE), {u"--install"_s, build});
    QVERIFY2(installed.status == 0, installed.output.constData());

    const QStringList printer = {u"--ppd"_s, source + "/Postcard.ppd"_L1};
    const CommandRun listed = run(printer + QStringList{u"--list-options"_s});
    QVERIFY2(listed.output.contains("Border      Border      None      Postcard Border"),
             listed.output.constData());
    for (const QString &mode : {u"constraint"_s, u"settings"_s}) {
        const QStringList batch = printer + QStringList{u"--mode"_s,        mode,         u"-o"_s,
                                                        u"Border=Deckle"_s, u"--batch"_s, u"--output"_s,
                                                        folder_.path(),     samplePhoto,  u"--summary"_s};
        const CommandRun printed = run(batch);
        QVERIFY2(printed.status == 0 && printed.output.contains("\nBorder: Deckle edge\n"),
                 printed.output.constData());
        const CommandRun refused = run(batch + QStringList{u"-o"_s, u"PageSize=Square"_s});
        QVERIFY2(refused.status == 1, refused.output.constData());
    }
}

// Neither from where it is installed nor from where the example is built.
void InstallTest::loadsNoStrangersLibrary()
{
    const CommandRun paths =
        runCommand(u"python3"_s, {QStringLiteral(CORVEL_SOURCE_DIR "/tests/packaging/libraryPaths.py"),
                                  prefix_, folder_.filePath(u"postcard"_s)});
    QVERIFY2(paths.status == 0, paths.output.constData());
}

// Files and folders of others stay: among them the example's bundle.
void InstallTest::uninstalls()
{
    const CommandRun removed = runCommand(
        QStringLiteral(CORVEL_CMAKE),
        {u"-DMANIFEST="_s + manifest_, u"-P"_s, QStringLiteral(CORVEL_SOURCE_DIR "/cmake/uninstall.cmake")});
    QVERIFY2(removed.status == 0, removed.output.constData());
    const QStringList left = filesIn(prefix_);
    QVERIFY(!left.isEmpty());
    for (const QString &file : left)
        QVERIFY2(file.contains("/corvel-print/PDEs/Postcard.bundle/"_L1), qPrintable(file));
    for (const QString &path : foldersIn(prefix_))
        QVERIFY2(!path.contains("pdekit"_L1) && !path.contains("Corvel9031"_L1) &&
                     !path.endsWith("/ppd/corvel-print"_L1),
                 qPrintable(path));
    QVERIFY(!QFile::exists(manifest_));
}

QTEST_GUILESS_MAIN(InstallTest)
#include "InstallTest.moc"
