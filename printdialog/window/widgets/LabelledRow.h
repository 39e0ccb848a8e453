// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QString>

#include <initializer_list>

class QHBoxLayout;
class QWidget;

namespace printdialog {

/// A row of controls with a label before them, which names the first one. The label belongs to the parent.
QHBoxLayout *labelledRow(const QString &text, std::initializer_list<QWidget *> controls, QWidget *parent);

} // namespace printdialog
