// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "Logins.h"

#include <QtCore/QCoreApplication>

#include <chrono>

using namespace std::chrono_literals;

namespace printdialog {

namespace {

constexpr auto cancelInterval = 50ms;

bool isRaised(const int *flag)
{
    return flag && std::atomic_ref(*const_cast<int *>(flag)).load() != 0;
}

} // namespace

Logins &Logins::ofRun()
{
    static Logins logins;
    return logins;
}

void Logins::setAsk(Ask ask, const QString &whyNot)
{
    const std::lock_guard lock(mutex_);
    ask_ = ask ? std::make_shared<Ask>(std::move(ask)) : nullptr;
    whyNot_ = whyNot;
}

QString Logins::whyNot() const
{
    const std::lock_guard lock(mutex_);
    if (ask_)
        return QCoreApplication::translate("Logins",
                                           "it wants a user name and a password, and none were entered");
    return whyNot_.isEmpty() ? QCoreApplication::translate("Logins", "it wants a user name and a password")
                             : whyNot_;
}

std::optional<Login> Logins::login(const QString &key, const LoginQuestion &question,
                                   const std::optional<Login> &refused, const int *cancel)
{
    std::unique_lock turn(oneAtATime_, std::defer_lock);
    while (!turn.try_lock_for(cancelInterval)) {
        if (isRaised(cancel))
            return std::nullopt;
    }
    LoginQuestion asked = question;
    std::shared_ptr<Ask> ask;
    {
        const std::lock_guard lock(mutex_);
        const auto known = known_.constFind(key);
        if (known != known_.cend() && *known != refused)
            return *known;
        if (declined_.contains(key) || !ask_)
            return std::nullopt;
        ask = ask_;
        asked.isRefused = refused.has_value();
        if (refused)
            asked.user = refused->user;
    }
    isAsking_ = true;
    const auto answer = (*ask)(asked, cancel);
    isAsking_ = false;
    const std::lock_guard lock(mutex_);
    if (answer)
        known_.insert(key, *answer);
    else if (!isRaised(cancel))
        declined_.insert(key);
    return answer;
}

void Logins::drop(const QString &key)
{
    const std::lock_guard lock(mutex_);
    known_.remove(key);
    declined_.insert(key);
}

void Logins::forgive()
{
    const std::lock_guard lock(mutex_);
    declined_.clear();
}

} // namespace printdialog
