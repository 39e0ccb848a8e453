// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "RequestedArrangement.h"

namespace printdialog {

namespace {

/// Photos that are there several times are opened once.
class PhotoOpener
{
public:
    Result<Photo, PhotoFault> open(const QString &path)
    {
        const auto known = photos_.constFind(path);
        if (known != photos_.constEnd())
            return *known;
        auto photo = Photo::open(path);
        if (photo)
            photos_.insert(path, *photo);
        return photo;
    }

private:
    QHash<QString, Photo> photos_;
};

Failure<std::monostate> sentence(const QString &text, const QString &detail)
{
    return {{}, text, detail};
}

} // namespace

Result<OpenedArrangement, std::monostate> openedArrangement(const CommandLine &commandLine)
{
    PrintList list;
    if (commandLine.hasPrintList()) {
        auto loaded = PrintList::load(commandLine.photos.constFirst());
        if (!loaded)
            return sentence(loaded.failure().text, loaded.failure().detail);
        list = *std::move(loaded);
    } else {
        const ArrangementStyle wanted = commandLine.style.over({});
        list.layout = wanted.layout;
        for (const QString &path : commandLine.photos)
            list.photos += PrintList::Entry{path, wanted.placement};
    }
    OpenedArrangement opened{{{}, list.layout}, {}, list.photos.size(), {}};
    PhotoOpener opener;
    for (qsizetype i = 0; i < list.photos.size(); ++i) {
        const PrintList::Entry &entry = list.photos.at(i);
        const auto photo = opener.open(entry.path);
        if (!photo) {
            opened.failures += photo.failure();
            continue;
        }
        opened.arrangement.photos += PlacedPhoto{*photo, entry.placement, !commandLine.checks, entry.copies};
        opened.numbers += i;
    }
    return opened;
}

Result<Arrangement, std::monostate> requestedArrangement(const CommandLine &commandLine)
{
    auto opened = openedArrangement(commandLine);
    if (!opened)
        return opened.failure();
    if (!opened->failures.isEmpty())
        return sentence(opened->failures.constFirst().text, opened->failures.constFirst().detail);
    return std::move(opened->arrangement);
}

void useStyle(const CommandLine &commandLine, const ArrangementStyle &style, Arrangement &arrangement)
{
    if (!commandLine.hasPrintList())
        arrangement.setStyle(commandLine.style.over(style));
}

} // namespace printdialog
