// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "CatchPIPE.h"

#include "SignalLog.h"

#include <array>
#include <csignal>
#include <cstddef>
#include <cstring>

namespace {

/// Appends the decimal digits of a number; snprintf(3) is not async-signal-safe.
std::size_t appendNumber(char *text, std::size_t length, int number)
{
    std::array<char, 12> digits;
    std::size_t count = 0;
    do {
        digits[count++] = static_cast<char>('0' + number % 10);
        number /= 10;
    } while (number > 0 && count < digits.size());
    while (count > 0)
        text[length++] = digits[--count];
    return length;
}

extern "C" void catchPIPE(int signal)
{
    constexpr char begin[] = "caught a signal ";
    std::array<char, sizeof begin + 16> line;
    std::size_t length = sizeof begin - 1;
    std::memcpy(line.data(), begin, length);
    length = appendNumber(line.data(), length, signal);
    line[length++] = '\n';
    pdekit::systemLogFromSignal(line.data(), length);
}

} // namespace

bool installCatchPIPE()
{
    pdekit::prepareSignalLog();
    struct sigaction action = {};
    action.sa_handler = &catchPIPE;
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    return sigaction(SIGPIPE, &action, nullptr) == 0;
}
