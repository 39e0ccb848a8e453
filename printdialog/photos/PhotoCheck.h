// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Photo.h"

#include <thread>

namespace printdialog {

/// Looks for damage in a photo's pixels on a thread of its own, beside what is done with the photo meanwhile.
class PhotoCheck
{
public:
    /// Begins, unless the photo was checked before.
    explicit PhotoCheck(const Photo &photo);
    /// Waits for the end.
    ~PhotoCheck();
    PhotoCheck(const PhotoCheck &) = delete;
    PhotoCheck &operator=(const PhotoCheck &) = delete;

    /// Waits for the end, and answers the damage; nothing when the photo is sound.
    std::optional<Failure<PhotoFault>> wait();

private:
    Photo photo_;
    std::thread thread_;
};

} // namespace printdialog
