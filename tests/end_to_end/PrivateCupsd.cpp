// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PrivateCupsd.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QStandardPaths>
#include <QtCore/QThread>

#include <arpa/inet.h>
#include <csignal>
#include <initializer_list>
#include <netinet/in.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <unistd.h>

namespace testing_support {

namespace {

const QString systemServerBin = QStringLiteral("/usr/lib/cups/");

/// Where the programs are that an ordinary user does not have in the path.
QString programPath(const QString &name)
{
    const QStringList folders = {QStringLiteral("/usr/sbin"), QStringLiteral("/usr/bin"),
                                 QStringLiteral("/usr/local/sbin")};
    return QStandardPaths::findExecutable(name, folders);
}

bool writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// A port that nobody listens at.
int freePort()
{
    const int probe = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t length = sizeof address;
    const bool isKnown = bind(probe, reinterpret_cast<sockaddr *>(&address), length) == 0 &&
                         getsockname(probe, reinterpret_cast<sockaddr *>(&address), &length) == 0;
    close(probe);
    return isKnown ? ntohs(address.sin_port) : 0;
}

constexpr auto everybody = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadGroup |
                           QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther;

} // namespace

PrivateCupsd::~PrivateCupsd()
{
    stop();
}

QString PrivateCupsd::start(Reach reach)
{
    if (reach == Reach::Network)
        networkAddress_ = QStringLiteral("127.0.0.1:%1").arg(freePort());
    const QString cupsd = programPath(QStringLiteral("cupsd"));
    if (cupsd.isEmpty())
        return QStringLiteral("cupsd is missing: install the package cups (./test does)");
    if (programPath(QStringLiteral("lpadmin")).isEmpty())
        return QStringLiteral("lpadmin is missing: install the package cups-client (./test does)");
    if (!folder_.isValid() || !layOut())
        return QStringLiteral("the folder of the private cupsd cannot be made: ") + folder_.errorString();
    scheduler_.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGTERM); });
    scheduler_.setStandardOutputFile(QProcess::nullDevice());
    scheduler_.setStandardErrorFile(path("log/stderr"));
    scheduler_.start(cupsd, {QStringLiteral("-f"), QStringLiteral("-c"), path("etc/cupsd.conf"),
                             QStringLiteral("-s"), path("etc/cups-files.conf")});
    serverBefore_ = qgetenv("CUPS_SERVER");
    qputenv("CUPS_SERVER", QFile::encodeName(socketPath()));
    started_ = true;
    if (!waitForAnswer())
        return QStringLiteral("the private cupsd does not come up: ") +
               QString::fromLocal8Bit(readFile(path("log/stderr")) + readFile(path("log/error_log")));
    return {};
}

void PrivateCupsd::stop()
{
    if (!std::exchange(started_, false))
        return;
    scheduler_.terminate();
    if (!scheduler_.waitForFinished(3000)) {
        scheduler_.kill();
        scheduler_.waitForFinished(3000);
    }
    if (serverBefore_.isNull())
        qunsetenv("CUPS_SERVER");
    else
        qputenv("CUPS_SERVER", serverBefore_);
}

QString PrivateCupsd::socketPath() const
{
    return path("cups.sock");
}

QString PrivateCupsd::path(const char *name) const
{
    return folder_.filePath(QString::fromLatin1(name));
}

bool PrivateCupsd::layOut()
{
    bool done = QFile::setPermissions(folder_.path(), everybody);
    for (const char *name :
         {"etc/ppd", "etc/ssl", "cache", "state/certs", "spool/tmp", "log", "out", "bin/backend"})
        done = done && QDir().mkpath(path(name));
    for (const char *name : {"filter", "daemon", "notifier", "monitor", "driver", "cgi-bin"})
        done = done && QFile::link(systemServerBin + QString::fromLatin1(name),
                                   path("bin/") + QString::fromLatin1(name));
    // The backend runs as another user when the scheduler is root's.
    done = done && QFile::setPermissions(path("out"), everybody | QFile::WriteGroup | QFile::WriteOther);

    const QByteArray root = QFile::encodeName(folder_.path());
    QByteArray files =
        "ServerRoot R/etc\nServerBin R/bin\nCacheDir R/cache\nStateDir R/state\nRequestRoot R/spool\n"
        "TempDir R/spool/tmp\nServerKeychain R/etc/ssl\nErrorLog R/log/error_log\n"
        "AccessLog R/log/access_log\nPageLog R/log/page_log\nDataDir /usr/share/cups\n"
        "DocumentRoot /usr/share/cups/doc-root\nCreateSelfSignedCerts no\nFileDevice Yes\n"
        "SyncOnClose No\n";
    if (geteuid() == 0)
        files += "User lp\nGroup lp\nSystemGroup root\n";
    const QByteArray schedulerConf =
        "Listen R/cups.sock\n" +
        (networkAddress_.isEmpty() ? QByteArray() : "Listen " + networkAddress_.toLatin1() + '\n') +
        "Browsing No\nWebInterface No\nDefaultAuthType None\nDefaultEncryption Never\n"
        "ErrorPolicy abort-job\nLogLevel warn\nAccessLogLevel all\n<Location />\nOrder allow,deny\nAllow "
        "all\n</Location>\n"
        "<Policy default>\nJobPrivateAccess all\nJobPrivateValues none\nSubscriptionPrivateAccess all\n"
        "SubscriptionPrivateValues none\n<Limit All>\nOrder allow,deny\nAllow all\n</Limit>\n</Policy>\n";
    // What it keeps of a job appears at once and whole, by the folder's change of name.
    const QByteArray recorder =
        "#!/bin/sh\n[ $# -eq 0 ] && exit 0\nj=R/out/.$1; mkdir \"$j\" || exit 1\n"
        "printf %s \"$3\" > \"$j/title\"; printf %s \"$4\" > \"$j/copies\"\n"
        "printf %s \"$5\" > \"$j/options\"; env > \"$j/environment\"\n"
        "cat ${6:+\"$6\"} > \"$j/document\"; chmod -R a+rX \"$j\"; mv \"$j\" R/out/$1\n";
    const auto placed = [&root](QByteArray text) {
        return text.replace("R/", root + '/');
    };
    done = done && writeFile(path("etc/cups-files.conf"), placed(files)) &&
           writeFile(path("etc/cupsd.conf"), placed(schedulerConf)) &&
           writeFile(path("bin/backend/recorder"), placed(recorder)) &&
           writeFile(path("bin/backend/scripted"),
                     placed("#!/bin/sh\n[ $# -eq 0 ] && exit 0\nexec /bin/sh R/script \"$@\"\n"));
    return done && QFile::setPermissions(path("bin/backend/recorder"), everybody) &&
           QFile::setPermissions(path("bin/backend/scripted"), everybody);
}

