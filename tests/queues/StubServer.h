// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QByteArrayList>
#include <QtCore/QList>
#include <QtCore/QTemporaryDir>

#include <atomic>
#include <functional>
#include <mutex>
#include <thread>

namespace testing_support {

/// A print server that misbehaves in one way, on its own socket and thread. CUPS_SERVER points to it
/// while it lives.
class StubServer
{
public:
    enum class Manner {
        Silent,      ///< Accepts, and never answers.
        Trickling,   ///< Answers one byte at a time, without end.
        BreakingOff, ///< Closes in the middle of a PPD.
        Overflowing, ///< Its PPDs are too large.
        Failing,     ///< Answers with the status 500.
        Redirecting, ///< Answers with the status 302, to itself.

        // What is "endless" ends after half a GiB.
        Nesting,          ///< 8,000 collections, one inside the other, in 88 kB.
        EndlessValues,    ///< Attributes without end, each with another name.
        EmptyAttributes,  ///< 16 MiB of attributes without values.
        Separators,       ///< 16 MiB of bytes that each begin a group of attributes.
        EndlessHeaders,   ///< Header fields that libcups joins, without end.
        EndlessContinues, ///< Sends "100 Continue" without end.
        EndlessChunks,    ///< A complete answer, and then chunks without end.

        ManyReasons,  ///< A printer in 40,000 sorts of trouble.
        ManyQueues,   ///< 10,000 of them, "0%20" to "9999%20".
        JobBelowZero, ///< Gives every job the number -1.
        Locked,       ///< Wants the login "max:geheim" (Basic), after it has read the whole request.
        OddNames      ///< Has the queues "good", "go\tod", "a/b" and one with a name that is not UTF-8.
    };
    /// Which requests are answered in this manner; the others with success, as if every queue were known.
    enum class Requests { All, Jobs, Files, Attributes };

    explicit StubServer(Manner manner, Requests requests = Requests::All);
    ~StubServer();
    Q_DISABLE_COPY_MOVE(StubServer)

    /// How many connections it has had.
    int connections() const { return connections_; }
    /// The values of the Authorization fields of all requests so far.
    QByteArrayList authorizations() const
    {
        const std::lock_guard lock(mutex_);
        return authorizations_;
    }

private:
    void serve();
    void answer(int client);
    bool unlocks(int client, const QByteArray &request);
    void misbehave(int client);
    /// Until everything is sent, or the client has closed.
    bool put(int client, const QByteArray &bytes) const;
    void repeat(int client, const std::function<QByteArray(qint64)> &block, qint64 size) const;

    Manner manner_;
    Requests requests_;
    QTemporaryDir folder_{QStringLiteral("/tmp/stub-server-XXXXXX")};
    QByteArray serverBefore_;
    int listener_ = -1;
    std::atomic<bool> ends_ = false;
    std::atomic<int> connections_ = 0;
    mutable std::mutex mutex_;
    QByteArrayList authorizations_;
    QList<int> held_; // silent connections, closed at the end; the thread's own
    std::thread thread_;
};

} // namespace testing_support
