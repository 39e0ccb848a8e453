// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "CustomChoice.h"

#include <QtWidgets/QWidget>

class QLineEdit;

namespace printdialog {

class OptionPage;

/// A field for each value of an option's custom choice, with its range and unit. A complete and allowed set
/// of values applies while it is typed. When a field is left with anything else, that is refused. Secret
/// values are shown as dots.
class CustomFields : public QWidget
{
    Q_OBJECT

public:
    CustomFields(OptionPage &page, const QString &key, QWidget *parent);

    const QList<QLineEdit *> &fields() const { return fields_; }
    /// Shows the values of the custom choice; empties the fields for any other.
    void showChoice(const QString &choice);
    /// Applies the values that the fields have; where they are empty, the smallest number. Does nothing while
    /// a text is missing.
    void begin();

Q_SIGNALS:
    /// The fields were left empty.
    void abandoned();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    std::optional<CustomValues> typed() const;
    void apply(QLineEdit *field);
    void applyAtEnd(QLineEdit *field);

    OptionPage &page_;
    QString key_;
    QList<CustomParameter> parameters_;
    QList<QLineEdit *> fields_;
    QStringList shown_; // the fields' texts as the choice has them
};

} // namespace printdialog
