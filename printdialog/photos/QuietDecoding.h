// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "FileDescriptor.h"

namespace printdialog {

/// While it exists, redirects the output of image libraries on standard error to the log. libtiff and others
/// write there from within Qt's plug-ins, where their message handlers cannot be set. Only the beginning of
/// long output is kept.
///
/// Standard error belongs to the process, so this does nothing unless the program enables it. It is meant for
/// programs whose standard error is read and that decode on one thread.
class QuietDecoding
{
public:
    static void enable();

    QuietDecoding();
    ~QuietDecoding();
    QuietDecoding(const QuietDecoding &) = delete;
    QuietDecoding &operator=(const QuietDecoding &) = delete;

private:
    pdekit::FileDescriptor standardError_; ///< The original one; closed when nothing is redirected.
    pdekit::FileDescriptor written_;
};

} // namespace printdialog
