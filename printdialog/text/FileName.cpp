// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "FileName.h"

#include <QtCore/QStringDecoder>
#include <QtCore/QUrl>

#include <algorithm>

namespace printdialog {
namespace {

constexpr char16_t firstByte = 0xdc00;

bool isByte(QChar character)
{
    return character.unicode() >= firstByte + 0x80 && character.unicode() <= firstByte + 0xff;
}

/// How many bytes the character takes that begins there, by its first byte; 1 for what begins none.
qsizetype sequenceLength(char first)
{
    const auto byte = static_cast<quint8>(first);
    return byte >= 0xf0 ? 4 : byte >= 0xe0 ? 3 : byte >= 0xc0 ? 2 : 1;
}

QString decoded(QByteArrayView bytes, bool &isValid)
{
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString text = decoder.decode(bytes);
    isValid = !decoder.hasError();
    return text;
}

} // namespace

QString fileNameFromBytes(const QByteArray &bytes)
{
    bool isValid = false;
    QString name = decoded(bytes, isValid);
    if (isValid)
        return name;
    name.clear();
    for (qsizetype i = 0; i < bytes.size();) {
        const qsizetype length = std::min(sequenceLength(bytes[i]), bytes.size() - i);
        const QString character = decoded(QByteArrayView(bytes).sliced(i, length), isValid);
        if (isValid) {
            name += character;
            i += length;
        } else {
            name += QChar(static_cast<char16_t>(firstByte + static_cast<quint8>(bytes[i])));
            ++i;
        }
    }
    return name;
}

QByteArray bytesOfFileName(const QString &name)
{
    QByteArray bytes;
    qsizetype begin = 0;
    for (qsizetype i = 0; i < name.size(); ++i) {
        if (name[i].isHighSurrogate() && i + 1 < name.size() && name[i + 1].isLowSurrogate()) {
            ++i;
        } else if (isByte(name[i])) {
            bytes += QStringView(name).sliced(begin, i - begin).toUtf8();
            bytes += static_cast<char>(name[i].unicode() - firstByte);
            begin = i + 1;
        }
    }
    return bytes + QStringView(name).sliced(begin).toUtf8();
}

std::optional<QString> fileOfUrl(const QUrl &url)
{
    const bool isHere = url.host().isEmpty() || url.host() == QLatin1String("localhost");
    if (!url.isLocalFile() || !isHere || url.path().isEmpty())
        return std::nullopt;
    // QUrl's own text leaves what is not UTF-8 in its per-cent form, which is another file's name.
    const QByteArray bytes = QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1());
    if (bytes.contains('\0')) // the system would read it as the name before that
        return std::nullopt;
    return fileNameFromBytes(bytes);
}

} // namespace printdialog
