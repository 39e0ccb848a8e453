// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PrinterSelection.h"

namespace printdialog {

void PrinterSelection::show(const Destination &destination, State state)
{
    state_ = state;
    shown_ = destination;
    hasOldOptions_ = false;
}

void PrinterSelection::recall(const Destination &destination, State state)
{
    show(destination, state);
    if (destination.isBuiltIn())
        return;
    recalled_ = destination;
    hasOldOptions_ = true;
}

void PrinterSelection::awaits()
{
    state_ = State::Awaited;
    shown_.reset();
}

void PrinterSelection::asksFor(const std::optional<Destination> &wanted)
{
    wanted_ = wanted;
    if (wanted && (wanted == shown_ || wanted->isBuiltIn()))
        kept();
}

void PrinterSelection::kept()
{
    if (state_ == State::Open)
        state_ = State::Kept;
}

bool PrinterSelection::found(const Destination &destination, bool isDefault)
{
    if (recalled_ == destination)
        recalled_.reset();
    const bool isAskedFor = wanted_ ? destination == *wanted_ : isDefault;
    if (!isAskedFor || (state_ != State::Open && state_ != State::Awaited))
        return false;
    if (shown_ == destination) {
        state_ = State::Kept;
        return false;
    }
    show(destination, State::Kept);
    return true;
}

void PrinterSelection::used()
{
    if (state_ == State::Open || state_ == State::Kept)
        state_ = State::Used;
}

void PrinterSelection::chosen(const Destination &destination)
{
    show(destination, State::Chosen);
}

void PrinterSelection::gone()
{
    show(Destination::builtIn(), state_ == State::Chosen ? State::Chosen : State::Kept);
}

} // namespace printdialog
