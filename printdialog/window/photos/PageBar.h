// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PageChoice.h"

#include <QtWidgets/QWidget>

class QCheckBox;
class QComboBox;
class QLineEdit;

namespace printdialog {

/// The controls for which pages of documents are printed, and in which order. Needs no document.
class PageBar : public QWidget
{
    Q_OBJECT

public:
    explicit PageBar(QWidget *parent = nullptr);

    /// Shows the choice; no signal is emitted. What is being typed stays as long as it stands for the same.
    void setChoice(const PageChoice &choice);
    const PageChoice &choice() const { return choice_; }
    /// Whether the current page, and what is selected in the program that prints, can be chosen.
    void setOffered(bool hasCurrent, bool hasSelection);
    /// The number of the page that is shown, from 1 on, which Current then stands for; 0: only the program
    /// that prints knows it.
    void setCurrentPage(int number) { currentPage_ = number; }
    /// Call before printing. False when the field's text stands for no pages; refused() then says so.
    bool finish();
    /// Fields in which more than one event belongs to an act of the user's.
    QList<QWidget *> fields() const;

Q_SIGNALS:
    /// The user has chosen.
    void pagesChosen(const printdialog::PageChoice &choice, QWidget *control);
    /// The field was left, or is to be printed, with a text that stands for no pages: a sentence for people.
    void refused(const QString &text, QLineEdit *field);

private:
    void fill();
    void chooseWhich();
    void applyTyped();
    void applyAtEnd();
    void choose(const PageChoice &choice, QWidget *control);
    void show();

    QComboBox *which_;
    QLineEdit *ranges_;
    QComboBox *set_;
    QCheckBox *reverse_;
    PageChoice choice_;
    bool hasCurrent_ = true;
    bool hasSelection_ = false;
    int currentPage_ = 1;
    bool isTyping_ = false; ///< Ranges are to be typed, and the field's text stands for none yet.
};

} // namespace printdialog
