// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtWidgets/QWidget>

class QLabel;
class QToolButton;

namespace printdialog {

class PreviewWidget;

/// Which of a job's sheets the preview shows, with buttons for the others. Hidden for a single sheet.
class SheetBar : public QWidget
{
    Q_OBJECT

public:
    explicit SheetBar(PreviewWidget *preview, QWidget *parent = nullptr);

private:
    QToolButton *addButton(const char *name, Qt::ArrowType arrow, const QString &text, const QString &key);
    void show();

    PreviewWidget *preview_;
    QToolButton *previous_;
    QLabel *label_;
    QToolButton *next_;
};

} // namespace printdialog
