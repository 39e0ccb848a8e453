// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QTranslator>

class QLocale;

namespace pdekit {

/// The texts of a bundle in one language: Qt Linguist's Localizable_<language>.qm, context "Localizable".
/// What stands in the file is looked over before QTranslator reads it, which follows the lengths and places
/// in a damaged one out of its memory. Main thread only.
class StringsTable
{
public:
    /// Takes the table of the first of the locale's languages that `folder` has, else the English one; none
    /// where both are missing. A damaged one is not used, and is named in the system log.
    void load(const QLocale &locale, const QString &folder);

    /// The text for `key`; null where the table has none.
    QString text(const QString &key) const;

    /// Whether QTranslator can read this content of a .qm file safely: every block, list and message ends
    /// within it, and it leads to no other file. What the texts say is not looked at.
    static bool isSound(QByteArrayView qm);

private:
    bool take(const QString &path);

    QByteArray content_; ///< read by translator_ in place
    QTranslator translator_;
};

} // namespace pdekit
