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

Result<Arrangement, std::monostate> requestedArrangement(const CommandLine &commandLine)
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
    Arrangement arrangement{{}, list.layout};
    PhotoOpener opener;
    for (const PrintList::Entry &entry : std::as_const(list.photos)) {
        const auto photo = opener.open(entry.path);
        if (!photo)
            return sentence(photo.failure().text, photo.failure().detail);
        arrangement.photos += PlacedPhoto{*photo, entry.placement, !commandLine.checks, entry.copies};
    }
    return arrangement;
}

void useStyle(const CommandLine &commandLine, const ArrangementStyle &style, Arrangement &arrangement)
{
    if (!commandLine.hasPrintList())
        arrangement.setStyle(commandLine.style.over(style));
}

} // namespace printdialog
