// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PrintPositionWindow.h"

#include "PlainText.h"
#include "PositionTestPage.h"
#include "PrintPositions.h"

#include <QtCore/QSignalBlocker>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QDoubleSpinBox>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>
#include <cstdlib>

namespace printdialog {

namespace {

constexpr double tenthsPerMillimeter = 10;
constexpr double farthestMeasured = 60; // millimeters

QLabel *wrapped(const QString &text, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    label->setWordWrap(true);
    label->setTextFormat(Qt::PlainText);
    return label;
}

} // namespace

PrintPositionWindow::PrintPositionWindow(QWidget *parent)
    : QDialog(parent)
    , heading_(wrapped({}, this))
    , right_(addField("moveRight", -PrintPositions::farthest / tenthsPerMillimeter,
                      PrintPositions::farthest / tenthsPerMillimeter, 0))
    , down_(addField("moveDown", -PrintPositions::farthest / tenthsPerMillimeter,
                     PrintPositions::farthest / tenthsPerMillimeter, 0))
    , test_(new QPushButton(tr("Print &Test Page"), this))
    , fromLeft_(addField("fromLeft", 0, farthestMeasured, positionLine))
    , fromTop_(addField("fromTop", 0, farthestMeasured, positionLine))
    , correct_(new QPushButton(tr("&Correct"), this))
    , failure_(wrapped({}, this))
{
    setWindowTitle(tr("Print Position"));
    test_->setObjectName(QStringLiteral("printTestPage"));
    correct_->setObjectName(QStringLiteral("correctPosition"));
    for (QPushButton *button : {test_, correct_})
        button->setAutoDefault(false);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    buttons->button(QDialogButtonBox::Close)->setAutoDefault(false); // Return must not drop what was measured

    auto *moves = new QFormLayout;
    moves->addRow(tr("To the &right:"), right_);
    moves->addRow(tr("&Down:"), down_);
    auto *measured = new QFormLayout;
    measured->addRow(tr("From the &left edge:"), fromLeft_);
    measured->addRow(tr("From the to&p edge:"), fromTop_);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(heading_);
    layout->addLayout(moves);
    layout->addWidget(
        wrapped(tr("The test page has a line %1 mm from the left edge and one %1 mm from the top "
                   "edge. Print it, and measure them:")
                    .arg(locale().toString(positionLine, 'f', 1)),
                this));
    layout->addWidget(test_, 0, Qt::AlignLeft);
    layout->addLayout(measured);
    layout->addWidget(correct_, 0, Qt::AlignLeft);
    layout->addWidget(failure_);
    layout->addWidget(buttons);
    failure_->hide();

    for (QDoubleSpinBox *field : {right_, down_})
        connect(field, &QDoubleSpinBox::valueChanged, this, &PrintPositionWindow::apply);
    for (const QDoubleSpinBox *field : {fromLeft_, fromTop_})
        connect(field->findChild<QLineEdit *>(), &QLineEdit::returnPressed, this,
                &PrintPositionWindow::correct);
    connect(test_, &QPushButton::clicked, this, &PrintPositionWindow::testPageWanted);
    connect(correct_, &QPushButton::clicked, this, &PrintPositionWindow::correct);
}

QDoubleSpinBox *PrintPositionWindow::addField(const char *name, double least, double most, double value)
{
    auto *field = new QDoubleSpinBox(this);
    field->setObjectName(QLatin1String(name));
    field->setRange(least, most);
    field->setDecimals(1);
    field->setSingleStep(1 / tenthsPerMillimeter);
    field->setValue(value);
    field->setSuffix(tr(" mm"));
    return field;
}

void PrintPositionWindow::setPaper(const QString &printer, const QString &printerText, const QString &paper,
                                   const QString &paperText)
{
    if (printer == printer_ && paper == paper_)
        return;
    printer_ = printer;
    paper_ = paper;
    heading_->setText(tr("Everything printed on \"%1\" with the paper size \"%2\" is moved:")
                          .arg(plainText(printerText, shownTextLimit), plainText(paperText, shownTextLimit)));
    showFailure({});
    showPosition(PrintPositions::load(printer, paper));
}

void PrintPositionWindow::setWhyNoTest(const QString &reason)
{
    test_->setEnabled(reason.isEmpty());
    test_->setToolTip(reason.toHtmlEscaped());
}

void PrintPositionWindow::showPosition(const QPoint &tenths)
{
    const QSignalBlocker rightBlocker(right_);
    const QSignalBlocker downBlocker(down_);
    right_->setValue(tenths.x() / tenthsPerMillimeter);
    down_->setValue(tenths.y() / tenthsPerMillimeter);
}

void PrintPositionWindow::apply()
{
    const QPoint tenths(qRound(right_->value() * tenthsPerMillimeter),
                        qRound(down_->value() * tenthsPerMillimeter));
    const auto failure = PrintPositions::save(printer_, paper_, tenths);
    showFailure(failure ? failure->text : QString());
}

void PrintPositionWindow::showFailure(const QString &sentence)
{
    failure_->setText(sentence);
    failure_->setVisible(!sentence.isEmpty());
}

/// A line that is too far to the left was printed too far to the left.
void PrintPositionWindow::correct()
{
    const QPoint tenths(qRound((right_->value() + positionLine - fromLeft_->value()) * tenthsPerMillimeter),
                        qRound((down_->value() + positionLine - fromTop_->value()) * tenthsPerMillimeter));
    if (std::max(std::abs(tenths.x()), std::abs(tenths.y())) > PrintPositions::farthest)
        return showFailure(tr("Prints can be moved by %1 mm at most. Check which paper is loaded, and the "
                              "paper size, then print the test page again.")
                               .arg(locale().toString(PrintPositions::farthest / tenthsPerMillimeter)));
    showPosition(tenths);
    apply();
    for (QDoubleSpinBox *field : {fromLeft_, fromTop_})
        field->setValue(positionLine);
}

} // namespace printdialog
