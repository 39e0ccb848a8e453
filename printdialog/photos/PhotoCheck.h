// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Photo.h"

#include <thread>

namespace printdialog {

/// Checks a photo's pixels for damage on a separate thread, while the caller works with the photo.
class PhotoCheck
{
public:
    /// Starts the check, unless the photo is already checked.
    explicit PhotoCheck(const Photo &photo);
    /// Waits for the check to end.
    ~PhotoCheck();
    PhotoCheck(const PhotoCheck &) = delete;
    PhotoCheck &operator=(const PhotoCheck &) = delete;

    /// Waits for the check to end and returns the damage; nothing when the photo is intact.
    std::optional<Failure<PhotoFault>> wait();

private:
    Photo photo_;
    std::thread thread_;
};

} // namespace printdialog
