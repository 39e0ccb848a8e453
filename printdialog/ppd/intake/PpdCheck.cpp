// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PpdCheck.h"

#include "CorvelPpdCheckPath.h"
#include "FileDescriptor.h"
#include "HelperRun.h"
#include "PlainText.h"
#include "PpdFile.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFile>

#include <cerrno>
#include <csignal>

using pdekit::FileDescriptor;

namespace printdialog {

namespace {

struct CheckText
{
    Q_DECLARE_TR_FUNCTIONS(PpdCheck)
};

} // namespace

QString ppdCheckProgram()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() +
                           QLatin1String("/" CORVEL_PPD_CHECK_FROM_PROGRAM));
}

Result<CheckedPpd, PpdFault> trustPpd(const QByteArray &data, const QString &name)
{
    const auto inspection = inspectPpd(data, name);
    if (!inspection)
        return inspection.failure();
    return CheckedPpd(data, name, *inspection);
}

Result<CheckedPpd, PpdFault> checkPpd(const QByteArray &data, const QString &name, const QString &program,
                                      std::chrono::milliseconds limit)
{
    auto inspected = trustPpd(data, name);
    if (!inspected)
        return inspected;
    const FileDescriptor ppd(ppdInMemory(inspected->inspection().bytes));
    if (ppd.number() < 0)
        return ppdNotReadable(name, errno);

    constexpr int noSandbox = 2;
    const QString shown = plainText(name, 300);
    const auto notTried = [&](const QString &reason) {
        return Failure<PpdFault>{PpdFault::NotTried,
                                 CheckText::tr("The PPD \"%1\" is not used, since it could not be checked "
                                               "safely: %2. Install corvel-print again.")
                                     .arg(shown, reason),
                                 {}};
    };
    const HelperEnd end = runHelper(QFile::encodeName(program), {ppd.number()}, limit);
    if (end.how == HelperEnd::How::NotRun)
        return notTried(CheckText::tr("\"%1\" cannot be run: %2").arg(program, qt_error_string(end.code)));
    // SIGKILL that we did not send is most likely the OOM killer's, and says nothing about the PPD.
    if (end.how == HelperEnd::How::Overdue || (end.how == HelperEnd::How::Killed && end.code == SIGKILL))
        return Failure<PpdFault>{
            PpdFault::NotTried,
            CheckText::tr(
                "The PPD \"%1\" is not used, since this computer was too busy to check it. Try again later.")
                .arg(shown),
            {}};
    if (end.how == HelperEnd::How::Exited) {
        switch (end.code) {
        case 0:
            return inspected;
        case noSandbox:
            return notTried(CheckText::tr("the system offers no sandbox"));
        default: // most likely the dynamic linker's
            return notTried(CheckText::tr("\"%1\" ends with status %2").arg(program).arg(end.code));
        }
    }
    if (end.code == SIGXCPU)
        return Failure<PpdFault>{PpdFault::Harmful,
                                 CheckText::tr("The PPD \"%1\" is not used: libcups does not finish reading "
                                               "it. Fetch another from the printer's maker.")
                                     .arg(shown),
                                 {}};
    return Failure<PpdFault>{
        PpdFault::Harmful,
        CheckText::tr(
            "The PPD \"%1\" is not used: it makes libcups crash. Fetch another from the printer's maker.")
            .arg(shown),
        {}};
}

} // namespace printdialog
