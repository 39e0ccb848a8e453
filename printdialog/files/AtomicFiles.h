// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "FileDescriptor.h"
#include "OutputFault.h"
#include "Result.h"

#include <QtCore/QIODevice>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <memory>
#include <optional>
#include <vector>

namespace printdialog {

class DescriptorDevice;

/// A set of files in one folder that appear together or not at all. Each is written without a name (O_TMPFILE
/// of open(2)), so that a crash leaves nothing behind, or under a unique hidden name if the file system lacks
/// that. Unless commit() succeeds, the folder is left as it was: earlier files of the same names are
/// untouched or put back, and temporary files and created folders are removed. At every moment, a file has
/// either its earlier or its new content. Exception: on a file system without hard links (FAT), a file that
/// has replaced an earlier one stays when a later file fails.
class AtomicFiles
{
public:
    /// Opens the folder. A missing one is created with its parents, like `mkdir -p`.
    static Result<AtomicFiles, OutputFault> open(const QString &folder);
    /// Removes what was not committed.
    ~AtomicFiles();
    AtomicFiles(AtomicFiles &&) noexcept;
    AtomicFiles &operator=(AtomicFiles &&) = delete;

    /// Creates a file. `name` is its final name, without a folder. This object owns the device, which is
    /// valid until commit().
    Result<QIODevice *, OutputFault> add(const QString &name);
    /// The failure of the first file that could not be written; names it by its final name.
    std::optional<Failure<OutputFault>> writeFailure() const;
    /// How to treat earlier files of the same names.
    enum class Earlier {
        Replaced,
        Kept, ///< An earlier file is the fault NameTaken, even if it appears at the last moment.
    };
    /// Syncs all files to the disk, then gives them their names. Returns their absolute paths in the order of
    /// add(). Call at most once.
    Result<QStringList, OutputFault> commit(Earlier earlier = Earlier::Replaced);

private:
    struct File
    {
        QByteArray name;      ///< The final name, in the file system's encoding.
        QByteArray temporary; ///< Its hidden name; empty while it has none.
        QByteArray earlier;   ///< A second name of the earlier file; empty when there is none.
        std::unique_ptr<DescriptorDevice> device;
        bool isInPlace = false;
        bool isForGood = false; ///< It replaces an earlier file that has no second name.
    };

    AtomicFiles();

    int makeFolders();
    void shareFolder();
    QString pathOf(const QByteArray &name) const;
    int finish(File &file) const;
    void keepEarlier(File &file) const;
    int putInPlace(File &file, Earlier earlier) const;
    int putInFreePlace(const File &file) const;
    void rollBack(File &file) const;
    void discard();

    QString folder_; ///< Absolute.
    pdekit::FileDescriptor descriptor_;
    std::vector<QByteArray> madeFolders_; ///< From the top down.
    std::vector<File> files_;
};

} // namespace printdialog
