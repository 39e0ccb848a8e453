// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

// CupsConnection: names and passwords.

#include "CupsConnection.h"
#include "CupsConnection_p.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QScopeGuard>

namespace printdialog {

namespace {

constexpr int mostLogins = 3; // that are refused, for one request
constexpr std::chrono::hours thinkingLimit(1);

} // namespace

const char *noPassword(const char *, http_t *, const char *, const char *, void *)
{
    return nullptr;
}

bool CupsConnection::isPrivate() const
{
    return http_ && (httpIsEncrypted(http_.get()) || httpAddrLocalhost(httpGetAddress(http_.get())));
}

bool CupsConnection::logIn(const QByteArray &resource)
{
    end_ = End::Answered;
    if (authenticate("POST", printer_ ? printer_->resource : resource))
        return true;
    end_ = End::Http;
    return false;
}

bool CupsConnection::authenticate(const char *method, const QByteArray &resource)
{
    whyNoLogin_.clear();
    // libcups keeps the callback per thread, which may have further connections.
    cupsSetPasswordCB2(askLogin, this);
    const auto back = qScopeGuard([] { cupsSetPasswordCB2(noPassword, nullptr); });
    socketLimit_->setDeadline(SocketLimit::Clock::now() + thinkingLimit);
    const bool isDone = cupsDoAuthentication(http_.get(), method, resource.constData()) == 0;
    extend();
    if (isDone)
        authorization_ = httpGetAuthString(http_.get());
    return isDone && !isCanceled();
}

const char *CupsConnection::askLogin(const char * /*prompt*/, http_t * /*http*/, const char * /*method*/,
                                     const char * /*resource*/, void *connection)
{
    auto *self = static_cast<CupsConnection *>(connection);
    return self->takeLogin() ? self->password_.constData() : nullptr;
}

bool CupsConnection::takeLogin()
{
    // Digest does not send the password itself.
    const QByteArray schemes = httpGetField(http_.get(), HTTP_FIELD_WWW_AUTHENTICATE);
    if (!schemes.toLower().startsWith("digest") && !isPrivate()) {
        whyNoLogin_ = QCoreApplication::translate(
            "CupsConnection", "it wants a password, which would cross the network unencrypted");
        return false;
    }
    Logins &logins = Logins::ofRun();
    if (logins_ == mostLogins) {
        logins.drop(server_);
        whyNoLogin_ =
            QCoreApplication::translate("CupsConnection", "it has refused the name or the password %1 times")
                .arg(mostLogins);
        return false;
    }
    const LoginQuestion question{actsFor_, server_, QString::fromUtf8(cupsUser())};
    const auto login = logins.login(server_, question, login_, cancel_);
    if (!login) {
        whyNoLogin_ = logins.whyNot();
        return false;
    }
    ++logins_;
    login_ = login;
    cupsSetUser(login->user.toUtf8().constData()); // libcups reads it after this
    password_ = login->password.toUtf8();
    return true;
}

} // namespace printdialog
