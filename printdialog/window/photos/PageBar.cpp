// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PageBar.h"

#include "LabelledRow.h"
#include "TextFieldEvents.h"
#include "WrappingRow.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>

namespace printdialog {

namespace {

constexpr int shortestChoice = 8; // characters of a choice that a narrow window shows
constexpr int fieldCharacters = 12;
constexpr int longestRanges = 1000;

using Which = PageChoice::Which;
using Set = PageChoice::Set;

} // namespace

PageBar::PageBar(QWidget *parent)
    : QWidget(parent)
    , which_(new QComboBox(this))
    , ranges_(new QLineEdit(this))
    , set_(new QComboBox(this))
    , reverse_(new QCheckBox(tr("Reverse order"), this))
{
    which_->setObjectName(QStringLiteral("pages"));
    ranges_->setObjectName(QStringLiteral("pageRanges"));
    ranges_->setAccessibleName(tr("Page ranges"));
    ranges_->setMaxLength(longestRanges);
    ranges_->setPlaceholderText(QStringLiteral("1-3,7,12-"));
    ranges_->setToolTip(tr("Pages and ranges, separated by commas; 12- is page 12 to the last one"));
    ranges_->setAccessibleDescription(ranges_->toolTip());
    ranges_->setMinimumWidth(ranges_->fontMetrics().averageCharWidth() * fieldCharacters);
    set_->setObjectName(QStringLiteral("pageSet"));
    set_->setAccessibleName(tr("Odd and even pages"));
    set_->addItem(tr("Odd and even"), static_cast<int>(Set::All));
    set_->addItem(tr("Odd only", "pages"), static_cast<int>(Set::Odd));
    set_->addItem(tr("Even only", "pages"), static_cast<int>(Set::Even));
    for (QComboBox *box : {which_, set_}) {
        box->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        box->setMinimumContentsLength(shortestChoice);
    }
    reverse_->setObjectName(QStringLiteral("reversePages"));
    reverse_->setToolTip(tr("Print the last sheet first"));
    reverse_->setAccessibleDescription(reverse_->toolTip());
    auto *row = new WrappingRow(this);
    row->addItem(labelledRow(tr("Pages:"), {which_, ranges_}, this));
    row->addWidget(set_);
    row->addWidget(reverse_);
    setTabOrder(which_, ranges_);
    setTabOrder(ranges_, set_);
    setTabOrder(set_, reverse_);

    connect(which_, &QComboBox::activated, this, &PageBar::chooseWhich);
    auto *events = pdekit::TextFieldEvents::attach(ranges_);
    connect(events, &pdekit::TextFieldEvents::textDidChange, this, &PageBar::applyTyped);
    connect(events, &pdekit::TextFieldEvents::textDidEndEditing, this, &PageBar::applyAtEnd);
    connect(set_, &QComboBox::activated, this, [this] {
        PageChoice choice = choice_;
        choice.set = static_cast<Set>(set_->currentData().toInt());
        choose(choice, set_);
    });
    connect(reverse_, &QCheckBox::clicked, this, [this](bool isReversed) {
        PageChoice choice = choice_;
        choice.isReversed = isReversed;
        choose(choice, reverse_);
    });
    fill();
}

void PageBar::fill()
{
    which_->clear();
    const auto add = [this](const QString &text, Which which) {
        which_->addItem(text, static_cast<int>(which));
    };
    add(tr("All", "pages"), Which::All);
    if (hasCurrent_)
        add(tr("Current page"), Which::Current);
    if (hasSelection_)
        add(tr("Selection", "pages"), Which::Selected);
    add(tr("Ranges", "of pages"), Which::Ranges);
    show();
}

void PageBar::setOffered(bool hasCurrent, bool hasSelection)
{
    if (hasCurrent == hasCurrent_ && hasSelection == hasSelection_)
        return;
    hasCurrent_ = hasCurrent;
    hasSelection_ = hasSelection;
    fill();
}

void PageBar::setChoice(const PageChoice &choice)
{
    if (choice.which != choice_.which || choice.ranges != choice_.ranges)
        isTyping_ = false;
    choice_ = choice;
    show();
}

void PageBar::show()
{
    const Which which = isTyping_ ? Which::Ranges : choice_.which;
    which_->setCurrentIndex(which_->findData(static_cast<int>(which)));
    ranges_->setVisible(which == Which::Ranges);
    if (!isTyping_ && PageRanges::fromText(ranges_->text()) != choice_.ranges)
        ranges_->setText(choice_.ranges.toText());
    set_->setCurrentIndex(set_->findData(static_cast<int>(choice_.set)));
    reverse_->setChecked(choice_.isReversed);
}

void PageBar::choose(const PageChoice &choice, QWidget *control)
{
    choice_ = choice;
    show();
    Q_EMIT pagesChosen(choice, control);
}

/// All pages are printed until a range is typed.
void PageBar::chooseWhich()
{
    PageChoice choice = choice_;
    choice.which = static_cast<Which>(which_->currentData().toInt());
    isTyping_ = choice.which == Which::Ranges && choice.ranges.isEmpty();
    if (choice.which == Which::Current)
        choice.ranges = PageRanges::of({{currentPage_, currentPage_}}).value_or(PageRanges());
    if (isTyping_)
        choice.which = Which::All;
    choose(choice, which_);
    if (isTyping_ || choice.which == Which::Ranges) {
        ranges_->setFocus(Qt::OtherFocusReason);
        ranges_->selectAll();
    }
}

void PageBar::applyTyped()
{
    const auto ranges = PageRanges::fromText(ranges_->text());
    isTyping_ = !ranges;
    if (!ranges)
        return;
    PageChoice choice = choice_;
    choice.which = Which::Ranges;
    choice.ranges = *ranges;
    if (choice != choice_)
        choose(choice, ranges_);
}

/// An empty field is not complained about before printing: the user may be about to choose something else.
void PageBar::applyAtEnd()
{
    if (!ranges_->text().trimmed().isEmpty())
        finish();
}

// The text stays: a click on Print also leaves the field, and must not print what the text did not say.
bool PageBar::finish()
{
    const QString text = ranges_->text().trimmed();
    if (!isTyping_ || !ranges_->isVisibleTo(window()))
        return true;
    Q_EMIT refused(text.isEmpty() ? tr("Type which pages are printed, such as 1-3,7,12-, or choose All.")
                                  : tr("\"%1\" does not say which pages. Type page numbers from 1 on and "
                                       "ranges, such as 1-3,7,12-.")
                                        .arg(text),
                   ranges_);
    return false;
}

QList<QWidget *> PageBar::fields() const
{
    return {ranges_};
}

} // namespace printdialog
