// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QString>

class QAbstractSlider;
class QLabel;
class QLineEdit;
class QWidget;

namespace pdekit {

class Bundle;

/// What makes a text field easier to use that stands beside a slider and shows its number. A child of the
/// field.
///
/// The decimal separator of the field's locale becomes the point, in which a choice is written, as it is
/// typed or pasted; thousands separators stay. The range, in the field's notation, is the field's accessible
/// description and stands in a label. When a number that is typed is out of it, and the receiver of the edit
/// puts the text back, a note at the field says the range, and a screen reader says it at once; it goes with
/// the next edit and when the field is left.
///
/// Its texts are the entries "pdekitRange" and "pdekitOutOfRange" of the bundle's strings table, with the
/// range's ends as %1 and %2; English where there are none.
class NumberField : public QObject
{
    Q_OBJECT

public:
    /// Attaches one to each field in the view whose dynamic property `numberOf` names a slider in it. A label
    /// whose property `rangeOf` names the slider is to show the range. Called before anybody else listens to
    /// the fields.
    static void attachIn(QWidget *view, const Bundle &bundle);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    NumberField(QWidget *view, QLineEdit *field, QAbstractSlider *slider, QLabel *range,
                const Bundle &bundle);
    void showRange();
    void noteEdit(const QString &text);
    void noteChange(const QString &text);
    bool isOutOfRange(const QString &text) const;
    void showNote();
    void hideNote();
    QString withRange(QString text) const;

    QWidget *view_; ///< that holds them all
    QLineEdit *field_;
    QAbstractSlider *slider_;
    QPointer<QLabel> range_;
    QPointer<QLabel> note_; ///< the view's; made when it is first needed
    QString rangeText_;
    QString noteText_;
    QString typed_; ///< while those who listen deal with it; null otherwise
};

} // namespace pdekit
