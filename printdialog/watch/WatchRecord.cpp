// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "WatchRecord.h"

#include "PlainText.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QDateTime>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QSaveFile>
#include <QtCore/QSet>

#include <fcntl.h>
#include <sys/file.h>

#include <array>
#include <cerrno>
#include <utility>

namespace printdialog {

namespace {

using State = PhotoRecord::State;

constexpr qint64 longestAway = 30LL * 24 * 60 * 60; // seconds

constexpr std::array stateNames = {
    std::pair{State::Left, QLatin1String("left")},       std::pair{State::Began, QLatin1String("began")},
    std::pair{State::Sent, QLatin1String("sent")},       std::pair{State::Printed, QLatin1String("printed")},
    std::pair{State::Aside, QLatin1String("set aside")},
};
constexpr QLatin1String forgottenName("forgotten");

const QString stateKey = QStringLiteral("state");
const QString nameKey = QStringLiteral("name");
const QString inodeKey = QStringLiteral("inode");
const QString sizeKey = QStringLiteral("size");
const QString modifiedKey = QStringLiteral("modified");
const QString onlyNameKey = QStringLiteral("onlyName"); // in place of the inode
const QString jobKey = QStringLiteral("job");
const QString printerKey = QStringLiteral("printer");
const QString serverKey = QStringLiteral("server");
const QString titleKey = QStringLiteral("title");
const QString reasonKey = QStringLiteral("reason");
const QString whenKey = QStringLiteral("when");

QString recordFolder()
{
    const QString state = qEnvironmentVariable("XDG_STATE_HOME");
    return (QDir::isAbsolutePath(state) ? state : QDir::homePath() + QLatin1String("/.local/state")) +
           QLatin1String("/corvel-print/watch");
}

/// The last folder's name, for people, and a number that no other folder has.
QString fileNameFor(const QString &folder)
{
    constexpr qsizetype nameLimit = 40;
    constexpr qsizetype hashLength = 20;
    QString name = QDir(folder).dirName().left(nameLimit);
    for (QChar &c : name) {
        if (c.unicode() > 0x7e || !(c.isLetterOrNumber() || c == u'-'))
            c = u'_';
    }
    const QByteArray hash = QCryptographicHash::hash(QFile::encodeName(folder), QCryptographicHash::Sha256);
    return name + u'-' + QString::fromLatin1(hash.toHex().left(hashLength));
}

QByteArray lineOf(const PhotoIdentity &photo, QLatin1String state, const PhotoRecord &record)
{
    QJsonObject object{{stateKey, state},
                       {nameKey, record.name},
                       {sizeKey, photo.size},
                       {modifiedKey, photo.modified},
                       {whenKey, record.when}};
    if (photo.name.isEmpty())
        object.insert(inodeKey, photo.inode);
    else
        object.insert(onlyNameKey, QString::fromLatin1(photo.name.toPercentEncoding()));
    if (record.job != 0)
        object.insert(jobKey, record.job);
    for (const auto &[key, text] : {std::pair(printerKey, record.printer),
                                    {serverKey, record.server},
                                    {titleKey, record.title},
                                    {reasonKey, record.reason}}) {
        if (!text.isEmpty())
            object.insert(key, text);
    }
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

QByteArray lineOf(const PhotoIdentity &photo, const PhotoRecord &record)
{
    const auto *name = std::ranges::find(stateNames, record.state, &std::pair<State, QLatin1String>::first);
    return lineOf(photo, name->second, record);
}

Failure<RecordFault> failureWith(RecordFault fault, const QString &path, int error)
{
    const QString text =
        fault == RecordFault::InUse
            ? WatchRecord::tr(
                  "Another program watches the folder \"%1\" already. End it first, or choose another "
                  "folder.")
        : fault == RecordFault::NotReadable
            ? WatchRecord::tr("The record of what was printed, \"%1\", cannot be read: %2. Make it readable "
                              "for you.")
            : WatchRecord::tr("The record of what was printed, \"%1\", cannot be written: %2. Nothing is "
                              "printed without it; make room for it, or make it writable for you.");
    const QString shown = plainText(path, shownTextLimit);
    return {
        fault, fault == RecordFault::InUse ? text.arg(shown) : text.arg(shown, qt_error_string(error)), {}};
}

bool sync(const QString &folder)
{
    const pdekit::FileDescriptor opened(
        ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    return opened.isOpen() && ::fsync(opened.number()) == 0;
}

} // namespace

Result<WatchRecord, RecordFault> WatchRecord::open(const QString &folder)
{
    const QString records = recordFolder();
    // Whichever of its names the folder is watched by.
    const QString canonical = QFileInfo(folder).canonicalFilePath();
    const QString name = fileNameFor(canonical.isEmpty() ? QDir::cleanPath(folder) : canonical);
    WatchRecord record;
    record.path_ = records + u'/' + name + QLatin1String(".jsonl");
    constexpr auto mine = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
    if (!QDir().mkpath(records) || !QFile::setPermissions(records, mine))
        return failureWith(RecordFault::NotWritten, records, errno);
    record.lock_ = pdekit::FileDescriptor(
        ::open(QFile::encodeName(records + u'/' + name + QLatin1String(".lock")).constData(),
               O_RDWR | O_CREAT | O_CLOEXEC, 0600));
    if (!record.lock_.isOpen())
        return failureWith(RecordFault::NotWritten, record.path_, errno);
    if (::flock(record.lock_.number(), LOCK_EX | LOCK_NB) != 0)
        return errno == EWOULDBLOCK ? failureWith(RecordFault::InUse, folder, 0)
                                    : failureWith(RecordFault::NotWritten, record.path_, errno);
    QFile file(record.path_);
    record.isNew_ = !file.exists();
    if (!record.isNew_) {
        if (!file.open(QIODevice::ReadOnly))
            return failureWith(RecordFault::NotReadable, record.path_, errno);
        record.read(file.readAll());
        if (file.error() != QFileDevice::NoError)
            return failureWith(RecordFault::NotReadable, record.path_, EIO);
    }
    return record;
}

void WatchRecord::read(const QByteArray &content)
{
    for (const QByteArray &line : content.split('\n')) {
        const QJsonObject object = QJsonDocument::fromJson(line).object();
        const QString state = object.value(stateKey).toString();
        const PhotoIdentity photo{
            object.value(inodeKey).toInteger(), object.value(sizeKey).toInteger(),
            object.value(modifiedKey).toInteger(),
            QByteArray::fromPercentEncoding(object.value(onlyNameKey).toString().toLatin1())};
        const auto *known = std::ranges::find(stateNames, state, &std::pair<State, QLatin1String>::second);
        if (state == forgottenName)
            photos_.remove(photo);
        else if (known != stateNames.end())
            photos_.insert(photo, {known->first, object.value(nameKey).toString(),
                                   object.value(jobKey).toInt(), object.value(printerKey).toString(),
                                   object.value(serverKey).toString(), object.value(titleKey).toString(),
                                   object.value(reasonKey).toString(), object.value(whenKey).toInteger()});
    }
}

const PhotoRecord *WatchRecord::find(const PhotoIdentity &photo) const
{
    const auto found = photos_.constFind(photo);
    return found == photos_.cend() ? nullptr : &*found;
}

std::optional<Failure<RecordFault>> WatchRecord::compact(const QList<FolderFile> &files,
                                                         const std::optional<PhotoRecord> &left)
{
    const qint64 now = QDateTime::currentSecsSinceEpoch();
    QSet<PhotoIdentity> present;
    auto photos = photos_;
    for (const FolderFile &file : files) {
        present.insert(file.identity);
        if (left && !photos.contains(file.identity)) {
            PhotoRecord record = *left;
            record.name = QFile::decodeName(file.name);
            record.when = now;
            photos.insert(file.identity, record);
        }
    }
    photos.removeIf([&present, now](const std::pair<const PhotoIdentity &, PhotoRecord &> &each) {
        return !present.contains(each.first) && each.second.when < now - longestAway;
    });
    QSaveFile file(path_);
    QByteArray content;
    for (auto each = photos.cbegin(); each != photos.cend(); ++each)
        content += lineOf(each.key(), each.value());
    const bool isWritten = file.open(QIODevice::WriteOnly) &&
                           file.setPermissions(QFile::ReadOwner | QFile::WriteOwner) &&
                           file.write(content) == content.size() && file.commit();
    if (!isWritten || !sync(QFileInfo(path_).path()))
        return failureWith(RecordFault::NotWritten, path_, errno);
    photos_ = photos;
    isNew_ = false;
    return openToAppend();
}

std::optional<Failure<RecordFault>> WatchRecord::openToAppend()
{
    file_ =
        pdekit::FileDescriptor(::open(QFile::encodeName(path_).constData(), O_WRONLY | O_APPEND | O_CLOEXEC));
    if (!file_.isOpen())
        return failureWith(RecordFault::NotWritten, path_, errno);
    size_ = ::lseek(file_.number(), 0, SEEK_END);
    return std::nullopt;
}

std::optional<Failure<RecordFault>> WatchRecord::append(const QByteArray &text)
{
    const QByteArray line = isCut_ ? '\n' + text : text;
    const ssize_t written = ::write(file_.number(), line.constData(), static_cast<size_t>(line.size()));
    const bool isWhole = written == line.size();
    if (isWhole && ::fdatasync(file_.number()) == 0) {
        size_ += line.size();
        isCut_ = false;
        return std::nullopt;
    }
    const int error = written < 0 || isWhole ? errno : ENOSPC;
    isCut_ = ::ftruncate(file_.number(), size_) != 0;
    return failureWith(RecordFault::NotWritten, path_, error);
}

std::optional<Failure<RecordFault>> WatchRecord::add(const PhotoIdentity &photo, PhotoRecord record)
{
    record.when = QDateTime::currentSecsSinceEpoch();
    auto failure = append(lineOf(photo, record));
    if (!failure)
        photos_.insert(photo, record);
    return failure;
}

std::optional<Failure<RecordFault>> WatchRecord::forget(const PhotoIdentity &photo)
{
    const auto known = photos_.constFind(photo);
    if (known == photos_.cend())
        return std::nullopt;
    PhotoRecord record{.name = known->name, .when = QDateTime::currentSecsSinceEpoch()};
    auto failure = append(lineOf(photo, forgottenName, record));
    if (!failure)
        photos_.remove(photo);
    return failure;
}

} // namespace printdialog