bool PrivateCupsd::waitForAnswer()
{
    for (const QDeadlineTimer deadline(10000); !deadline.hasExpired(); QThread::msleep(5)) {
        if (QFile::exists(socketPath()) && run(QStringLiteral("lpstat"), {QStringLiteral("-r")}))
            return true;
        if (scheduler_.waitForFinished(0) || scheduler_.state() == QProcess::NotRunning)
            return false;
    }
    return false;
}

bool PrivateCupsd::setBackendScript(const QByteArray &commands)
{
    return writeFile(path("script"), commands + '\n') && QFile::setPermissions(path("script"), everybody);
}

void PrivateCupsd::freeze()
{
    kill(static_cast<pid_t>(scheduler_.processId()), SIGSTOP);
}

void PrivateCupsd::thaw()
{
    kill(static_cast<pid_t>(scheduler_.processId()), SIGCONT);
}

bool PrivateCupsd::goDown()
{
    scheduler_.terminate();
    return scheduler_.waitForFinished(3000);
}

bool PrivateCupsd::comeBack()
{
    scheduler_.start();
    return waitForAnswer();
}

bool PrivateCupsd::addQueue(const QString &name, const QByteArray &ppd, const QStringList &lpadminArguments)
{
    QStringList arguments = {QStringLiteral("-p"), name, QStringLiteral("-v"), QStringLiteral("recorder:/")};
    if (!ppd.isEmpty()) {
        if (!writeFile(path("queue.ppd"), ppd))
            return false;
        arguments << QStringLiteral("-P") << path("queue.ppd");
    }
    return run(QStringLiteral("lpadmin"), arguments + lpadminArguments + QStringList{QStringLiteral("-E")});
}

bool PrivateCupsd::deleteQueue(const QString &name)
{
    return run(QStringLiteral("lpadmin"), {QStringLiteral("-x"), name});
}

bool PrivateCupsd::run(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.setStandardOutputFile(path("log/last-output"));
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(programPath(program), arguments);
    return process.waitForFinished(10000) && process.exitStatus() == QProcess::NormalExit &&
           process.exitCode() == 0;
}

bool PrivateCupsd::waitForJob(int id, int milliseconds) const
{
    const QString folder = path("out/") + QString::number(id);
    for (const QDeadlineTimer deadline(milliseconds); !deadline.hasExpired(); QThread::msleep(5)) {
        if (QFile::exists(folder))
            return true;
    }
    return false;
}

RecordedJob PrivateCupsd::job(int id) const
{
    const QString folder = path("out/") + QString::number(id) + u'/';
    const auto part = [&folder](const char *name) {
        return readFile(folder + QString::fromLatin1(name));
    };
    return {part("title"), part("copies"), part("options"), part("environment"), part("document")};
}

qsizetype PrivateCupsd::requests(const QByteArray &line) const
{
    QFile log(path("log/access_log"));
    return log.open(QIODevice::ReadOnly) ? log.readAll().count(line) : -1;
}

QByteArray PrivateCupsd::activeJobs()
{
    run(QStringLiteral("lpstat"), {QStringLiteral("-o")});
    return readFile(path("log/last-output"));
}

QByteArray smallPpd(const QByteArray &moreLines)
{
    return "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*FileVersion: \"1.0\"\n*LanguageVersion: English\n"
           "*LanguageEncoding: ISOLatin1\n*PCFileName: \"SMALL.PPD\"\n*Manufacturer: \"Corvel\"\n"
           "*Product: \"(Small)\"\n*ModelName: \"Small\"\n*ShortNickName: \"Small\"\n*NickName: \"Small\"\n"
           "*PSVersion: \"(3010.000) 0\"\n*cupsVersion: 2.4\n*ColorDevice: True\n"
           "*cupsFilter: \"image/jpeg 0 -\"\n*cupsFilter: \"application/vnd.cups-pdf 0 -\"\n"
           "*OpenUI *PageSize/Media Size: PickOne\n*DefaultPageSize: w288h432\n"
           "*PageSize w288h432/4x6: \"<</PageSize[288 432]>>setpagedevice\"\n*CloseUI: *PageSize\n"
           "*OpenUI *PageRegion: PickOne\n*DefaultPageRegion: w288h432\n"
           "*PageRegion w288h432/4x6: \"<</PageSize[288 432]>>setpagedevice\"\n*CloseUI: *PageRegion\n"
           "*DefaultImageableArea: w288h432\n*ImageableArea w288h432: \"0 0 288 432\"\n"
           "*DefaultPaperDimension: w288h432\n*PaperDimension w288h432: \"288 432\"\n" +
           moreLines;
}

} // namespace testing_support
