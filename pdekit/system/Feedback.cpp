// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "Feedback.h"

#include "DesktopFeedback.h"

#include <utility>

namespace pdekit {

namespace {

std::shared_ptr<Feedback> &installed()
{
    static std::shared_ptr<Feedback> feedback;
    return feedback;
}

} // namespace

Feedback::~Feedback() = default;

Feedback &Feedback::current()
{
    if (!installed())
        installed() = std::make_shared<DesktopFeedback>();
    return *installed();
}

std::shared_ptr<Feedback> Feedback::install(std::shared_ptr<Feedback> feedback)
{
    return std::exchange(installed(), std::move(feedback));
}

} // namespace pdekit
