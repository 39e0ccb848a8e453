// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

// A bundle's information property list.

#include "Bundle.h"
#include "Fuzzing.h"
#include "PluginLoader.h"

#include <QtCore/QDir>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString name = QStringLiteral("Fuzzed.bundle");
    const QString folders = fuzzing::folder() + QLatin1String("/PDEs");
    const QString path = folders + QLatin1Char('/') + name;
    fuzzing::write(path + QLatin1String("/Contents/Info.json"), fuzzing::input(data, size));
    pdekit::BundleFault fault = {};
    if (const auto bundle = pdekit::Bundle::open(path, &fault)) {
        fuzzing::require(!bundle->identifier().isEmpty(), "a bundle has an identifier");
        const QString inside = path + QLatin1String("/Contents/Linux/");
        fuzzing::require(QDir::cleanPath(bundle->executablePath()).startsWith(inside),
                         "a bundle's module lies in the bundle");
        for (const char *key : {"CFBundleExecutable", "CFBundleHelpBookName", "CFBundleHelpBookFolder"}) {
            const QString value = bundle->infoValue(QString::fromLatin1(key)).toString();
            bundle->pathForAuxiliaryExecutable(value);
            bundle->pathForResource(value, QStringLiteral("ui"));
        }
    }
    qputenv("CORVEL_PDE_PATH", QFile::encodeName(folders));
    const auto loaded = printdialog::PluginLoader::load({name});
    fuzzing::require(!loaded && loaded.failure().text.contains(name), "a refusal names the bundle");
    return 0;
}
