// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PhotoCheck.h"

#include <system_error>

namespace printdialog {

PhotoCheck::PhotoCheck(const Photo &photo)
    : photo_(photo)
{
    if (photo.isChecked())
        return;
    try {
        thread_ = std::thread([photo] { (void)photo.damage(); });
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
    return photo_.damage();
}

} // namespace printdialog
