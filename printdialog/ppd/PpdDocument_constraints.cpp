// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "CupsPpd.h"
#include "PpdDocument.h"

#include <cups/cups.h>

#include <span>

namespace printdialog {

namespace {

QString withoutAsterisk(const QString &keyword)
{
    return keyword.startsWith(u'*') ? keyword.sliced(1) : keyword;
}

/// Owns the option list that libcups fills in.
class CupsOptions
{
public:
    CupsOptions() = default;
    ~CupsOptions() { cupsFreeOptions(count, options); }
    Q_DISABLE_COPY_MOVE(CupsOptions)

    int count = 0;
    cups_option_t *options = nullptr;
};

} // namespace

QList<ConstraintTerms> PpdDocument::constraints() const
{
    QList<ConstraintTerms> all;
    for (const ppd_const_t &pair : std::span(record_->consts, static_cast<size_t>(record_->num_consts)))
        all += {{withoutAsterisk(QString::fromLatin1(pair.option1)), QString::fromLatin1(pair.choice1)},
                {withoutAsterisk(QString::fromLatin1(pair.option2)), QString::fromLatin1(pair.choice2)}};
    for (const ppd_attr_t *attribute = ppdFindAttr(record_.get(), "cupsUIConstraints", nullptr); attribute;
         attribute = ppdFindNextAttr(record_.get(), "cupsUIConstraints", nullptr)) {
        ConstraintTerms terms;
        const QStringList words =
            QString::fromLatin1(attribute->value).simplified().split(u' ', Qt::SkipEmptyParts);
        for (const QString &word : words) {
            if (word.startsWith(u'*'))
                terms += OptionChoice{word.sliced(1), {}};
            else if (!terms.isEmpty() && terms.constLast().choice.isEmpty())
                terms.last().choice = word;
        }
        all += terms;
    }
    return all;
}

bool PpdDocument::mayConflict(const QString &key, const QString &choice) const
{
    const QStringList keywords = kind(key) == OptionKind::PickMany ? choice.split(u',') : QStringList(choice);
    for (const QString &keyword : keywords) {
        CupsOptions conflicts;
        conflicts.count = cupsGetConflicts(record_.get(), key.toLatin1().constData(),
                                           keyword.toUtf8().constData(), &conflicts.options);
        if (conflicts.count > 0)
            return true;
    }
    return false;
}

QList<OptionChoice> PpdDocument::resolution(const QString &key, const QString &choice) const
{
    CupsOptions changes;
    if (!cupsResolveConflicts(record_.get(), key.toLatin1().constData(), choice.toUtf8().constData(),
                              &changes.count, &changes.options))
        return {};
    QList<OptionChoice> all;
    for (const cups_option_t &option : std::span(changes.options, static_cast<size_t>(changes.count)))
        all += OptionChoice{QString::fromLatin1(option.name), QString::fromLatin1(option.value)};
    return all;
}

} // namespace printdialog
