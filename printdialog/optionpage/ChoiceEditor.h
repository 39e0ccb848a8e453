// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QHash>
#include <QtWidgets/QVBoxLayout>

#include <optional>

class QCheckBox;
class QComboBox;

namespace printdialog {

class CustomFields;
class OptionPage;

/// The controls of one option: a check box, a list of choices with the fields of a custom one, or a check box
/// for each of several choices. They carry tags, as the controls of a plug-in's form do.
///
/// A layout, so that the controls stand beside their label in one widget, as screen readers expect.
class ChoiceEditor : public QVBoxLayout
{
    Q_OBJECT

public:
    /// @param tag of the first control; the others follow
    /// @param row the controls' parent
    ChoiceEditor(OptionPage &page, const QString &key, int tag, QWidget *row);

    /// Makes the controls show the choice; nothing for none.
    void showChoice(const std::optional<QString> &choice);
    /// The control that a label stands for.
    QWidget *buddy() const { return buddy_; }
    /// Whether the control shows the option's name itself.
    bool isLabelled() const { return check_ != nullptr; }
    /// The number of controls, each with a tag.
    int controls() const { return controls_; }

private:
    void makeCheckBox();
    void makeList();
    void makeMany();
    void chooseFromList();
    void chooseMany(QCheckBox *box);
    void showMany(const QString &choice);
    void take(QWidget *control);

    OptionPage &page_;
    QString key_;
    QWidget *row_;
    int tag_;
    int controls_ = 0;
    QWidget *buddy_ = nullptr;
    QCheckBox *check_ = nullptr;
    QString excluded_; // the choice that the equipment rules out
    QComboBox *list_ = nullptr;
    CustomFields *custom_ = nullptr;
    QList<QCheckBox *> many_;
};

} // namespace printdialog
