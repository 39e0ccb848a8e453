// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PrinterChooser.h"

#include "PresetName.h"
#include "PresetStore.h"
#include "QueueFinder.h"

namespace printdialog {

namespace {

QString label(const Queue &queue)
{
    const QString preset = PresetName::ofInstance(queue.instance);
    const QString id = Destination(queue.name, preset).id();
    if (queue.info.isEmpty() || queue.info == queue.id())
        return id;
    return queue.isBuiltIn ? queue.info : PrinterChooser::tr("%1 (%2)").arg(queue.info, id);
}

} // namespace

PrinterChooser::PrinterChooser(QWidget *parent)
    : QComboBox(parent)
    , finder_(new QueueFinder(this))
{
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(24);
    add(Queue::builtIn());
    connect(this, &QComboBox::activated, this, [this](int index) {
        isSettled_ = true;
        wasChosenByUser_ = true;
        Q_EMIT printerChosen(itemData(index).value<Queue>());
    });
    connect(finder_, &QueueFinder::queueFound, this, &PrinterChooser::take);
    connect(finder_, &QueueFinder::queueRemoved, this, &PrinterChooser::remove);
    connect(finder_, &QueueFinder::failed, this, [this](const QString &text) { failure_ = text; });
    connect(finder_, &QueueFinder::finished, this, &PrinterChooser::endSearch);
}

void PrinterChooser::await(const QString &id)
{
    setPlaceholderText(id);
    setCurrentIndex(-1);
}

void PrinterChooser::recall(const Queue &queue, bool wasChosen)
{
    add(queue);
    unconfirmed_ = queue.id();
    if (wasChosen)
        keepCurrent();
    setCurrentIndex(count() - 1);
}

void PrinterChooser::search(const std::optional<Destination> &wanted)
{
    wanted_ = wanted;
    if (wanted && (wanted == Destination::builtIn() || wanted == current().destination()))
        isSettled_ = true;
    finder_->start();
}

void PrinterChooser::keepCurrent()
{
    if (currentIndex() >= 0)
        isSettled_ = true;
}

void PrinterChooser::chooseBuiltIn()
{
    wasChosenByUser_ = true;
    choose(0);
}

Queue PrinterChooser::current() const
{
    return currentData().value<Queue>();
}

bool PrinterChooser::isConfirmed() const
{
    return currentIndex() >= 0 && current().id() != unconfirmed_;
}

void PrinterChooser::take(const Queue &queue)
{
    const QString id = queue.id();
    const int known = indexOf(id);
    // A queue's instances are its presets, chosen as such.
    if (known < 0 && !queue.instance.isEmpty() && !queue.isDefault && queue.destination() != wanted_)
        return;
    if (known >= 0)
        update(known, queue);
    else
        add(queue);
    const int index = indexOf(id);
    const bool isCurrent = index == currentIndex();
    if (!isSettled_ && (wanted_ ? queue.destination() == *wanted_ : queue.isDefault)) {
        isSettled_ = true;
        if (!isCurrent)
            choose(index);
    }
    if (isCurrent)
        Q_EMIT currentUpdated(queue);
}

void PrinterChooser::add(const Queue &queue)
{
    indexes_.insert(queue.id(), count());
    addItem(label(queue), QVariant::fromValue(queue));
}

void PrinterChooser::update(int index, const Queue &queue)
{
    if (unconfirmed_ == queue.id())
        unconfirmed_.reset();
    setItemText(index, label(queue));
    setItemData(index, QVariant::fromValue(queue));
}

void PrinterChooser::choose(int index)
{
    isSettled_ = true;
    setCurrentIndex(index);
    Q_EMIT printerChosen(current());
}

void PrinterChooser::drop(int index)
{
    indexes_.remove(itemData(index).value<Queue>().id());
    removeItem(index);
    if (index == count())
        return;
    for (int &later : indexes_) {
        if (later > index)
            --later;
    }
}

void PrinterChooser::remove(const QString &id)
{
    const int index = indexOf(id);
    if (index < 0)
        return;
    const bool wasCurrent = index == currentIndex();
    if (wasCurrent)
        choose(0);
    drop(index);
    if (wasCurrent)
        Q_EMIT currentRemoved(tr("The printer \"%1\" is no longer there. Choose another one.").arg(id));
}

/// Says which of the two there is not: the printer, or its preset.
QString PrinterChooser::missing(const Destination &destination) const
{
    const auto &[queue, preset] = destination;
    if (!preset.isEmpty() && indexOf(queue) >= 0) {
        const auto presets = PresetStore(queue).presets();
        return presets ? PresetStore::missing(queue, preset, *presets) : presets.failure().text;
    }
    return tr("There is no printer \"%1\". Choose another one.").arg(destination.id());
}

// The finder goes on looking: once there is a server again it may have the queue.
void PrinterChooser::endSearch()
{
    const bool isAway = unconfirmed_ && current().id() == *unconfirmed_;
    if (unconfirmed_ && failure_.isEmpty())
        forgetUnconfirmed();
    if (wanted_ && !isConfirmed())
        Q_EMIT searchFailed(failure_.isEmpty()
                                ? missing(*wanted_)
                                : tr("The printer \"%1\" is not there. %2").arg(wanted_->id(), failure_));
    else if (!failure_.isEmpty() && (isAway || !(isSettled_ || finder_->isWithoutPrintServer())))
        Q_EMIT searchFailed(failure_);
    isSettled_ = isSettled_ || currentIndex() >= 0;
}

// The server does not have the recalled queue any more.
void PrinterChooser::forgetUnconfirmed()
{
    const QString id = *std::exchange(unconfirmed_, std::nullopt);
    if (wanted_ != Destination(id) || current().id() != id) {
        remove(id);
        return;
    }
    await(id);
    drop(indexOf(id));
    isSettled_ = false;
}

} // namespace printdialog
