// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0
//
// compare-ppds [--trial]: reads PPDs from standard input, each after a line "BYTES NAME", and prints a line
// of JSON for each: what libcups and this system find in it where they differ, and how long each took. Run by
// compare_ppds.py.

#include "PpdView.h"

#include <QtCore/QCoreApplication>

#include <chrono>
#include <cstring>
#include <iostream>

using namespace corpus;

namespace {

std::string quoted(const std::string &text)
{
    std::string json = "\"";
    for (const char byte : text) {
        if (byte == '"' || byte == '\\')
            json += '\\';
        json += byte >= 0 && byte < ' ' ? ' ' : byte;
    }
    return json + '"';
}

std::string listed(const std::vector<std::string> &texts)
{
    std::string json;
    for (const std::string &text : texts)
        json += (json.empty() ? "" : ",") + quoted(text);
    return "[" + json + "]";
}

std::string joined(const auto &texts)
{
    std::string all;
    for (const std::string &text : texts)
        all += (all.empty() ? "" : " ") + text;
    return all;
}

std::string differing(const std::string &what, const std::string &theirs, const std::string &ours)
{
    return what + ": libcups \"" + theirs + "\", here \"" + ours + "\"";
}

void compareOption(std::vector<std::string> &found, const std::string &key, const OptionView &theirs,
                   const OptionView &ours, bool comparesConflicts)
{
    if (theirs.choices != ours.choices)
        found.push_back(differing("choices of " + key, joined(theirs.choices), joined(ours.choices)));
    if (theirs.defaultChoice != ours.defaultChoice)
        found.push_back(differing("default of " + key, theirs.defaultChoice, ours.defaultChoice));
    if (theirs.marked != ours.marked)
        found.push_back(differing("marked for " + key, theirs.marked, ours.marked));
    if (comparesConflicts && theirs.refused != ours.refused)
        found.push_back(differing("conflicts of " + key, joined(theirs.refused), joined(ours.refused)));
}

std::vector<std::string> differences(const PpdView &theirs, const PpdView &ours)
{
    std::vector<std::string> found;
    if (theirs.order != ours.order)
        found.push_back(differing("options", joined(theirs.order), joined(ours.order)));
    if (theirs.defaultsConflict != ours.defaultsConflict)
        found.push_back(differing("conflict of defaults", std::to_string(theirs.defaultsConflict),
                                  std::to_string(ours.defaultsConflict)));
    // Where the defaults conflict, libcups counts that against every choice, and this system against none
    // other.
    const bool comparesConflicts = !theirs.defaultsConflict && !ours.defaultsConflict;
    for (const auto &[key, option] : theirs.options) {
        const auto other = ours.options.find(key);
        if (other != ours.options.end())
            compareOption(found, key, option, other->second, comparesConflicts);
    }
    return found;
}

double seconds(auto work)
{
    const auto begun = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begun).count();
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const bool withTrial = argc > 1 && std::strcmp(argv[1], "--trial") == 0;
    size_t size = 0;
    std::string name;
    while (std::cin >> size && std::getline(std::cin >> std::ws, name)) {
        std::string ppd(size, '\0');
        if (!std::cin.read(ppd.data(), static_cast<std::streamsize>(size)))
            return 1;
        Opening theirs;
        Opening ours;
        const double theirSeconds = seconds([&] { theirs = libcupsView(ppd); });
        const double ourSeconds = seconds([&] { ours = ourView(ppd, name, withTrial); });
        const bool areBoth = theirs.view && ours.view;
        std::cout << "{\"name\":" << quoted(name) << ",\"libcups\":" << quoted(theirs.failure)
                  << ",\"here\":" << quoted(ours.failure)
                  << ",\"conflicting\":" << (theirs.view && theirs.view->defaultsConflict ? "true" : "false")
                  << ",\"differences\":"
                  << listed(areBoth ? differences(*theirs.view, *ours.view) : std::vector<std::string>())
                  << ",\"remarks\":" << listed(ours.view ? ours.view->remarks : std::vector<std::string>())
                  << ",\"seconds\":[" << theirSeconds << ',' << ourSeconds << "]}" << std::endl;
    }
    return 0;
}
