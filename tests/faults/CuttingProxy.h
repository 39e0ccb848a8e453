// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QTemporaryDir>

#include <atomic>
#include <thread>

namespace testing_support {

/// A print server in front of another one, which it hands everything to and from, until it is gone in the
/// middle of it: its connections closed, its socket away. On a thread of its own.
class CuttingProxy
{
public:
    /// `server` is the other one's socket. What is handed on is counted in pieces, as they are read; the
    /// server is gone instead of the piece `cutAt` (from 1), or never (0).
    CuttingProxy(const QString &server, int cutAt);
    ~CuttingProxy();
    Q_DISABLE_COPY_MOVE(CuttingProxy)

    QString socketPath() const;
    int pieces() const { return pieces_; }
    bool hasCut() const { return hasCut_; }
    /// Whether it was a piece of a request, and so did not arrive.
    bool hasCutRequest() const { return hasCutRequest_; }

private:
    void serve();
    /// False: the server is gone.
    bool join(int client);
    bool handOn(int from, int to, bool &isOpen);

    QTemporaryDir folder_{QStringLiteral("/tmp/cutting-proxy-XXXXXX")};
    QByteArray server_;
    int cutAt_;
    std::atomic<int> listener_ = -1;
    std::atomic<int> pieces_ = 0;
    std::atomic<bool> hasCut_ = false;
    std::atomic<bool> hasCutRequest_ = false;
    std::thread thread_;
};

} // namespace testing_support
