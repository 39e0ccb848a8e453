// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PanelDriver.h"

#include "BuiltPanel.h"
#include "LVCorvelLaminationPDE.h"
#include "LVCorvelMainPDE.h"
#include "LVSharpnessCorvelPDE.h"
#include "RadioMatrix.h"

#include <QtGui/QClipboard>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>

namespace {

/// The panel of mixedControls.ui.
class MixedPanel : public BuiltPanel
{
public:
    MixedPanel()
    {
        form = text("mixedControls");
        keys = PanelTable::mixed().keys;
    }
};

} // namespace

PanelDriver::PanelDriver(const PanelTable &table, Mode mode)
    : table_(table)
    , harness_(mode, table.ppd())
{
    harness_.printer.description = QUrl(text("file:///the.ppd"));
    harness_.printer.data = table.printersPpd;
}

void PanelDriver::open()
{
    if (table_.kind == PanelTable::Color)
        open<LVCorvelMainPDE>();
    else if (table_.kind == PanelTable::Sharpness)
        open<LVSharpnessCorvelPDE>();
    else if (table_.kind == PanelTable::Lamination)
        open<LVCorvelLaminationPDE>();
    else
        open<MixedPanel>();
}

void PanelDriver::mount()
{
    QWidget *view = panel_->panelView();
    QVERIFY(view);
    harness_.view = view;
    // Not in a layout, which would undo what a panel does to its own size.
    view->setParent(&harness_.window);
    view->resize(view->size().expandedTo(view->sizeHint()));
    view->show();
    harness_.window.resize(view->width(), view->height() + 40);
    harness_.printButton->move(0, view->height() + 8);
    harness_.window.show();
    QVERIFY(QTest::qWaitForWindowActive(&harness_.window));
    harness_.printButton->setFocus();
    for (const FormControl &form : table_.controls) {
        widgets_.insert(form.tag, harness_.control(form.tag));
        QVERIFY(widgets_.value(form.tag));
        if (table_.setsSliders && form.kind == FormControl::Slider) {
            harness_.slider(form.tag)->setProperty("decimals", form.decimals);
            harness_.slider(form.tag)->setRange(form.minimum, form.maximum);
        }
    }
    places_ = {view->geometry(), widgets_.value(16)->geometry(), widgets_.value(1)->geometry()};
}

void PanelDriver::take(const Step &step)
{
    harness_.feedback->beeps = 0;
    harness_.feedback->alerts.clear();
    harness_.log.clear();
    if (harness_.constraints)
        harness_.constraints->offers.clear();
    if (step.tag == 0)
        tell(step);
    else if (QWidget *control = widgets_.value(step.tag); control->isEnabled() && !control->isHidden())
        act(control, step);
}

void PanelDriver::act(QWidget *control, const Step &step)
{
    if (auto *button = qobject_cast<QAbstractButton *>(control)) {
        click(button, step.detail != 0);
        return;
    }
    if (auto *matrix = qobject_cast<pdekit::RadioMatrix *>(control)) {
        for (QAbstractButton *cell : matrix->cells()) {
            if (pdekit::RadioMatrix::cellTag(cell) == step.detail)
                click(cell, false);
        }
        return;
    }
    control->setFocus();
    if (step.act == Step::TypeKey || step.act == Step::EraseKey)
        QTest::keyClick(control, Qt::Key_End);
    if (step.act == Step::TypeOver || step.act == Step::PasteText)
        QTest::keySequence(control, QKeySequence::SelectAll);
    if (step.act == Step::PasteText) {
        QGuiApplication::clipboard()->setText(step.choice);
        QTest::keySequence(control, QKeySequence::Paste);
    } else if (step.choice.isEmpty())
        QTest::keyClick(control, step.act == Step::EraseKey ? Qt::Key_Backspace : Qt::Key(step.detail));
    else
        QTest::keyClicks(control, step.choice);
}

void PanelDriver::click(QAbstractButton *button, bool withMouse)
{
    button->setFocus();
    const QPoint spot(8, button->height() / 2);
    if (withMouse && button->visibleRegion().contains(spot))
        QTest::mouseClick(button, Qt::LeftButton, {}, spot);
    else
        QTest::keyClick(button, Qt::Key_Space);
}

