// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "pdekit_export.h"

#include <QtCore/QJsonValue>
#include <QtCore/QString>

#include <memory>
#include <optional>

struct QMetaObject;

namespace pdekit {

/// Why a folder is not a bundle.
enum class BundleFault {
    NotFound,      ///< there is no such folder
    NoInfo,        ///< it has no Contents/Info.json
    InfoTooLarge,  ///< its Info.json is larger than any real one (64 KiB)
    BrokenInfo,    ///< its Info.json is not a JSON object
    NoIdentifier,  ///< its Info.json has no "CFBundleIdentifier"
    BadExecutable, ///< "CFBundleExecutable" is missing or is not a plain file name
};

/// A folder of code and resources, the unit in which a plug-in is shipped:
///
///     NAME.bundle/Contents/Info.json             the information property list
///     NAME.bundle/Contents/Linux/                the module and auxiliary executables
///     NAME.bundle/Contents/Resources/            forms, help books, Localizable_<language>.qm
///
/// A value; copies share their data. Main thread only.
class PDEKIT_EXPORT Bundle
{
public:
    /// The bundle at `path`; nothing when there is none, with the reason in `fault` unless that is null.
    static std::optional<Bundle> open(const QString &path, BundleFault *fault = nullptr);
    /// The bundle of the module or program that contains the class; when that is not in a bundle, an empty
    /// bundle with that file's folder as its path.
    static Bundle bundleForClass(const QMetaObject &metaObject);

    /// Absolute.
    QString path() const;
    QString identifier() const;
    /// The entry of the information property list; undefined when it has none.
    QJsonValue infoValue(const QString &key) const;

    /// The absolute path of the bundle's module; the file need not exist.
    QString executablePath() const;
    /// The file `name` beside the module; not checked to be executable.
    std::optional<QString> pathForAuxiliaryExecutable(const QString &name) const;
    /// The path of the resource `name`.`type`; the name may include folders.
    std::optional<QString> pathForResource(const QString &name, const QString &type) const;

    /// The text for `key` in the strings table (Qt Linguist, context "Localizable") of the first of the
    /// user's languages that the bundle has, else of English. Without an entry: `value`, or, when that is
    /// empty, the key itself.
    QString localizedString(const QString &key, const QString &value = QString()) const;

private:
    struct Content;
    explicit Bundle(std::shared_ptr<Content> content);

    std::shared_ptr<Content> content_;
};

} // namespace pdekit
