// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Destination.h"

#include <optional>

namespace printdialog {

/// Which printer is shown, and which may still replace it. A state machine driven by the user's acts and the
/// print server's answers; it has no widget and makes no request.
///
///     event                     Open      Awaited   Kept      Used      Chosen
///     awaits                    Awaited   Awaited   Awaited   Awaited   Awaited
///     kept, or searched         Kept      -         -         -         -
///     found: the one asked for  Kept *    Kept *    -         -         -
///     used                      Used      -         Used      -         -
///     chosen                    Chosen *  Chosen *  Chosen *  Chosen *  Chosen *
///     gone                      Kept *    -         Kept *    Kept *    -  *
///
/// An asterisk: another printer is then shown (after gone, the built-in one), with its own options. A search
/// may find that the printer of an earlier run is gone: if it was requested, it is then awaited.
class PrinterSelection
{
public:
    enum class State {
        Open,    ///< The printer shown was not requested: a default replaces it.
        Awaited, ///< No printer is shown: the requested one is being looked for.
        Kept,    ///< Requested, found as the default, or shown when the user began to work.
        Used,    ///< Kept, and chosen by the user in an earlier run or printed on: the next window opens with
                 ///< it.
        Chosen,  ///< Chosen by the user in this window, even if it was already shown: the next one opens with
                 ///< it.
    };

    State state() const { return state_; }
    /// The printer requested by name or as the user's default; without it, the server's default is looked
    /// for.
    const std::optional<Destination> &wanted() const { return wanted_; }
    /// Whether this search has found the printer shown. Always true of the built-in one.
    bool isConfirmed() const { return shown_ && shown_ != recalled_; }
    /// The printer of an earlier run that the server has not confirmed yet, shown or not.
    const std::optional<Destination> &recalled() const { return recalled_; }
    /// Whether the options shown are those of an earlier run.
    bool hasOldOptions() const { return hasOldOptions_; }
    bool isUserChoice() const { return state_ == State::Used || state_ == State::Chosen; }

    /// Shows the printer of an earlier run, with its options. `state` is Open, Kept or Used.
    void recall(const Destination &destination, State state);
    void awaits();
    void asksFor(const std::optional<Destination> &wanted);
    /// The user has begun to work with the printer shown, or the first search is over.
    void kept();
    /// A printer was found. True when it replaces the one shown.
    bool found(const Destination &destination, bool isDefault);
    void used();
    void chosen(const Destination &destination);
    void gone();
    /// The server does not know the printer of an earlier run, or no longer does.
    void forgetRecalled() { recalled_.reset(); }
    /// The options shown are now the server's.
    void confirmOptions() { hasOldOptions_ = false; }

private:
    void show(const Destination &destination, State state);

    State state_ = State::Open;
    std::optional<Destination> shown_ = Destination::builtIn();
    std::optional<Destination> wanted_;
    std::optional<Destination> recalled_;
    bool hasOldOptions_ = false;
};

} // namespace printdialog