void PanelDriver::tell(const Step &step)
{
    FakeSession &session = harness_.session;
    const auto choice = step.choice.isEmpty() ? std::nullopt : std::optional(step.choice);
    switch (step.act) {
    case Step::LeaveField:
        harness_.printButton->setFocus();
        break;
    case Step::TellChange:
        panel_->PPDOptionKeyValueDidChangePpdChoice(step.key, choice);
        break;
    case Step::MarkChoice:
        harness_.mark(step.key, step.choice);
        break;
    case Step::Refuse:
        if (harness_.constraints && harness_.constraints->refused.removeAll(step.key) == 0)
            harness_.constraints->refused << step.key;
        break;
    case Step::SetTicket:
        if (choice)
            session.ticket.options.insert(step.key, *choice);
        else
            session.ticket.options.remove(step.key);
        break;
    case Step::BreakTicket:
        session.ticketStatus = step.detail == 1 ? -50 : pdekit::noErr;
        session.ticket.status = step.detail == 2 ? -50 : pdekit::noErr;
        session.ticket.hasDictionary = step.detail != 3;
        break;
    case Step::StoreBound:
        QVERIFY(QMetaObject::invokeMethod(panel_.get(), "setValueForBoundControlWithKey",
                                          Q_ARG(QString, step.choice), Q_ARG(QString, step.key)));
        break;
    case Step::Restore:
        QVERIFY(panel_->restoreValuesAndReturnError(nullptr));
        break;
    case Step::Save:
        QVERIFY(panel_->saveValuesAndReturnError(nullptr));
        break;
    default:
        QVERIFY(panel_->shouldHide());
        panel_->willShow();
    }
}

ControlSight PanelDriver::look(const FormControl &form) const
{
    const QWidget *control = widgets_.value(form.tag);
    ControlSight sight;
    if (const auto *slider = qobject_cast<const QSlider *>(control))
        sight.value = QString::number(double(slider->value()) / std::pow(10.0, form.decimals));
    else if (const auto *field = qobject_cast<const QLineEdit *>(control))
        sight.value = field->text();
    else if (const auto *label = qobject_cast<const QLabel *>(control))
        sight.value = label->text();
    else if (const auto *popUp = qobject_cast<const QComboBox *>(control))
        sight.value = popUp->currentText();
    else if (const auto *box = qobject_cast<const QCheckBox *>(control))
        sight.value = QString::number(box->checkState() == Qt::PartiallyChecked ? -1 : int(box->isChecked()));
    else if (const auto *matrix = qobject_cast<const pdekit::RadioMatrix *>(control))
        sight.value = QString::number(pdekit::RadioMatrix::cellTag(matrix->selectedCell()));
    sight.toolTip = control->toolTip();
    sight.tag = pdekit::tag(control);
    sight.enabled = control->isEnabled();
    sight.hidden = control->isHidden();
    return sight;
}

Sight PanelDriver::sight() const
{
    Sight sight;
    for (const FormControl &form : table_.controls)
        addControl(sight, form, look(form));
    addEntries(sight, text("choice"), choices_());
    for (const PpdOption &option : table_.options)
        sight.insert(text("mark ") + option.key, harness_.marked(option.key));
    addEntries(sight, text("print settings"), harness_.session.ticket.options);
    addEntries(sight, text("summary"), panel_->summaryInfo().value_or(Sight()));
    addNotes(sight, harness_.feedback->beeps,
             harness_.constraints ? harness_.constraints->offers : QStringList(), harness_.feedback->alerts,
             harness_.log);
    if (table_.kind != PanelTable::Lamination)
        return sight;
    for (const char *key : {"Quality", "Overcoat", "MatteValue", "qual"})
        sight.insert(text("bound ") + text(key), panel_->property(key).toString());
    const int moved = places_.at(1).y() - widgets_.value(16)->y();
    sight.insert(text("moved"), QString::number(moved / 100));
    const QRect view = places_.at(0);
    const QSize size(view.width(), std::max(0, view.height() - moved));
    const QList<QRect> expected = {QRect(view.topLeft(), size), places_.at(1).translated(0, -moved),
                                   places_.at(2)};
    if (expected != QList<QRect>{harness_.view->geometry(), widgets_.value(16)->geometry(),
                                 widgets_.value(1)->geometry()})
        sight.insert(text("places"), text("odd"));
    return sight;
}
