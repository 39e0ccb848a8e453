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
/// of open(2)), so that a crash leaves nothing behind; where the file system cannot do that, under a hidden
/// name that nobody else has. Unless commit() succeeds, the folder is left as it was: earlier files of the
/// same names untouched or put back, nothing temporary, and no folder that was made for this. A file never
/// has a moment without either its earlier or its new content. What cannot be had where the file system knows
/// one name only for each file (FAT): there, what has replaced an earlier file stays when the next one fails.
class AtomicFiles
{
public:
    /// Opens the folder. A missing one is made, with the folders above it, as `mkdir -p` does.
    static Result<AtomicFiles, OutputFault> open(const QString &folder);
    /// Removes what was not committed.
    ~AtomicFiles();
    AtomicFiles(AtomicFiles &&) noexcept;
    AtomicFiles &operator=(AtomicFiles &&) = delete;

    /// Begins a file. `name` is its final name, without a folder. The device belongs to this object and is
    /// valid until commit().
    Result<QIODevice *, OutputFault> add(const QString &name);
    /// The failure of the first file that could not be written, by its final name.
    std::optional<Failure<OutputFault>> writeFailure() const;
    /// What becomes of earlier files of the same names.
    enum class Earlier {
        Replaced,
        Kept, ///< One of them is the fault NameTaken, also when it appears at the last moment.
    };
    /// Brings all files to the disk, then gives them their names. Answers their absolute paths in the order
    /// of add(). May be called once.
    Result<QStringList, OutputFault> commit(Earlier earlier = Earlier::Replaced);

private:
    struct File
    {
        QByteArray name;      ///< The final one, in the file system's encoding.
        QByteArray temporary; ///< Its hidden name; empty as long as it has none.
        QByteArray earlier;   ///< Another name of an earlier file; empty when there is none.
        std::unique_ptr<DescriptorDevice> device;
        bool isInPlace = false;
        bool isForGood = false; ///< It replaces an earlier file that has no other name.
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
