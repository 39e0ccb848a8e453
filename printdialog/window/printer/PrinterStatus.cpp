// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PrinterStatus.h"

#include "PlainText.h"
#include "StateText.h"

namespace printdialog {

PrinterStatus::PrinterStatus(QWidget *parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    hide();
}

void PrinterStatus::show(const Queue &queue)
{
    QStringList lines = {stateText(queue)};
    if (const QString supplies = suppliesText(queue); !supplies.isEmpty())
        lines.append(supplies);
    if (queue.isClass && !queue.members.isEmpty())
        lines.append(tr("One of %1; its options are those of the first.")
                         .arg(queue.members.join(QLatin1String(", "))));
    for (QString &line : lines)
        line = plainText(line, shownTextLimit);
    setText(lines.join(u'\n'));
    // Nobody asks a printer that is known by its address only for its state.
    const bool isKnown = queue.state != Queue::State::Unknown || !queue.destination().isAddress();
    setVisible(!queue.isBuiltIn && isKnown);
}

void PrinterStatus::showUnconfirmed()
{
    setText(tr("The print server is being asked for this printer."));
    setVisible(true);
}

} // namespace printdialog
