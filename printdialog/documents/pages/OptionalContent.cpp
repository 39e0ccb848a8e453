// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "OptionalContent.h"

#include <set>

namespace printdialog {

namespace {

/// The groups of an array but for those of another, in the other document.
void copyGroups(QPDFObjectHandle from, QPDFObjectHandle to, QPDF &other,
                QPDFObjectHandle without = QPDFObjectHandle::newNull())
{
    if (!from.isArray())
        return;
    std::set<QPDFObjGen> excluded;
    if (without.isArray()) {
        for (const QPDFObjectHandle &group : without.getArrayAsVector())
            excluded.insert(group.getObjGen());
    }
    for (QPDFObjectHandle group : from.getArrayAsVector()) {
        if (group.isIndirect() && group.isDictionaryOfType("/OCG") && !excluded.contains(group.getObjGen()))
            to.appendItem(other.copyForeignObject(group));
    }
}

QPDFObjectHandle arrayIn(QPDFObjectHandle dictionary, const std::string &key)
{
    if (!dictionary.getKey(key).isArray())
        dictionary.replaceKey(key, QPDFObjectHandle::newArray());
    return dictionary.getKey(key);
}

} // namespace

void addOptionalContent(QPDF &from, QPDF &to)
{
    QPDFObjectHandle source = from.getRoot().getKey("/OCProperties");
    if (!source.isDictionary() || !source.getKey("/OCGs").isArray())
        return;
    QPDFObjectHandle root = to.getRoot();
    if (!root.hasKey("/OCProperties"))
        root.replaceKey("/OCProperties",
                        QPDFObjectHandle::parse("<< /OCGs [] /D << /ON [] /OFF [] /AS [] >> >>"));
    QPDFObjectHandle made = root.getKey("/OCProperties");
    QPDFObjectHandle configuration = source.getKey("/D");
    QPDFObjectHandle madeConfiguration = made.getKey("/D");
    copyGroups(source.getKey("/OCGs"), made.getKey("/OCGs"), to);
    if (!configuration.isDictionary())
        return;
    // Where all are off at first, that is said of each of them, except of those that are switched on: for a
    // group in both arrays, off counts.
    const QPDFObjectHandle on = configuration.getKey("/ON");
    if (configuration.getKey("/BaseState").isNameAndEquals("/OFF"))
        copyGroups(source.getKey("/OCGs"), arrayIn(madeConfiguration, "/OFF"), to, on);
    else
        copyGroups(configuration.getKey("/OFF"), arrayIn(madeConfiguration, "/OFF"), to);
    copyGroups(on, arrayIn(madeConfiguration, "/ON"), to);
    if (!configuration.getKey("/AS").isArray())
        return;
    for (QPDFObjectHandle usage : configuration.getKey("/AS").getArrayAsVector()) {
        if (!usage.isDictionary() || !usage.getKey("/Event").isNameAndEquals("/Print"))
            continue;
        QPDFObjectHandle copied = QPDFObjectHandle::parse("<< /Event /Print /OCGs [] >>");
        copyGroups(usage.getKey("/OCGs"), copied.getKey("/OCGs"), to);
        if (usage.getKey("/Category").isArray())
            copied.replaceKey("/Category", QPDFObjectHandle::parse("[ /Print ]"));
        madeConfiguration.getKey("/AS").appendItem(copied);
    }
}

} // namespace printdialog
