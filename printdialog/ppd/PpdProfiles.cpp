// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PpdProfiles.h"

#include "PpdDocument.h"

#include <array>

namespace printdialog {

namespace {

/// The choices that the qualifiers of a line stand for. An option that cannot be chosen may have a fixed
/// value, in the line of its default.
std::array<QString, 3> qualifiers(const PpdDocument &ppd, const ChoiceOfOption &chosen)
{
    const auto valueOf = [&ppd](const QByteArray &keyword) {
        const QList<PpdAttribute> lines = ppd.attributes(keyword.constData());
        return lines.isEmpty() ? QString() : lines.constFirst().value;
    };
    std::array<QString, 3> choices = {QStringLiteral("ColorModel"), QStringLiteral("MediaType"),
                                      QStringLiteral("Resolution")};
    for (std::size_t i = 0; i < choices.size(); ++i) {
        const QString named = valueOf("cupsICCQualifier" + QByteArray::number(static_cast<int>(i + 1)));
        const QString key = named.isEmpty() ? choices.at(i) : named;
        choices.at(i) = chosen(key).value_or(valueOf("Default" + key.toUtf8()));
    }
    return choices;
}

} // namespace

QString profileNamed(const PpdDocument &ppd, const ChoiceOfOption &chosen)
{
    QString best;
    int bestFit = -1;
    const QList<PpdAttribute> lines = ppd.attributes("cupsICCProfile");
    if (lines.isEmpty())
        return best;
    const std::array<QString, 3> choices = qualifiers(ppd, chosen);
    for (const PpdAttribute &line : lines) {
        int fit = 0;
        for (int i = 0; i < 3 && fit >= 0; ++i) {
            const QString qualifier = line.qualifier.section(u'.', i, i == 2 ? -1 : i);
            if (qualifier.isEmpty() || qualifier == u'*')
                continue;
            const bool isChosen =
                qualifier.compare(choices.at(static_cast<std::size_t>(i)), Qt::CaseInsensitive) == 0;
            fit = isChosen ? fit + (4 >> i) : -1;
        }
        if (fit > bestFit) {
            bestFit = fit;
            best = line.value;
        }
    }
    return best;
}

} // namespace printdialog
