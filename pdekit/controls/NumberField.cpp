// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "NumberField.h"

#include "AlertRole.h"
#include "Bundle.h"
#include "ControlValues.h"
#include "NumericText.h"

#include <QtCore/QEvent>
#include <QtCore/QVariant>
#include <QtGui/QValidator>
#include <QtWidgets/QAbstractSlider>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QToolTip>

#include <algorithm>

namespace pdekit {

namespace {

constexpr int noteMargin = 4; // pixels

/// Accepts every text, but replaces the locale's decimal separator by a point. QLineEdit calls it before it
/// reports an edit, and applies its cursor position.
class DecimalPoint final : public QValidator
{
public:
    explicit DecimalPoint(QLineEdit *field)
        : QValidator(field)
        , field_(field)
    {
    }

    State validate(QString &text, int &cursor) const override
    {
        const QString separator = field_->locale().decimalPoint();
        // A text set by a program is a choice, and is not changed.
        if (separator == QLatin1String(".") || isBeingSet(field_) || !text.contains(separator))
            return Acceptable;
        const QString after = text.mid(cursor).replace(separator, QLatin1String("."));
        const QString before = text.left(cursor).replace(separator, QLatin1String("."));
        text = before + after;
        cursor = static_cast<int>(before.size());
        return Acceptable;
    }

private:
    const QLineEdit *field_;
};

} // namespace

void NumberField::attachIn(QWidget *view, const Bundle &bundle)
{
    const QList<QLineEdit *> fields = view->findChildren<QLineEdit *>();
    const QList<QLabel *> labels = view->findChildren<QLabel *>();
    for (QLineEdit *field : fields) {
        const QString name = field->property("numberOf").toString();
        auto *slider = name.isEmpty() ? nullptr : view->findChild<QAbstractSlider *>(name);
        if (!slider)
            continue;
        const auto label = std::ranges::find(
            labels, name, [](QLabel *each) { return each->property("rangeOf").toString(); });
        new NumberField(view, field, slider, label == labels.end() ? nullptr : *label, bundle);
    }
}

NumberField::NumberField(QWidget *view, QLineEdit *field, QAbstractSlider *slider, QLabel *range,
                         const Bundle &bundle)
    : QObject(field)
    , view_(view)
    , field_(field)
    , slider_(slider)
    , range_(range)
    , rangeText_(bundle.localizedString(QStringLiteral("pdekitRange"), QStringLiteral("%1 to %2")))
    , noteText_(bundle.localizedString(QStringLiteral("pdekitOutOfRange"),
                                       QStringLiteral("Enter a number from %1 to %2.")))
{
    field->setValidator(new DecimalPoint(field));
    field->installEventFilter(this);
    connect(field, &QLineEdit::textEdited, this, &NumberField::noteEdit);
    connect(field, &QLineEdit::textChanged, this, &NumberField::noteChange);
    connect(slider, &QAbstractSlider::rangeChanged, this, &NumberField::showRange);
    showRange();
}

/// Inserts the ends of the range into the text, with the slider's number of decimals.
QString NumberField::withRange(QString text) const
{
    const int decimals = std::max(slider_->property("decimals").toInt(), 0);
    const auto number = [decimals](std::optional<double> value) {
        return QString::number(value.value_or(0.0), 'f', decimals);
    };
    return text.replace(QLatin1String("%1"), number(minValue(slider_)))
        .replace(QLatin1String("%2"), number(maxValue(slider_)));
}

void NumberField::showRange()
{
    const QString range = withRange(rangeText_);
    field_->setAccessibleDescription(range);
    if (range_)
        range_->setText(range);
}

void NumberField::noteEdit(const QString &text)
{
    hideNote();
    typed_ = text;
}

// QLineEdit first emits textEdited, during which the panel may revert the text, and then textChanged.
void NumberField::noteChange(const QString &text)
{
    if (typed_.isNull())
        return;
    if (isBeingSet(field_) && text != typed_ && isOutOfRange(typed_))
        showNote();
    typed_ = QString();
}

bool NumberField::isOutOfRange(const QString &text) const
{
    const double value = leadingDouble(text);
    return value < minValue(slider_).value_or(value) || value > maxValue(slider_).value_or(value);
}

void NumberField::showNote()
{
    if (!note_) {
        note_ = new QLabel(view_);
        note_->setObjectName(QStringLiteral("numberNote"));
        setAlertRole(note_);
        note_->setTextFormat(Qt::PlainText);
        note_->setFrameShape(QFrame::Box);
        note_->setMargin(noteMargin);
        note_->setPalette(QToolTip::palette());
        note_->setForegroundRole(QPalette::ToolTipText);
        note_->setBackgroundRole(QPalette::ToolTipBase);
        note_->setAutoFillBackground(true);
        note_->setAttribute(Qt::WA_TransparentForMouseEvents);
    }
    const QString text = withRange(noteText_);
    note_->setText(text);
    note_->setAccessibleName(text);
    note_->adjustSize();
    // Below the field, or above it if there is no room; never beyond the view's edge.
    const QRect field(field_->mapTo(view_, QPoint()), field_->size());
    const int left = std::min(field.left(), view_->width() - note_->width());
    const bool fitsBelow = field.bottom() + 1 + note_->height() <= view_->height();
    note_->move(std::max(left, 0), fitsBelow ? field.bottom() + 1 : field.top() - note_->height());
    note_->raise();
    note_->show();
    announce(note_);
}

void NumberField::hideNote()
{
    if (note_)
        note_->hide();
}

bool NumberField::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::EnabledChange:
        if (range_)
            range_->setEnabled(field_->isEnabled());
        break;
    case QEvent::FocusOut:
    case QEvent::Hide:
        hideNote();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace pdekit
