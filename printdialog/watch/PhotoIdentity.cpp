// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PhotoIdentity.h"

#include <sys/stat.h>
#include <sys/vfs.h>

#include <algorithm>
#include <array>

namespace printdialog {

namespace {

struct KindRow
{
    quint32 magic; ///< statfs(2), linux/magic.h
    FolderKind kind;
};

constexpr std::array kindRows = {
    KindRow{0x6969, {false, true}},      // NFS
    KindRow{0x00c36400, {false, true}},  // Ceph
    KindRow{0x73757245, {false, true}},  // Coda
    KindRow{0x517b, {false, false}},     // SMB
    KindRow{0xff534d42, {false, false}}, // CIFS
    KindRow{0xfe534d42, {false, false}}, // SMB 2
    KindRow{0x65735546, {false, false}}, // FUSE
    KindRow{0x01021997, {false, false}}, // 9P
    KindRow{0x5346414f, {false, false}}, // AFS
    KindRow{0x6b414653, {false, false}}, // the kernel's own AFS
    KindRow{0x786f4256, {false, false}}, // folders shared with VirtualBox
    KindRow{0x4d44, {true, false}},      // FAT
    KindRow{0x2011bab0, {true, false}},  // exFAT
};

} // namespace

FolderKind FolderKind::of(const QByteArray &folder)
{
    struct statfs status = {};
    if (::statfs(folder.constData(), &status) != 0)
        return {};
    const auto *row = std::ranges::find(kindRows, static_cast<quint32>(status.f_type), &KindRow::magic);
    return row == kindRows.end() ? FolderKind() : row->kind;
}

PhotoIdentity PhotoIdentity::of(const struct stat &status, const QByteArray &name, const FolderKind &kind)
{
    constexpr qint64 perSecond = 1'000'000'000;
    return {kind.keepsInodes ? static_cast<qint64>(status.st_ino) : 0, status.st_size,
            status.st_mtim.tv_sec * perSecond + status.st_mtim.tv_nsec,
            kind.keepsInodes ? QByteArray() : name};
}

size_t qHash(const PhotoIdentity &identity, size_t seed)
{
    return qHashMulti(seed, identity.inode, identity.size, identity.modified, identity.name);
}

} // namespace printdialog
