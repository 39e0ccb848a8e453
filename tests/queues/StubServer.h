// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QTemporaryDir>

#include <atomic>
#include <thread>

namespace testing_support {

/// A print server that misbehaves in one way, on a socket of its own and a thread of its own. CUPS_SERVER
/// points to it while it lives.
class StubServer
{
public:
    enum class Manner {
        Silent,      ///< Accepts, and never answers.
        Trickling,   ///< Answers one byte at a time, without end.
        BreakingOff, ///< Knows every queue; closes in the middle of a PPD.
        Overflowing  ///< Knows every queue; its PPDs are too large.
    };

    explicit StubServer(Manner manner);
    ~StubServer();
    Q_DISABLE_COPY_MOVE(StubServer)

private:
    void serve();
    void answer(int client);

    Manner manner_;
    QTemporaryDir folder_{QStringLiteral("/tmp/stub-server-XXXXXX")};
    QByteArray serverBefore_;
    int listener_ = -1;
    std::atomic<bool> ends_ = false;
    QList<int> held_; // silent connections, closed at the end; the thread's own
    std::thread thread_;
};

} // namespace testing_support
