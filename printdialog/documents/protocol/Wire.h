// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

namespace printdialog {

/// Writes the values of a message between two processes of this machine, one after the other.
class WireWriter
{
public:
    void number(std::uint32_t value) { raw(&value, sizeof value); }
    void real(double value) { raw(&value, sizeof value); }
    void text(std::string_view value)
    {
        number(static_cast<std::uint32_t>(value.size()));
        bytes_.append(value);
    }
    std::string bytes() && { return std::move(bytes_); }

private:
    void raw(const void *value, std::size_t size) { bytes_.append(static_cast<const char *>(value), size); }

    std::string bytes_;
};

/// Reads them. Once a value is missing or out of its range, isRight() stays false and all values are zero.
class WireReader
{
public:
    explicit WireReader(std::string_view bytes)
        : rest_(bytes)
    {
    }

    bool isRight() const { return isRight_; }
    bool isAtEnd() const { return isRight_ && rest_.empty(); }
    /// Of a list whose elements take at least that many bytes each: none is longer than the rest.
    std::uint32_t count(std::uint32_t most, std::size_t elementSize)
    {
        const std::uint32_t value = number(most);
        require(value <= rest_.size() / elementSize);
        return isRight_ ? value : 0;
    }
    std::uint32_t number(std::uint32_t most)
    {
        const auto value = raw<std::uint32_t>();
        require(value <= most);
        return isRight_ ? value : 0;
    }
    double real(double least, double most)
    {
        const auto value = raw<double>();
        require(value >= least && value <= most); // false for a NaN
        return isRight_ ? value : 0;
    }
    std::string_view text(std::uint32_t most)
    {
        const std::uint32_t size = count(most, 1);
        const std::string_view value = rest_.substr(0, size);
        rest_.remove_prefix(size);
        return value;
    }

private:
    void require(bool claim) { isRight_ = isRight_ && claim; }
    template <class Value>
    Value raw()
    {
        Value value = {};
        require(rest_.size() >= sizeof value);
        if (!isRight_)
            return value;
        std::memcpy(&value, rest_.data(), sizeof value);
        rest_.remove_prefix(sizeof value);
        return value;
    }

    std::string_view rest_;
    bool isRight_ = true;
};

} // namespace printdialog
