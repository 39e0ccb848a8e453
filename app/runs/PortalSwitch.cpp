// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PortalSwitch.h"

#include "Console.h"
#include "PortalFrontEnd.h"
#include "PortalsFiles.h"
#include "SettingsFile.h"

#include <QtCore/QFile>

namespace printdialog {

namespace {

using PortalsFile = PortalsFiles::File;

const QString portalPackage = QStringLiteral("corvel-print-portal");
const QString frontEndName = QStringLiteral("xdg-desktop-portal");

struct PortalSwitchText
{
    Q_DECLARE_TR_FUNCTIONS(PortalSwitch)
};

QString entryText()
{
    return QString::fromLatin1(PortalsText::entry());
}

/// What stands in the way whatever the files say.
std::optional<QString> obstacleToSwitch(PortalUse use, const PortalFrontEnd &frontEnd,
                                        const PortalsFiles &files)
{
    if (!frontEnd.isInstalled)
        return PortalSwitchText::tr(
                   "Other programs reach this dialog through %1, which is not installed. Get "
                   "it with the package %1.")
            .arg(frontEndName);
    if (!frontEnd.version.isNull() && !frontEnd.readsPortalsConf)
        return PortalSwitchText::tr(
                   "%1 %2 does not let each user choose: the installed package decides for everybody. "
                   "Programs use this dialog while %3 is installed; install or remove it.")
            .arg(frontEndName, frontEnd.version.toString(), portalPackage);
    if (use == PortalUse::Start && !frontEnd.knowsThisDialog)
        return PortalSwitchText::tr("The part of this program that other programs print with is not "
                                    "installed. Get it with the package %1.")
            .arg(portalPackage);
    if (!files.isDesktopKnown())
        return PortalSwitchText::tr("It is not known which desktop this is: XDG_CURRENT_DESKTOP is not set. "
                                    "Run it in a terminal of your desktop.");
    const std::optional<PortalsFile> own = files.ofUser();
    if (own && own->text.wrongLine() > 0)
        return PortalSwitchText::tr("The file %1 is ignored by %2, because of its line %3. Correct that line "
                                    "or remove the file.")
            .arg(own->path, frontEndName, QString::number(own->text.wrongLine()));
    return std::nullopt;
}

std::optional<QString> writePortals(const QString &path, const QByteArray &before, const QByteArray &after)
{
    const auto failure = SettingsFile::change(path, [&](const QByteArray &now) {
        using Changed = Result<QByteArray, SettingsFault>;
        if (now == before)
            return Changed(after);
        return Changed({SettingsFault::Busy,
                        PortalSwitchText::tr("The file %1 was changed just now. Try again.").arg(path),
                        {}});
    });
    return failure ? std::optional(failure->text) : std::nullopt;
}

int reportSwitch(Console &console, const QString &sentence, const PortalFrontEnd &frontEnd)
{
    console.writeLine(sentence);
    console.writeLine(
        PortalSwitchText::tr("It takes effect when you log in the next time, or at once with: %1")
            .arg(QLatin1String("systemctl --user restart ") + frontEndName));
    if (!frontEnd.readsPortalsConf)
        console.writeLine(
            PortalSwitchText::tr("The version of %1 cannot be found out. Before 1.17 it does not read this "
                                 "file, and the installed package decides.")
                .arg(frontEndName));
    return exitDone;
}

int failSwitch(Console &console, const QString &sentence)
{
    console.complain(sentence);
    return exitFailed;
}

int startUsing(const PortalsFiles &files, const PortalFrontEnd &frontEnd, Console &console)
{
    const std::optional<PortalsFile> inForce = files.inForce();
    if (inForce && inForce->text.prefersThisDialog()) {
        console.writeLine(PortalSwitchText::tr("Already so: %1 has \"%2\".").arg(inForce->path, entryText()));
        return exitDone;
    }
    const std::optional<PortalsFile> own = files.ofUser();
    const PortalsText before = inForce ? inForce->text : PortalsText({});
    const QString path = own ? own->path : files.copyOf(inForce);
    if (const auto failure = writePortals(path, own ? before.text() : QByteArray(), before.withThisDialog()))
        return failSwitch(console, *failure);
    const QString done = own       ? PortalSwitchText::tr("%1 has \"%2\" now.")
                         : inForce ? PortalSwitchText::tr("Made %1, a copy of %3, with \"%2\".")
                                   : PortalSwitchText::tr("Made %1, with \"%2\".");
    return reportSwitch(
        console, inForce && !own ? done.arg(path, entryText(), inForce->path) : done.arg(path, entryText()),
        frontEnd);
}

int stopUsing(const PortalsFiles &files, const PortalFrontEnd &frontEnd, Console &console)
{
    const std::optional<PortalsFile> own = files.ofUser();
    const std::optional<PortalsFile> inForce = files.inForce();
    const QByteArray after = own ? own->text.withoutThisDialog() : QByteArray();
    if (own && after != own->text.text()) {
        // The user has a copy only because of the key; without it, the system's file is in force again, and
        // its future versions as well.
        const std::optional<PortalsFile> other = files.inForce(own->path);
        const PortalsText hidden = other ? other->text : PortalsText({});
        if (hidden.withThisDialog() == own->text.text()) {
            QFile file(own->path);
            if (!file.remove())
                return failSwitch(console, PortalSwitchText::tr("The file %1 cannot be removed: %2.")
                                               .arg(own->path, file.errorString()));
            return reportSwitch(
                console,
                PortalSwitchText::tr("Removed %1, which held nothing else of its own.").arg(own->path),
                frontEnd);
        }
        if (const auto failure = writePortals(own->path, own->text.text(), after))
            return failSwitch(console, *failure);
        return reportSwitch(
            console, PortalSwitchText::tr("%1 does not name this dialog any more.").arg(own->path), frontEnd);
    }
    if (inForce && inForce->text.prefersThisDialog())
        return failSwitch(
            console, PortalSwitchText::tr("The file %1 of the system has \"%2\", for all its users. Only "
                                          "an administrator can change it.")
                         .arg(inForce->path, entryText()));
    console.writeLine(
        inForce ? PortalSwitchText::tr("Already so: %1 does not name this dialog.").arg(inForce->path)
                : PortalSwitchText::tr("Already so: no file names this dialog."));
    return exitDone;
}

} // namespace

int switchPortal(PortalUse use, Console &console)
{
    const PortalFrontEnd frontEnd = PortalFrontEnd::find();
    const PortalsFiles files;
    if (const auto reason = obstacleToSwitch(use, frontEnd, files))
        return failSwitch(console, *reason);
    return use == PortalUse::Start ? startUsing(files, frontEnd, console)
                                   : stopUsing(files, frontEnd, console);
}

} // namespace printdialog
