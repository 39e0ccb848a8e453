// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "UsedChoices.h"

#include "ChoiceExplanation.h"
#include "JobTemplate.h"
#include "PlainText.h"
#include "PresetStore.h"
#include "PrintJob.h"
#include "PrinterDefaults.h"
#include "StoredChoices.h"

#include <QtCore/QCoreApplication>

namespace printdialog {

UsedChoices useChoices(DialogSession &session, QMap<QString, QString> choices, DialogSession::Unnamed unnamed)
{
    constexpr qsizetype longestNumber = 40;
    UsedChoices used;
    used.style = ArrangementStyle::takeFrom(choices);
    const QString text = choices.take(QLatin1String(copiesOption));
    bool isNumber = false;
    const int copies = text.toInt(&isNumber);
    if (isNumber && copies >= 1 && copies <= mostCopies)
        used.copies = copies;
    else if (!text.isNull())
        used.leftOut += QCoreApplication::translate("UsedChoices", "\"%1\" is not a number of copies.")
                            .arg(plainText(text, longestNumber));
    if (session.printer().isRaw)
        choices.removeIf([&session](const auto &choice) {
            return choice.key() == session.options().pageSizeKey() || !JobTemplate::isJobOption(choice.key());
        });
    if (choices.isEmpty() && unnamed == DialogSession::Unnamed::Kept)
        return used;
    const auto rulings = session.restoreChoices(choices, unnamed);
    for (const Ruling &ruling : rulings)
        used.leftOut += ChoiceExplanation(session.options()).refusal(ruling);
    return used;
}

UsedChoices usePreset(DialogSession &session, const Preset &preset)
{
    return useChoices(session, choicesOfLp(session, preset.options), DialogSession::Unnamed::Default);
}

UsedChoices useDefaults(DialogSession &session)
{
    return useChoices(session, printerDefaults(session), DialogSession::Unnamed::Default);
}

} // namespace printdialog
