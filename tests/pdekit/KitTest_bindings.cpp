// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "Bindings.h"
#include "KitTest.h"

#include <QtWidgets/QApplication>

#include <functional>
#include <memory>

namespace {

/// The owner of bound controls; `told` holds the changes of its values, as they come.
class Owner : public pdekit::KeyValueObject
{
    Q_OBJECT
    Q_PROPERTY(QString first READ first WRITE setFirst)
    Q_PROPERTY(int second READ second WRITE setSecond)
    Q_PROPERTY(bool flag READ flag WRITE setFlag)

public:
    QString first() const { return first_; }
    void setFirst(const QString &value)
    {
        change("first", [&] { first_ = value; });
    }
    int second() const { return second_; }
    void setSecond(int value)
    {
        change("second", [&] { second_ = value; });
    }
    bool flag() const { return flag_; }
    void setFlag(bool value)
    {
        change("flag", [&] { flag_ = value; });
    }

    std::optional<QString> valueOfBoundControl(QWidget *control) override
    {
        const auto *matrix = qobject_cast<pdekit::RadioMatrix *>(control);
        return matrix ? QString::number(pdekit::RadioMatrix::cellTag(matrix->selectedCell()))
                      : KeyValueObject::valueOfBoundControl(control);
    }
    void showValueInBoundControl(QWidget *control, const QString &value) override
    {
        if (auto *matrix = qobject_cast<pdekit::RadioMatrix *>(control))
            matrix->selectCellWithTag(value.toInt());
        else
            KeyValueObject::showValueInBoundControl(control, value);
    }

    QStringList told;

private:
    void change(const char *key, const std::function<void()> &set)
    {
        willChangeValueForKey(text(key));
        set();
        told << text(key) + u'=' + property(key).toString();
        didChangeValueForKey(text(key));
    }

    QString first_;
    int second_ = 0;
    bool flag_ = false;
};

enum class Kind { Slider, Field, PopUp, Box, Radio };

/// A control that shows `before`; `act` is a user's action that makes it show `after`.
struct Bound
{
    std::unique_ptr<QWidget> control;
    std::function<void()> act;
    QString before;
    QString after;
};

template <class Control>
Bound bound(const char *before, const char *after, Qt::Key key)
{
    auto control = std::make_unique<Control>();
    QWidget *widget = control.get();
    return {std::move(control), [widget, key] { QTest::keyClick(widget, key); }, text(before), text(after)};
}

Bound boundControl(Kind kind)
{
    if (kind == Kind::Slider)
        return bound<QSlider>("0", "1", Qt::Key_Right);
    if (kind == Kind::Field)
        return bound<QLineEdit>("", "7", Qt::Key_7);
    if (kind == Kind::Box)
        return bound<QCheckBox>("0", "1", Qt::Key_Space);
    if (kind == Kind::PopUp) {
        Bound made = bound<QComboBox>("a", "b", Qt::Key_Down);
        static_cast<QComboBox *>(made.control.get())->addItems({text("a"), text("b")});
        return made;
    }
    Bound made = bound<pdekit::RadioMatrix>("4", "5", Qt::Key_0);
    auto *matrix = static_cast<pdekit::RadioMatrix *>(made.control.get());
    for (const int tag : {4, 5})
        (new QRadioButton(matrix))->setProperty("cellTag", tag);
    QApplication::sendPostedEvents();
    matrix->selectCellWithTag(4);
    made.act = [matrix] {
        QTest::mouseClick(matrix->cells().constLast(), Qt::LeftButton, {}, {8, 8});
    };
    return made;
}

} // namespace

Q_DECLARE_METATYPE(Kind)

void KitTest::boundValueFollowsTheControl_data()
{
    QTest::addColumn<Kind>("kind");
    QTest::newRow("slider") << Kind::Slider;
    QTest::newRow("text field") << Kind::Field;
    QTest::newRow("pop-up") << Kind::PopUp;
    QTest::newRow("check box") << Kind::Box;
    QTest::newRow("radio group") << Kind::Radio;
}

void KitTest::boundValueFollowsTheControl()
{
    QFETCH(Kind, kind);
    const Bound made = boundControl(kind);
    QWidget *control = made.control.get();
    Owner owner;
    int actions = 0;
    bool refuses = true;
    const auto action = [&] {
        ++actions;
        if (refuses)
            owner.showValueInBoundControl(control, made.before);
    };
    control->setProperty("valueBinding", text("first"));
    pdekit::connectAction(control, &owner, action);
    pdekit::bindControls(control, &owner);
    if (auto *field = qobject_cast<QLineEdit *>(control)) // fields are wired when the form has been loaded
        connect(pdekit::TextFieldEvents::attach(field), &pdekit::TextFieldEvents::textDidChange, action);
    QCOMPARE(owner.first(), made.before);
    owner.told.clear();

    made.act();
    QCOMPARE(actions, 1);
    QCOMPARE(owner.valueOfBoundControl(control), made.before);
    QCOMPARE(owner.told, QStringList()); // what was refused was never seen
    refuses = false;
    made.act();
    QCOMPARE(actions, 2);
    QCOMPARE(owner.told, QStringList(text("first=") + made.after));
    // A program's changes are followed both ways, and are not actions.
    owner.showValueInBoundControl(control, made.before);
    QCOMPARE(owner.first(), made.before);
    owner.setFirst(made.after);
    QCOMPARE(owner.valueOfBoundControl(control), made.after);
    QCOMPARE(owner.told.size(), 3);
    QCOMPARE(actions, 2);
}

void KitTest::boundControlFollowsTheValue()
{
    QWidget form;
    auto *slider = new QSlider(&form);
    slider->setRange(-25, 25);
    slider->setValue(3);
    slider->setProperty("valueBinding", text(" second  first "));
    auto *field = new QLineEdit(&form);
    auto *box = new QWidget(&form);
    auto *inBox = new QLineEdit(box);
    box->setProperty("enabledBinding", text("flag"));
    Owner owner;
    pdekit::bindControls(&form, &owner);
    QCOMPARE(owner.told, QStringList({text("second=3"), text("first=3")}));
    slider->setValue(5);
    QCOMPARE(owner.told.mid(2), QStringList({text("second=5"), text("first=5")}));
    owner.setSecond(-7); // takes the other value along
    QCOMPARE(slider->value(), -7);
    QCOMPARE(owner.first(), text("-7"));

    QVERIFY(!box->isEnabled() && field->isEnabled());
    owner.setFlag(true);
    QVERIFY(inBox->isEnabled());
    inBox->setEnabled(false); // by other means
    owner.setFlag(false);
    owner.setFlag(true);
    QVERIFY(box->isEnabled() && !inBox->isEnabled());
}

#include "KitTest_bindings.moc"
