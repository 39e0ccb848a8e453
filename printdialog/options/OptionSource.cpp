// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "OptionSource.h"

#include "CustomChoice.h"
#include "PlainText.h"

#include <QtCore/QCoreApplication>

#include <algorithm>

namespace printdialog {

OptionSource::~OptionSource() = default;

bool isInstallable(const OptionSource &source, const QString &key)
{
    const QList<OptionGroup> groups = source.groups();
    return std::ranges::any_of(groups, [&key](const OptionGroup &group) {
        return group.isInstallable && group.options.contains(key);
    });
}

QString choiceText(const OptionSource &source, const OptionChoice &choice)
{
    const auto &[key, keyword] = choice;
    if (const Choice *listed = source.choice(key, keyword))
        return listed->text;
    if (source.kind(key) == OptionKind::PickMany) {
        QStringList texts;
        const QStringList keywords = keyword.split(u',');
        for (const QString &each : keywords) {
            const Choice *listed = source.choice(key, each);
            texts += listed ? listed->text : plainText(each);
        }
        return texts.join(QCoreApplication::translate("OptionSource", ", ", "between the parts of a list"));
    }
    if (key == source.pageSizeKey()) {
        if (const auto points = customPagePoints(keyword))
            return pageSizeText(*points);
    }
    if (isCustomChoice(keyword))
        return customText(source.customParameters(key), keyword);
    return plainText(keyword);
}

} // namespace printdialog
