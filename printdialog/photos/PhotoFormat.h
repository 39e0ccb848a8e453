// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PhotoFile.h"
#include "Result.h"

#include <QtCore/QByteArray>
#include <QtCore/QCoreApplication>
#include <QtCore/QString>

namespace printdialog {

/// The format of a file's content, and whether it can be read on this system. A value.
class PhotoFormat
{
    Q_DECLARE_TR_FUNCTIONS(printdialog::PhotoFormat)

public:
    /// Detects the format by the first bytes of a file, a few thousand at most. Vector drawings, and formats
    /// that can be recognized only by name, do not count as photos.
    static PhotoFormat of(const QByteArray &head);
    /// A camera's raw format, which cannot be read.
    static PhotoFormat ofCamera();

    /// The image reader's name of the format, or "heif" or "avif" for libheif. Empty when no installed
    /// library can read it.
    QByteArray name() const { return isReadable_ ? name_ : QByteArray(); }
    bool isReadable() const { return isReadable_; }
    bool isHeif() const { return isHeif(name_); }
    static bool isHeif(const QByteArray &name) { return name == "heif" || name == "avif"; }

    /// Why a file of this format cannot be read: the text names the package that it needs, or the readable
    /// formats.
    Failure<PhotoFault> failure(const QString &path) const;
    /// The readable formats for people: "JPEG, PNG, ...".
    static QString readableTexts();

private:
    QByteArray name_;
    QString text_;    ///< its name for people; empty when unknown
    QString package_; ///< the package that would read it; empty when there is none
    bool isReadable_ = false;
};

} // namespace printdialog
