// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PhotoFile.h"
#include "Result.h"

#include <QtCore/QByteArray>
#include <QtCore/QCoreApplication>
#include <QtCore/QString>

namespace printdialog {

/// The format of a file's content, and whether it can be read here. A value.
class PhotoFormat
{
    Q_DECLARE_TR_FUNCTIONS(printdialog::PhotoFormat)

public:
    /// By the first bytes of a file, a few thousand at most. Drawings, and formats that are recognized by a
    /// file's name alone, are no photos.
    static PhotoFormat of(const QByteArray &head);
    /// What a camera stores unprocessed; cannot be read.
    static PhotoFormat ofCamera();

    /// As the image reader names it, but "heif" and "avif" for what libheif reads. Empty when nothing of what
    /// is installed can read it.
    QByteArray name() const { return isReadable_ ? name_ : QByteArray(); }
    bool isReadable() const { return isReadable_; }
    bool isHeif() const { return isHeif(name_); }
    static bool isHeif(const QByteArray &name) { return name == "heif" || name == "avif"; }

    /// Why a file of this format cannot be read: the package that it needs, or what can be read instead.
    Failure<PhotoFault> failure(const QString &path) const;
    /// What can be read here, as people call it: "JPEG, PNG, ...".
    static QString readableTexts();

private:
    QByteArray name_;
    QString text_;    ///< as people call it; empty when it is not known
    QString package_; ///< what would read it; empty when nothing would
    bool isReadable_ = false;
};

} // namespace printdialog
