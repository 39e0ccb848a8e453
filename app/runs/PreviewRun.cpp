// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PreviewRun.h"

#include "AtomicFiles.h"
#include "Console.h"
#include "FileName.h"
#include "KeptFiles.h"
#include "PagePicture.h"
#include "RequestedArrangement.h"
#include "RequestedSession.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFileInfo>

#include <cerrno>

namespace printdialog {

namespace {

struct PreviewText
{
    Q_DECLARE_TR_FUNCTIONS(PreviewRun)
};

constexpr int longestSide = 1200;

QStringList picturePaths(const QString &first, qsizetype photos)
{
    const qsizetype stem = first.lastIndexOf(u'.');
    QStringList paths = {first};
    for (qsizetype number = 2; number <= photos; ++number)
        paths += first.left(stem) + u'-' + QString::number(number) + first.mid(stem);
    return paths;
}

QString alreadyThere(const QString &path)
{
    return PreviewText::tr("\"%1\" is already there. Choose another name, or replace it with --overwrite.")
        .arg(path);
}

/// Why the path gets no picture; empty: nothing is in the way.
QString obstacle(const QString &path, const KeptFiles &photos, bool overwrites)
{
    if (isForeignName(path))
        return foreignNameText(path);
    const KeptFiles::Earlier earlier = photos.at(path);
    if (earlier == KeptFiles::Earlier::Kept)
        return PreviewText::tr("\"%1\" is one of the photos, which are never replaced. Choose another name.")
            .arg(path);
    return earlier == KeptFiles::Earlier::Other && !overwrites ? alreadyThere(path) : QString();
}

/// The file of each sheet. A photo with a sheet of its own has the number that it has on the command line,
/// whatever becomes of the others.
QStringList pathsOf(const SheetPlan &plan, const OpenedArrangement &opened, const QString &first)
{
    const bool isSingle = opened.arrangement.layout.kind == SheetLayout::Kind::Single;
    const qsizetype count = isSingle ? opened.count : plan.sheets().size();
    const QStringList all = picturePaths(first, count);
    if (!isSingle)
        return all;
    QStringList paths;
    for (const LaidSheet &sheet : plan.sheets())
        paths += all.at(opened.numbers.at(sheet.photos.constFirst().item));
    return paths;
}

Result<QImage, PhotoFault> pictureOf(const PagePictureRequest &request)
{
    const QImage picture = pagePicture(request, longestSide);
    if (!picture.isNull())
        return picture;
    for (const SheetPhoto &laid : request.sheet.photos) {
        if (auto damage = laid.photo.damage())
            return *damage;
    }
    return request.sheet.photos.constFirst().photo.broken(QStringLiteral("no pixels"));
}

/// Returns a sentence on failure; empty on success.
QString save(const QImage &picture, const QString &path, bool overwrites)
{
    const auto sentence = [&](const Failure<OutputFault> &failure) {
        if (failure.reason == OutputFault::NameTaken && !overwrites)
            return alreadyThere(path);
        if (failure.reason == OutputFault::NameTooLong)
            return PreviewText::tr("The name \"%1\" is too long. Choose a shorter one.").arg(path);
        return failure.text;
    };
    const QFileInfo info(path);
    auto files = AtomicFiles::open(info.path());
    if (!files)
        return sentence(files.failure());
    const auto device = files->add(info.fileName());
    if (!device)
        return sentence(device.failure());
    const bool isWhole = picture.save(*device, "PNG");
    if (const auto failure = files->writeFailure())
        return sentence(*failure);
    if (!isWhole)
        return outputFailure(ENOMEM, path).text;
    const auto written =
        files->commit(overwrites ? AtomicFiles::Earlier::Replaced : AtomicFiles::Earlier::Kept);
    return written ? QString() : sentence(written.failure());
}

} // namespace

int savePreviews(const CommandLine &commandLine, Console &console)
{
    const auto fail = [&console](const QString &sentence) {
        console.complain(sentence);
        return exitFailed;
    };
    auto opened = openedArrangement(commandLine);
    if (!opened)
        return fail(opened.failure().text);
    const auto requested = openRequestedSession(commandLine);
    if (!requested)
        return fail(requested.failure().text);
    const auto job = jobOfRequested(*requested, console);
    if (!job)
        return fail(job.failure().text);
    DialogSession &session = *requested->session;
    useStyle(commandLine, requested->style, opened->arrangement);
    if (session.printer().isRaw)
        opened->arrangement = opened->arrangement.unplaced();
    const SheetPlan plan = opened->arrangement.plan(job->page);
    if (plan.failure())
        return fail(plan.failure()->text);
    const QStringList paths = pathsOf(plan, *opened, *commandLine.preview);
    const KeptFiles photos(opened->arrangement.paths() + commandLine.photos);
    for (const QString &path : paths) {
        if (const QString why = obstacle(path, photos, commandLine.overwrite); !why.isEmpty())
            return fail(why);
    }

    int status = exitDone;
    for (const Failure<PhotoFault> &failure : std::as_const(opened->failures))
        status = fail(failure.text);
    for (qsizetype i = 0; i < paths.size(); ++i) {
        const PagePictureRequest request = {opened->arrangement.sheet(plan.sheets().at(i)), job->page,
                                            session.adjustment().value_or(PictureAdjustment()),
                                            session.dotsPerInch()};
        const auto picture = pictureOf(request);
        if (!picture) {
            status = fail(picture.failure().text);
            continue;
        }
        if (const QString why = save(*picture, paths.at(i), commandLine.overwrite); !why.isEmpty())
            return fail(why);
        console.writeLine(PreviewText::tr("Preview of %1: %2").arg(request.sheet.name, paths.at(i)));
    }
    return status;
}

} // namespace printdialog
