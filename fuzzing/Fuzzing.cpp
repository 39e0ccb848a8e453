// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "Fuzzing.h"

#include "Feedback.h"
#include "SystemLog.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QLoggingCategory>
#include <QtCore/QTemporaryDir>
#include <QtWidgets/QApplication>

#include <cstdio>
#include <cstdlib>

namespace {

class Silence final : public pdekit::Feedback
{
public:
    void beep() override {}
    void alert(const pdekit::Alert & /*alert*/) override {}
    bool openHelpBook(const pdekit::Bundle & /*bundle*/, const QString & /*name*/) override { return true; }
};

QTemporaryDir &ownFolder()
{
    static QTemporaryDir folder;
    return folder;
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv);

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    const QByteArray home = QFile::encodeName(fuzzing::folder());
    for (const char *name : {"HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME"})
        qputenv(name, home);
    for (const char *name : {"LC_ALL", "LANG"})
        qputenv(name, "C");
    qputenv("LANGUAGE", "");
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("CUPS_SERVER", "/nonexistent/cups.sock");
    qputenv("CUPS_SERVERROOT", home);
    QLoggingCategory::setFilterRules(QStringLiteral("*=false"));
    new QApplication(*argc, *argv); // until the process ends
    pdekit::Feedback::install(std::make_shared<Silence>());
    pdekit::setSystemLogSink([](const QString & /*line*/) {});
    return 0;
}

namespace fuzzing {

QByteArray input(const std::uint8_t *data, std::size_t size)
{
    return QByteArray::fromRawData(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
}

QString folder()
{
    return ownFolder().path();
}

QString write(const QString &path, const QByteArray &content)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    require(file.open(QFile::WriteOnly | QFile::Truncate) && file.write(content) == content.size(),
            "there is room for the input's file");
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    return path;
}

QString writeBundle(const QString &name)
{
    const QString path = folder() + QLatin1String("/PDEs/") + name;
    write(path + QLatin1String("/Contents/Info.json"),
          R"({"CFBundleIdentifier": "a.b", "CFBundleExecutable": "none"})");
    return path;
}

void require(bool claim, const char *what)
{
    if (claim)
        return;
    std::fprintf(stderr, "This should be so and is not: %s\n", what);
    std::abort();
}

} // namespace fuzzing
