// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "RequestedArrangement.h"

#include "FileOpener.h"
#include "PlainText.h"
#include "TerminalLogin.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFileInfo>

namespace printdialog {

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(RequestedArrangement)
};

/// Asks on the terminal for the password of a document that has one.
Result<QList<PlacedPhoto>, PhotoFault> openAsking(FileOpener &opener, const PrintList::Entry &entry)
{
    auto opened = opener.open(entry);
    if (!opened && opened.failure().reason == PhotoFault::NeedsPassword && !canAskOnTerminal())
        return Failure<PhotoFault>{
            PhotoFault::NeedsPassword,
            Text::tr(
                "\"%1\" is protected by a password, and there is no terminal to ask for it on. Start the "
                "program in a terminal, or in its window.")
                .arg(plainText(QFileInfo(entry.path).fileName(), shownTextLimit)),
            {}};
    bool isRefused = false;
    while (!opened && opened.failure().reason == PhotoFault::NeedsPassword) {
        const auto password = askPasswordOnTerminal(QFileInfo(entry.path).fileName(), isRefused);
        if (!password)
            return opened;
        isRefused = true;
        opener.unlock(entry.path, *password);
        opened = opener.open(entry);
    }
    return opened;
}

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
        list.pages = commandLine.pages;
        for (const QString &path : commandLine.photos)
            list.photos += PrintList::Entry{path, wanted.placement};
    }
    OpenedArrangement opened{{{}, list.layout, list.pages}, {}, 0, {}};
    FileOpener opener;
    for (const PrintList::Entry &entry : std::as_const(list.photos)) {
        const auto photos = openAsking(opener, entry);
        if (!photos) {
            opened.failures += photos.failure();
            ++opened.count;
            continue;
        }
        for (PlacedPhoto placed : *photos) {
            placed.isAccepted = !commandLine.checks;
            opened.arrangement.photos += placed;
            opened.numbers += opened.count++;
        }
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
    PageChoice asked = commandLine.pages;
    asked.isReversed = false; // which photos can be as well
    if (asked != PageChoice() && opened->arrangement.pageCount() == 0)
        return sentence(
            Text::tr("--pages and --page-set are for documents, and there is none. Leave them out."), {});
    return std::move(opened->arrangement);
}

void useStyle(const CommandLine &commandLine, const ArrangementStyle &style, Arrangement &arrangement)
{
    if (!commandLine.hasPrintList())
        arrangement.setStyle(commandLine.style.over(style));
}

} // namespace printdialog
