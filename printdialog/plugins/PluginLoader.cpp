// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PluginLoader.h"

#include "CorvelPaths.h"
#include "PlainText.h"
#include "PluginGuard.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QJsonObject>
#include <QtCore/QPluginLoader>

namespace printdialog {

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(PluginLoader)
};

Failure<PluginFault> failure(PluginFault fault, const QString &text, const QString &detail = {})
{
    return {fault, text, detail};
}

bool isBundleName(const QString &name)
{
    return name.endsWith(QLatin1String(".bundle")) && !name.startsWith(QLatin1Char('.')) &&
           !name.contains(QLatin1Char('/')) && !name.contains(QChar::Null);
}

/// Relative to the program, so that an installed tree that was moved still finds its parts.
QString installedFolder()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() +
                           QLatin1String("/" CORVEL_PDE_FROM_PROGRAM));
}

std::optional<QString> findBundle(const QStringList &names)
{
    const QStringList folders = PluginLoader::folders();
    for (const QString &name : names) {
        for (const QString &folder : folders) {
            const QString path = QDir(folder).absoluteFilePath(name);
            if (QFileInfo(path).isDir())
                return path;
        }
    }
    return std::nullopt;
}

QString reasonText(pdekit::BundleFault fault)
{
    switch (fault) {
    case pdekit::BundleFault::NotFound:
        return Text::tr("it is not a folder");
    case pdekit::BundleFault::NoInfo:
        return Text::tr("it has no readable Contents/Info.json");
    case pdekit::BundleFault::InfoTooLarge:
        return Text::tr("its Info.json is larger than 64 KiB");
    case pdekit::BundleFault::BrokenInfo:
        return Text::tr("its Info.json is not a JSON object");
    case pdekit::BundleFault::NoIdentifier:
        return Text::tr("its Info.json has no \"CFBundleIdentifier\"");
    case pdekit::BundleFault::BadExecutable:
        return Text::tr("the \"CFBundleExecutable\" of its Info.json is not a plain file name");
    }
    return {};
}

Failure<PluginFault> unusable(PluginFault fault, const QString &path, const QString &reason)
{
    return failure(
        fault, Text::tr("The plug-in bundle \"%1\" cannot be used: %2. Install it again.").arg(path, reason));
}

Failure<PluginFault> failed(const QString &path, const QString &thrown)
{
    return failure(
        PluginFault::Failed,
        Text::tr("The plug-in of the bundle \"%1\" has failed: %2. Update the plug-in.").arg(path, thrown));
}

} // namespace

QStringList PluginLoader::folders()
{
    QStringList folders = qEnvironmentVariable("CORVEL_PDE_PATH").split(QLatin1Char(':'), Qt::SkipEmptyParts);
    folders.append(installedFolder());
    return folders;
}

QStringList PluginLoader::bundles(QStringList names)
{
    names.removeIf([](const QString &name) { return !isBundleName(name); });
    return names;
}

Result<LoadedPlugin, PluginFault> PluginLoader::load(const QStringList &names)
{
    const std::optional<QString> path = findBundle(names);
    if (!path) {
        return failure(
            PluginFault::NotFound,
            Text::tr("The printer's own panels (%1) are not installed in %2; it prints without them.")
                .arg(plainText(names.join(QLatin1String(", ")), shownTextLimit),
                     folders().join(QLatin1String(", "))));
    }
    pdekit::BundleFault fault = {};
    std::optional<pdekit::Bundle> bundle = pdekit::Bundle::open(*path, &fault);
    if (!bundle)
        return unusable(PluginFault::BrokenInfo, *path, reasonText(fault));

    const QString module = bundle->executablePath() + QLatin1String(".so");
    if (!QFileInfo(module).isFile())
        return unusable(PluginFault::NotLoadable, *path, Text::tr("it has no module \"%1\"").arg(module));
    QPluginLoader loader(module);
    loader.setLoadHints(QLibrary::PreventUnloadHint);
    if (loader.metaData().value(QLatin1String("IID")).toString() != QLatin1String(PrintDialogPlugin_iid))
        return unusable(PluginFault::NotAPlugin, *path, Text::tr("its module is not a print-dialog plug-in"));
    QObject *root = nullptr;
    if (const auto thrown = thrownBy([&] { root = loader.instance(); }))
        return failed(*path, *thrown);
    if (!root)
        return unusable(PluginFault::NotLoadable, *path, loader.errorString());
    auto *plugin = qobject_cast<pdekit::PrintDialogPlugin *>(root);
    if (!plugin)
        return unusable(PluginFault::NotAPlugin, *path, Text::tr("its module is not a print-dialog plug-in"));
    bool isItsOwn = false;
    if (const auto thrown = thrownBy([&] { isItsOwn = plugin->initWithBundle(*bundle); }))
        return failed(*path, *thrown);
    if (!isItsOwn) {
        return unusable(PluginFault::Refused, *path,
                        Text::tr("its identifier \"%1\" is not the one that its module was built for")
                            .arg(bundle->identifier()));
    }
    return LoadedPlugin{*bundle, plugin};
}

Result<pdekit::PanelList, PluginFault> PluginLoader::panels(const LoadedPlugin &plugin,
                                                            const pdekit::HostInfo &hostInfo)
{
    std::optional<pdekit::PanelList> panels;
    const QString type = QString::fromLatin1(pdekit::PrinterPanelsType);
    if (const auto thrown =
            thrownBy([&] { panels = plugin.plugin->PDEPanelsForTypeWithHostInfo(type, hostInfo); }))
        return failed(plugin.bundle.path(), *thrown);
    if (panels)
        std::erase(*panels, nullptr);
    if (!panels || panels->empty())
        return unusable(PluginFault::NoPanels, plugin.bundle.path(),
                        Text::tr("it offers no panel for this printer"));
    return *std::move(panels);
}

} // namespace printdialog
