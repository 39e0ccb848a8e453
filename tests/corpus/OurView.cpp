// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "ChoiceMarker.h"
#include "PpdDocument.h"
#include "PpdView.h"

namespace corpus {

using namespace printdialog;

Opening ourView(const std::string &ppd, const std::string &name, bool withTrial)
{
    const QByteArray bytes = QByteArray::fromStdString(ppd);
    const auto checked = withTrial ? checkPpd(bytes, QString::fromStdString(name))
                                   : trustPpd(bytes, QString::fromStdString(name));
    if (!checked)
        return {std::nullopt, checked.failure().text.toStdString()};
    auto document = PpdDocument::open(*checked);
    if (!document)
        return {std::nullopt, document.failure().text.toStdString()};
    const ChoiceMarker marker(*document);
    PpdView view;
    view.defaultsConflict = marker.firstConflict().has_value();
    const auto noteText = [&view](const QString &text) {
        if (text.contains(QChar::ReplacementCharacter))
            view.remarks.emplace_back("a text has replacement characters");
    };
    for (const QString &key : document->options()) {
        OptionView found;
        noteText(document->optionText(key));
        for (const Choice &choice : document->choices(key)) {
            noteText(choice.text);
            found.choices.push_back(choice.keyword.toStdString());
            if (marker.check(key, choice.keyword).verdict == Verdict::Conflict)
                found.refused.insert(choice.keyword.toStdString());
        }
        found.defaultChoice = document->defaultChoice(key).value_or(QString()).toStdString();
        found.marked = document->markedChoice(key).value_or(QString()).toStdString();
        view.order.push_back(key.toStdString());
        view.options.emplace(key.toStdString(), found);
    }
    for (const QString &note : document->notes())
        view.remarks.push_back(note.toStdString());
    return {view, {}};
}

} // namespace corpus
