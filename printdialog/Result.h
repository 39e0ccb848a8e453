// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QString>

#include <utility>
#include <variant>

namespace printdialog {

/// The reason for a failure.
template <class Reason>
struct Failure
{
    Reason reason;
    /// One or two sentences for people: the thing by its name, the reason, the remedy. Plain text.
    QString text;
    QString detail; ///< For the log, untranslated; may be empty.
};

/// The requested value, or the failure in its place.
template <class Value, class Reason>
class [[nodiscard]] Result
{
public:
    Result(Value value)
        : content_(std::in_place_index<0>, std::move(value))
    {
    }
    Result(Failure<Reason> failure)
        : content_(std::in_place_index<1>, std::move(failure))
    {
    }

    explicit operator bool() const { return content_.index() == 0; }

    Value &operator*() & { return std::get<0>(content_); }
    const Value &operator*() const & { return std::get<0>(content_); }
    Value &&operator*() && { return std::get<0>(std::move(content_)); }
    Value *operator->() { return &std::get<0>(content_); }
    const Value *operator->() const { return &std::get<0>(content_); }

    const Failure<Reason> &failure() const { return std::get<1>(content_); }

private:
    std::variant<Value, Failure<Reason>> content_;
};

} // namespace printdialog
