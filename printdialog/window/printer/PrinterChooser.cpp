// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PrinterChooser.h"

#include "PresetName.h"
#include "PresetStore.h"
#include "PrinterFinder.h"
#include "PrinterSearch.h"

#include <QtWidgets/QLineEdit>

namespace printdialog {

namespace {

constexpr int mostWithoutSearch = 12; // printers that a list shows at a glance

QString wordsOf(const Queue &queue, const QString &label)
{
    return QStringList{label, queue.name, queue.info, queue.location, queue.makeAndModel}.join(u' ');
}

QString label(const Queue &queue)
{
    const QString preset = PresetName::ofInstance(queue.instance);
    const QString id = Destination(queue.name, preset).id();
    if (queue.isAnnounced && preset.isEmpty())
        return PrinterChooser::tr("%1 (on the network)").arg(queue.info);
    if (queue.info.isEmpty() || queue.info == queue.id())
        return id;
    return queue.isBuiltIn ? queue.info : PrinterChooser::tr("%1 (%2)").arg(queue.info, id);
}

} // namespace

PrinterChooser::PrinterChooser(QWidget *parent)
    : QComboBox(parent)
    , finder_(new PrinterFinder(this))
{
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(24);
    add(Queue::builtIn());
    connect(this, &QComboBox::activated, this, [this](int index) {
        if (const auto staying = staying_ ? staying_() : std::nullopt) {
            setCurrentIndex(indexOf(*staying));
            return;
        }
        const Queue queue = itemData(index).value<Queue>();
        selection_.chosen(queue.destination());
        Q_EMIT printerChosen(queue);
    });
    connect(finder_, &PrinterFinder::queueFound, this, &PrinterChooser::updateQueue);
    connect(finder_, &PrinterFinder::queueRemoved, this, &PrinterChooser::remove);
    connect(finder_, &PrinterFinder::failed, this, [this](const QString &text) { failure_ = text; });
    connect(finder_, &PrinterFinder::finished, this, &PrinterChooser::endSearch);
}

void PrinterChooser::await(const QString &id)
{
    selection_.awaits();
    setPlaceholderText(id);
    if (isEditable())
        lineEdit()->setPlaceholderText(id);
    setCurrentIndex(-1);
}

void PrinterChooser::recall(const Queue &queue, PrinterSelection::State state)
{
    selection_.recall(queue.destination(), state);
    if (!queue.isBuiltIn)
        add(queue);
    setCurrentIndex(indexOf(queue.id()));
}

void PrinterChooser::search(const std::optional<Destination> &wanted)
{
    selection_.asksFor(wanted);
    QSet<QString> awaited;
    for (const std::optional<Destination> &each : {wanted, selection_.recalled()}) {
        if (each && !each->isBuiltIn() && !each->isAddress())
            awaited.insert(each->queue);
    }
    finder_->start(awaited);
    // No print server lists a printer that is asked directly.
    if (wanted && wanted->isAddress())
        updateQueue(Queue::at(*wanted));
}

void PrinterChooser::chooseBuiltIn()
{
    selection_.chosen(Destination::builtIn());
    choose(0);
}

Queue PrinterChooser::current() const
{
    return currentData().value<Queue>();
}

void PrinterChooser::updateQueue(const Queue &queue)
{
    const QString id = queue.id();
    const int known = indexOf(id);
    // The instances of a queue are its presets; they are chosen there.
    if (known < 0 && !queue.instance.isEmpty() && !queue.isDefault &&
        queue.destination() != selection_.wanted())
        return;
    if (known >= 0)
        update(known, queue);
    else
        add(queue);
    const int index = indexOf(id);
    const bool isCurrent = index == currentIndex();
    if (selection_.found(queue.destination(), queue.isDefault))
        choose(index);
    if (isCurrent)
        Q_EMIT currentUpdated(queue);
}

void PrinterChooser::add(const Queue &queue)
{
    indexes_.insert(queue.id(), count());
    addItem(label(queue), QVariant::fromValue(queue));
    setItemData(count() - 1, wordsOf(queue, label(queue)), PrinterSearch::wordsRole);
    if (count() > mostWithoutSearch && !isEditable())
        new PrinterSearch(this);
}

void PrinterChooser::update(int index, const Queue &queue)
{
    setItemText(index, label(queue));
    setItemData(index, QVariant::fromValue(queue));
    setItemData(index, wordsOf(queue, label(queue)), PrinterSearch::wordsRole);
}

void PrinterChooser::choose(int index)
{
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
    if (wasCurrent) {
        selection_.gone();
        choose(0);
    }
    drop(index);
    if (wasCurrent)
        Q_EMIT currentRemoved(tr("The printer \"%1\" is no longer there. Choose another one.").arg(id));
}

/// Says which of the two is missing: the printer, or its preset.
QString PrinterChooser::missing(const Destination &destination) const
{
    const auto &[queue, preset] = destination;
    if (!preset.isEmpty() && indexOf(queue) >= 0) {
        const auto presets = PresetStore(queue).presets();
        return presets ? PresetStore::missing(queue, preset, *presets) : presets.failure().text;
    }
    if (const QString why = finder_->whyIncomplete(); !why.isEmpty())
        return tr("There is no printer \"%1\" (%2). Choose another one.").arg(destination.id(), why);
    return tr("There is no printer \"%1\". Choose another one.").arg(destination.id());
}

// The finder keeps looking: when the server is back, it may have the queue.
void PrinterChooser::endSearch()
{
    if (failure_.isEmpty())
        forgetRecalled();
    const std::optional<Destination> &wanted = selection_.wanted();
    const bool mayHaveDefault =
        selection_.state() == PrinterSelection::State::Open && !finder_->isWithoutPrintServer();
    if (wanted && !selection_.isConfirmed())
        Q_EMIT searchFailed(failure_.isEmpty()
                                ? missing(*wanted)
                                : tr("The printer \"%1\" is not there. %2").arg(wanted->id(), failure_));
    else if (!failure_.isEmpty() && (!selection_.isConfirmed() || mayHaveDefault))
        Q_EMIT searchFailed(failure_);
    selection_.kept();
}

// The server no longer has the recalled queue.
void PrinterChooser::forgetRecalled()
{
    if (!selection_.recalled())
        return;
    const Destination recalled = *selection_.recalled();
    selection_.forgetRecalled();
    if (recalled != selection_.wanted() || current().destination() != recalled) {
        remove(recalled.id());
        return;
    }
    await(recalled.id());
    drop(indexOf(recalled.id()));
}

} // namespace printdialog
