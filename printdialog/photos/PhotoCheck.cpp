// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PhotoCheck.h"

#include <algorithm>
#include <system_error>

namespace printdialog {

PhotoCheck::PhotoCheck(const QList<Photo> &photos)
    : photos_(photos)
{
    if (std::ranges::all_of(photos, &Photo::isChecked))
        return;
    try {
        thread_ = std::thread([photos] {
            for (const Photo &photo : photos)
                (void)photo.damage();
        });
    } catch (const std::system_error &) {
        // No thread could be started; wait() does the work.
    }
}

PhotoCheck::~PhotoCheck()
{
    if (thread_.joinable())
        thread_.join();
}

std::optional<Failure<PhotoFault>> PhotoCheck::wait()
{
    if (thread_.joinable())
        thread_.join();
    for (const Photo &photo : std::as_const(photos_)) {
        if (auto damage = photo.damage())
            return damage;
    }
    return std::nullopt;
}

} // namespace printdialog
