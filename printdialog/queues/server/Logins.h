// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QHash>
#include <QtCore/QSet>
#include <QtCore/QString>

#include <atomic>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>

namespace printdialog {

/// A name and a password. Never stored in a file, logged or put into arguments.
struct Login
{
    QString user;
    QString password;

    bool operator==(const Login &) const = default;
};

/// What a name and a password are asked for.
struct LoginQuestion
{
    QString printer; ///< its id; empty: the print server wants them, whatever is asked of it
    QString server;
    QString user;           ///< to begin with
    bool isRefused = false; ///< the last answer was not accepted
};

/// The names and passwords that were entered in this run, in memory only. What is canceled is not asked
/// again until forgive(). Any thread.
class Logins
{
public:
    /// Asks a person. Called on the thread that needs the answer, one question at a time; returns nothing
    /// when it is canceled, or soon after the flag is non-zero.
    using Ask = std::function<std::optional<Login>(const LoginQuestion &question, const int *cancel)>;

    static Logins &ofRun();

    /// Empty: nobody can be asked. @param whyNot says so, for people, then
    void setAsk(Ask ask, const QString &whyNot = {});
    /// Why the last question about this was left without an answer; for people.
    QString whyNot() const;

    /// The login that is known for the key, or else one that a person enters.
    /// @param key what it is for: a server, or a queue
    /// @param refused the login that is known not to be accepted
    std::optional<Login> login(const QString &key, const LoginQuestion &question,
                               const std::optional<Login> &refused, const int *cancel);
    /// Drops a login that was refused for good; it is not asked for again until forgive().
    void drop(const QString &key);
    /// Call when the user has acted: what was canceled before may be asked again.
    void forgive();

    /// Whether somebody is being asked. Time limits wait for that.
    bool isAsking() const { return isAsking_; }

private:
    mutable std::mutex mutex_;    ///< guards the members below it
    std::timed_mutex oneAtATime_; ///< held while somebody is asked
    std::shared_ptr<Ask> ask_;
    QString whyNot_;
    QHash<QString, Login> known_;
    QSet<QString> declined_;
    std::atomic<bool> isAsking_ = false;
};

} // namespace printdialog
