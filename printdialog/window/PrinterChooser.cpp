// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PrinterChooser.h"

#include "QueueFinder.h"

namespace printdialog {

namespace {

QString label(const Queue &queue)
{
    if (queue.info.isEmpty() || queue.info == queue.id())
        return queue.id();
    return queue.isBuiltIn ? queue.info : PrinterChooser::tr("%1 (%2)").arg(queue.info, queue.id());
}

} // namespace

PrinterChooser::PrinterChooser(QWidget *parent)
    : QComboBox(parent)
    , finder_(new QueueFinder(this))
{
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(24);
    const Queue builtIn = Queue::builtIn();
    addItem(label(builtIn), QVariant::fromValue(builtIn));
    connect(this, &QComboBox::activated, this, [this](int index) {
        isSettled_ = true;
        wasChosenByUser_ = true;
        Q_EMIT printerChosen(itemData(index).value<Queue>());
    });
    connect(finder_, &QueueFinder::queueFound, this, &PrinterChooser::take);
    connect(finder_, &QueueFinder::queueRemoved, this, &PrinterChooser::remove);
    connect(finder_, &QueueFinder::finished, this, &PrinterChooser::endSearch);
}

void PrinterChooser::await(const QString &id)
{
    setPlaceholderText(id);
    setCurrentIndex(-1);
}

void PrinterChooser::search(const std::optional<QString> &wanted)
{
    wanted_ = wanted;
    isSettled_ = wanted == Queue::builtIn().id();
    finder_->start();
}

Queue PrinterChooser::current() const
{
    return currentData().value<Queue>();
}

int PrinterChooser::indexOf(const QString &id) const
{
    for (int i = 0; i < count(); ++i) {
        if (itemData(i).value<Queue>().id() == id)
            return i;
    }
    return -1;
}

void PrinterChooser::take(const Queue &queue)
{
    const int known = indexOf(queue.id());
    if (known >= 0) {
        setItemText(known, label(queue));
        setItemData(known, QVariant::fromValue(queue));
        return;
    }
    addItem(label(queue), QVariant::fromValue(queue));
    if (!isSettled_ && (wanted_ ? queue.id() == *wanted_ : queue.isDefault))
        choose(count() - 1);
}

void PrinterChooser::choose(int index)
{
    isSettled_ = true;
    setCurrentIndex(index);
    Q_EMIT printerChosen(current());
}

void PrinterChooser::remove(const QString &id)
{
    const int index = indexOf(id);
    if (index < 0)
        return;
    const bool wasCurrent = index == currentIndex();
    if (wasCurrent)
        choose(0);
    removeItem(index);
    if (wasCurrent)
        Q_EMIT currentRemoved(tr("The printer \"%1\" is no longer there. Choose another one.").arg(id));
}

void PrinterChooser::endSearch()
{
    if (wanted_ && !isSettled_) {
        if (currentIndex() < 0)
            choose(0);
        Q_EMIT searchFailed(
            tr("There is no printer \"%1\". Choose another one, or see --list-printers for those that "
               "there are.")
                .arg(*wanted_));
    }
    isSettled_ = true;
}

} // namespace printdialog
