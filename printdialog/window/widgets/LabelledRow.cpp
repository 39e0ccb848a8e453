// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "LabelledRow.h"

#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>

namespace printdialog {

QHBoxLayout *labelledRow(const QString &text, std::initializer_list<QWidget *> controls, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    label->setBuddy(*controls.begin());
    auto *row = new QHBoxLayout;
    row->addWidget(label);
    for (QWidget *control : controls)
        row->addWidget(control, control->sizePolicy().expandingDirections() & Qt::Horizontal ? 1 : 0);
    return row;
}

} // namespace printdialog
