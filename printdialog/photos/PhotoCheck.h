// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Photo.h"

#include <QtCore/QList>

#include <thread>

namespace printdialog {

/// Checks photos' pixels for damage, one after the other on a separate thread, while the caller works with
/// them.
class PhotoCheck
{
public:
    /// Starts the check, unless all photos are already checked.
    explicit PhotoCheck(const QList<Photo> &photos);
    /// Waits for the check to end.
    ~PhotoCheck();
    PhotoCheck(const PhotoCheck &) = delete;
    PhotoCheck &operator=(const PhotoCheck &) = delete;

    /// Waits for the check to end and returns the first damage; nothing when the photos are intact.
    std::optional<Failure<PhotoFault>> wait();

private:
    QList<Photo> photos_;
    std::thread thread_;
};

} // namespace printdialog
