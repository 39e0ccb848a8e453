// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "OptionPageView.h"

#include "OptionPage.h"
#include "OptionRow.h"

#include <QtCore/QElapsedTimer>
#include <QtGui/QWheelEvent>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>

namespace printdialog {

namespace {

constexpr qsizetype fewOptions = 20; // without a field to search them
constexpr int firstRows = 24;        // fill the largest view that is common
constexpr int idleMilliseconds = 15; // each time, all that is there is laid out
constexpr int widestLabelPart = 45;  // percent of the view's usual width
constexpr int usualCharacters = 60;
constexpr int seenRows = 9;
constexpr qsizetype mostRowsInSection = 30;

} // namespace

OptionPageView::OptionPageView(OptionPage &page)
    : page_(page)
    , search_(new QLineEdit(this))
    , area_(new QScrollArea(this))
    , nothing_(new QLabel(tr("No option has this text in it."), this))
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    search_->setPlaceholderText(tr("Search the options"));
    search_->setAccessibleName(tr("Search the options"));
    search_->setClearButtonEnabled(true);
    search_->setObjectName(QStringLiteral("optionSearch"));
    area_->setWidgetResizable(true);
    area_->setFrameShape(QFrame::NoFrame);
    area_->setFocusPolicy(Qt::NoFocus);
    area_->viewport()->setAutoFillBackground(false); // that of the page is seen
    area_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    nothing_->hide();
    layout->addWidget(search_);
    layout->addWidget(nothing_);
    layout->addWidget(area_, 1);
    connect(search_, &QLineEdit::textChanged, this, &OptionPageView::search);
    idle_.setInterval(0);
    connect(&idle_, &QTimer::timeout, this, [this] { makeRows(idleMilliseconds); });
    if (!page.isGrouped())
        return;
    const QList<OptionGroup> groups = page.source().groups();
    for (const OptionGroup &group : groups) {
        for (const QString &key : group.options)
            headingOf_.insert(key, group.text);
    }
}

void OptionPageView::setKeys(const QStringList &keys)
{
    keys_ = keys;
    next_ = 0;
    rows_.clear();
    sections_.clear();
    lastFocus_ = search_;
    list_ = new QWidget;
    column_ = new QVBoxLayout(list_);
    column_->setContentsMargins(0, 0, 0, 0);
    column_->addStretch(1);
    area_->setWidget(list_); // deletes the one before
    list_->setAutoFillBackground(false);
    search_->setVisible(keys.size() > fewOptions);
    search_->clear();
    labelWidth_ = widestLabel();
    for (int i = 0; i < firstRows && !isComplete(); ++i)
        makeRow(keys_.at(next_++));
    updateHeadings();
    if (!isComplete())
        idle_.start();
}

void OptionPageView::makeRows(int milliseconds)
{
    QElapsedTimer time;
    time.start();
    while (!isComplete() && time.elapsed() < milliseconds)
        makeRow(keys_.at(next_++));
    updateHeadings();
    if (isComplete())
        idle_.stop();
}

void OptionPageView::makeRow(const QString &key)
{
    const QString group = headingOf_.value(key);
    if (sections_.isEmpty() || sections_.constLast().group != group ||
        sections_.constLast().rows.size() >= mostRowsInSection)
        addSection(group);
    auto *row = new OptionRow(page_, key, nextTag_);
    nextTag_ += row->controls();
    row->setLabelWidth(labelWidth_);
    sections_.constLast().box->layout()->addWidget(row);
    rows_.insert(key, row);
    sections_.last().rows += row;
    if (const QString text = search_->text().trimmed(); !text.isEmpty())
        row->setVisible(row->matches(text));
    const QList<QComboBox *> lists = row->findChildren<QComboBox *>();
    for (QComboBox *list : lists)
        list->installEventFilter(this);
    linkTabOrder(row);
    Q_EMIT rowMade(row);
}

void OptionPageView::addSection(const QString &group)
{
    auto *box = new QWidget(list_);
    auto *rows = new QVBoxLayout(box);
    rows->setContentsMargins(0, 0, 0, 0);
    column_->insertWidget(column_->count() - 1, box);
    const bool continues = !sections_.isEmpty() && sections_.constLast().group == group;
    sections_.append(Section{box, group, nullptr, {}});
    if (continues || group.isEmpty())
        return;
    auto *heading = new QLabel(group, box);
    heading->setTextFormat(Qt::PlainText);
    QFont font = heading->font();
    font.setPointSizeF(font.pointSizeF() * 1.1);
    font.setBold(true);
    heading->setFont(font);
    heading->setProperty("isHeading", true);
    rows->addWidget(heading);
    sections_.last().heading = heading;
}

/// Rows that are made later would otherwise come last in the window.
void OptionPageView::linkTabOrder(QWidget *row)
{
    const QList<QWidget *> widgets = row->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        if ((widget->focusPolicy() & Qt::TabFocus) == 0 || widget->window() != window())
            continue;
        setTabOrder(lastFocus_, widget);
        lastFocus_ = widget;
    }
}

int OptionPageView::widestLabel() const
{
    const int most = fontMetrics().averageCharWidth() * usualCharacters * widestLabelPart / 100;
    QFont bold = font();
    bold.setBold(true);
    const QFontMetrics metrics(bold);
    int widest = 0;
    for (const QString &key : keys_) {
        if (page_.source().kind(key) != OptionKind::Boolean && widest < most)
            widest = std::max(widest, metrics.horizontalAdvance(page_.source().optionText(key)));
    }
    return std::min(widest + metrics.averageCharWidth(), most);
}

void OptionPageView::showChoice(const QString &key)
{
    if (OptionRow *row = rows_.value(key))
        row->showChoice();
}

QSize OptionPageView::sizeHint() const
{
    const int width = fontMetrics().averageCharWidth() * usualCharacters;
    const int row = QComboBox().sizeHint().height() + column_->spacing();
    const int rows = static_cast<int>(std::min<qsizetype>(keys_.size() + sections_.size(), seenRows));
    return {width, row * rows};
}

// Searching

void OptionPageView::search()
{
    const QString text = search_->text().trimmed();
    for (OptionRow *row : std::as_const(rows_))
        row->setVisible(text.isEmpty() || row->matches(text));
    updateHeadings();
    area_->verticalScrollBar()->setValue(0);
}

/// A heading without a visible option is hidden, and so is the only one.
void OptionPageView::updateHeadings()
{
    bool isEmpty = true;
    const bool isOnly = isComplete() && std::ranges::all_of(sections_, [this](const Section &section) {
                            return section.group == sections_.constFirst().group;
                        });
    for (const Section &section : std::as_const(sections_)) {
        const bool hasRows =
            std::ranges::any_of(section.rows, [](const OptionRow *row) { return !row->isHidden(); });
        isEmpty = isEmpty && !hasRows;
        section.box->setVisible(hasRows);
        if (section.heading)
            section.heading->setVisible(hasRows && !isOnly);
    }
    nothing_->setVisible(isEmpty && isComplete());
}

/// The wheel scrolls the page, also over a list that does not have the focus.
bool OptionPageView::eventFilter(QObject *watched, QEvent *event)
{
    const auto *list = qobject_cast<QComboBox *>(watched);
    if (list && event->type() == QEvent::Wheel && !list->hasFocus()) {
        event->ignore();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace printdialog
