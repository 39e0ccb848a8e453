// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <lcms2.h>

#include <memory>

namespace printdialog::lcms {

struct ProfileCloser
{
    void operator()(void *profile) const { cmsCloseProfile(profile); }
};
struct TransformDeleter
{
    void operator()(void *transform) const { cmsDeleteTransform(transform); }
};

/// A cmsHPROFILE and a cmsHTRANSFORM with their owner.
using Profile = std::unique_ptr<void, ProfileCloser>;
using Transform = std::unique_ptr<void, TransformDeleter>;

} // namespace printdialog::lcms
