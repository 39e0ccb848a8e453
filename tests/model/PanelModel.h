// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Step.h"

#include <functional>
#include <vector>

/// All that can be seen of a panel after a step: a name and its value.
using Sight = QMap<QString, QString>;

/// How a control shows and lets act.
struct ControlSight
{
    /// A slider's number, a field's or label's text, a pop-up's choice, a box's or cell's number.
    QString value;
    QString toolTip;
    int tag = 0;
    bool enabled = true;
    bool hidden = false;
};

/// The rules of the panels, once more and in the plainest way: no widgets, no libcups. What a panel does
/// after a step must look like what the model does.
class PanelModel
{
public:
    using Text = std::optional<QString>;

    /// `localized` is the bundle's strings table.
    PanelModel(PanelTable table, bool constraintMode, std::function<QString(const QString &)> localized);

    /// What the user hears, and what the print system is asked, is reported for the last step only.
    void take(const Step &step);
    Sight sight() const;

private:
    /// Its value is as it is shown only when it is looked at.
    struct Control : ControlSight
    {
        FormControl form;
        int number = 0; ///< a slider's position, a pop-up's index, a box's state, a radio group's cell
        QString text = QStringLiteral("0");
    };

    // The form.
    Control *find(int tag);
    Control *partner(const Control &control);
    bool canAct(const Control &control) const;
    QString shown(const Control &control) const;
    void setString(Control &control, const QString &value) const;
    void setEnabled(Control &control, bool enabled);
    QString boundValue(int tag) const;
    bool isMatte() const { return boundValue(2) == QLatin1String("Matte"); }

    // What the user does.
    void act(Control &control, const Step &step);
    void focus(int tag);
    void typed(Control &field, const QString &text);
    int slid(const Control &slider, int key) const;
    void endEditing(Control &field);

    // The road of a choice.
    void changePrinterSetting(Control &sender);
    Text newChoice(const Control &sender) const;
    Text newSharpnessChoice(const Control &sender) const;
    void mark(const Text &choice, const Text &key, Control *sender);
    bool validate(const QString &choice, const Control *sender);
    void reject(const Text &key, Control *sender);
    bool offer(const QString &key, const QString &choice);
    void update(Control *control, const Text &value);
    void updateUI();
    void enableByToggle(const Control &box);
    void setDefaults();

    // What the dialog does.
    void tell(const Step &step);
    void markInPpd(const QString &key, const QString &choice);
    void storeBound(const QString &key, const QString &choice);
    void restore();
    void save();
    void show();
    void retire();
    Sight summary() const;
    Text recorded(const Text &key) const;

    PanelTable table_;
    bool constraintMode_;
    std::function<QString(const QString &)> localized_;
    std::vector<Control> controls_;
    int edited_ = 0; ///< the field in which the user is typing
    int shows_ = 0;

    QMap<QString, QString> choices_;
    QMap<QString, QString> marks_;
    QMap<QString, QString> ticket_;
    int ticketFault_ = 0;
    QStringList refused_;

    int beeps_ = 0;
    QStringList offers_;
    QStringList alerts_;
    QStringList log_;
};

/// The names under which both sides report what they see.
void addControl(Sight &sight, const FormControl &form, const ControlSight &control);
template <class Map>
void addEntries(Sight &sight, const QString &name, const Map &entries)
{
    for (auto entry = entries.cbegin(); entry != entries.cend(); ++entry)
        sight.insert(name + QLatin1Char(' ') + entry.key(), entry.value());
}
void addNotes(Sight &sight, int beeps, const QStringList &offers, const QStringList &alerts,
              const QStringList &log);
/// What parts the two; empty when nothing does.
QString firstDifference(const Sight &expected, const Sight &actual);
