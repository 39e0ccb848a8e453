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

/// Makes a text field that shows a slider's number easier to use. A child of the field.
///
/// When text is typed or pasted, the locale's decimal separator is replaced by a point, as choices are
/// written; thousands separators stay. The range, in the field's notation, is the field's accessible
/// description and is shown in a label. When a typed number is out of range and the receiver of the edit
/// reverts the text, a note at the field shows the range, and a screen reader reads it at once. The note
/// disappears with the next edit and when the field is left.
///
/// Its texts are the entries "pdekitRange" and "pdekitOutOfRange" of the bundle's strings table, with the
/// range's ends as %1 and %2; English if they are missing.
class NumberField : public QObject
{
    Q_OBJECT

public:
    /// Attaches one to each field in the view whose dynamic property `numberOf` names a slider in it. A label
    /// whose property `rangeOf` names the slider shows the range. Call it before other code connects to the
    /// fields.
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

    QWidget *view_; ///< the panel's view
    QLineEdit *field_;
    QAbstractSlider *slider_;
    QPointer<QLabel> range_;
    QPointer<QLabel> note_; ///< a child of the view; made when first needed
    QString rangeText_;
    QString noteText_;
    QString typed_; ///< the edit that the receivers are handling; null otherwise
};

} // namespace pdekit
