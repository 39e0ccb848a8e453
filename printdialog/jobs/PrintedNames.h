// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QSet>
#include <QtCore/QString>

namespace printdialog {

/// The names that one run of printing has given to its files, so that photos of the same name from different
/// folders do not replace each other.
class PrintedNames
{
public:
    /// The name for a photo's files, without suffix: the photo's file name without its last suffix, control
    /// characters and leading dots; "photo" when nothing is left. `photo-2`, `photo-3`, ... when it is taken.
    QString nameFor(const QString &photoPath) const;
    void take(const QString &name) { taken_.insert(name); }

private:
    QSet<QString> taken_;
};

} // namespace printdialog
