// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtWidgets/QWidget>

class QLabel;
class QToolButton;

namespace printdialog {

class ChoiceEditor;
class OptionPage;

/// One option of the page: its name, its controls, and a button that puts it back to the printer's default,
/// which is there while the choice differs from it.
class OptionRow : public QWidget
{
    Q_OBJECT

public:
    /// @param tag of the row's first control
    OptionRow(OptionPage &page, const QString &key, int tag);

    /// The number of the row's tags.
    int controls() const;
    void showChoice();
    void setLabelWidth(int width);
    /// Whether the option's name, its keyword or the text of one of its choices has the text in it.
    bool matches(const QString &text) const;

private:
    void putBack();

    OptionPage &page_;
    QString key_;
    QLabel *label_;
    ChoiceEditor *editor_;
    QToolButton *reset_;
};

} // namespace printdialog
