// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PpdDocument.h"
#include "PlainText.h"
#include "PpdDocument_p.h"

#include <algorithm>

namespace printdialog {

namespace {

bool isPlainFileName(const QString &name)
{
    const auto plain = [](QChar character) {
        return character.isPrint() && character != u'\\';
    };
    return !name.isEmpty() && name.size() <= 255 && !name.startsWith(u'.') && plainText(name, 255) == name &&
           std::all_of(name.begin(), name.end(), plain);
}

} // namespace

PpdDocument::PpdDocument(PpdDocument &&) noexcept = default;
PpdDocument &PpdDocument::operator=(PpdDocument &&) noexcept = default;
PpdDocument::~PpdDocument() = default;

void PpdDocument::RecordCloser::operator()(ppd_file_s *record) const
{
    ppdClose(record);
}

QString PpdDocument::optionText(const QString &key) const
{
    const auto option = options_.constFind(key);
    return option == options_.cend() ? QString() : (*option)->text;
}

QList<Choice> PpdDocument::choices(const QString &key) const
{
    const auto option = options_.constFind(key);
    return option == options_.cend() ? QList<Choice>() : (*option)->choices;
}

const Choice *PpdDocument::choice(const QString &key, const QString &keyword) const
{
    const auto option = options_.constFind(key);
    if (option == options_.cend())
        return nullptr;
    const qsizetype index = (*option)->indexOf.value(keyword.toLower(), -1);
    if (index < 0 || (*option)->choices.at(index).keyword != keyword)
        return nullptr;
    return &(*option)->choices.at(index);
}

std::optional<QString> PpdDocument::defaultChoice(const QString &key) const
{
    const auto option = options_.constFind(key);
    if (option == options_.cend())
        return std::nullopt;
    const qsizetype index =
        (*option)->indexOf.value(QString::fromUtf8((*option)->record->defchoice).toLower(), -1);
    if (index < 0)
        return std::nullopt;
    return (*option)->choices.at(index).keyword;
}

OptionKind PpdDocument::kind(const QString &key) const
{
    const auto option = options_.constFind(key);
    return option == options_.cend() ? OptionKind::PickOne : (*option)->kind;
}

QStringList PpdDocument::requestedBundles() const
{
    QStringList names;
    for (const PpdAttribute &attribute : attributes("APDialogExtension")) {
        const QString name = attribute.value.sliced(attribute.value.lastIndexOf(u'/') + 1);
        if (isPlainFileName(name) && !names.contains(name))
            names += name;
    }
    return names;
}

QList<PpdAttribute> PpdDocument::attributes(const char *keyword) const
{
    QList<PpdAttribute> all;
    for (const ppd_attr_t *attribute = ppdFindAttr(record_.get(), keyword, nullptr); attribute;
         attribute = ppdFindNextAttr(record_.get(), keyword, nullptr))
        all.append({QString::fromUtf8(attribute->spec), QString::fromUtf8(attribute->value)});
    return all;
}

} // namespace printdialog
