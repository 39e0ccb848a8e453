// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Destination.h"

#include <optional>

namespace printdialog {

/// Which printer is shown, and what may still take its place. Driven by what the user does and what the
/// print server says; it has no widget and asks nobody.
///
///     event                     Open      Awaited   Kept      Used      Chosen
///     awaits                    Awaited   Awaited   Awaited   Awaited   Awaited
///     kept, or searched         Kept      -         -         -         -
///     found: the one asked for  Kept *    Kept *    -         -         -
///     used                      Used      -         Used      -         -
///     chosen                    Chosen *  Chosen *  Chosen *  Chosen *  Chosen *
///     gone                      Kept *    -         Kept *    Kept *    -  *
///
/// An asterisk: another printer is shown then (after gone, the built-in one), with its own options. A search
/// may find that the printer of an earlier time is gone: then it is awaited where it was asked for.
class PrinterSelection
{
public:
    enum class State {
        Open,    ///< Nobody has asked for what is shown: a default takes its place.
        Awaited, ///< Nothing is shown: the one asked for is being looked for.
        Kept,    ///< Asked for, found as the default, or there when the user began to work.
        Used,    ///< Kept, and chosen by the user an earlier time, or printed on: the next window has it.
        Chosen,  ///< By the user, in this window, be it the one that was shown anyway: the next one has it.
    };

    State state() const { return state_; }
    /// The one asked for by its name, or as the user's default; else the server's default is looked for.
    const std::optional<Destination> &wanted() const { return wanted_; }
    /// Whether the print server has said in this search that the one shown is there. The built-in one is.
    bool isConfirmed() const { return shown_ && shown_ != recalled_; }
    /// Of an earlier time, and not known to the server yet, be it shown or not.
    const std::optional<Destination> &recalled() const { return recalled_; }
    /// Whether its options are those of an earlier time.
    bool hasOldOptions() const { return hasOldOptions_; }
    bool isUsersChoice() const { return state_ == State::Used || state_ == State::Chosen; }

    /// Shows the one of an earlier time, with its options. @param state Open, Kept or Used
    void recall(const Destination &destination, State state);
    void awaits();
    void asksFor(const std::optional<Destination> &wanted);
    /// The user has begun to work with it, or the first search is over.
    void kept();
    /// Whether it takes the place of the one that is shown.
    bool found(const Destination &destination, bool isDefault);
    void used();
    void chosen(const Destination &destination);
    void gone();
    /// Of the one of an earlier time the server knows nothing, or not any more.
    void forgetRecalled() { recalled_.reset(); }
    /// The options shown are the server's.
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
