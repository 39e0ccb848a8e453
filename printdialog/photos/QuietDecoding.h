// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "FileDescriptor.h"

namespace printdialog {

/// While it lives, what image libraries write to standard error goes to the log instead. libtiff and others
/// write there by themselves, behind Qt's plug-ins, where their handlers are out of reach. Of a flood only
/// the beginning is kept.
///
/// Standard error is the whole process's, so that it does nothing unless the program has asked for it. That
/// is for programs whose standard error is read, and which decode on one thread.
class QuietDecoding
{
public:
    static void enable();

    QuietDecoding();
    ~QuietDecoding();
    QuietDecoding(const QuietDecoding &) = delete;
    QuietDecoding &operator=(const QuietDecoding &) = delete;

private:
    pdekit::FileDescriptor standardError_; ///< The real one; closed when nothing is redirected.
    pdekit::FileDescriptor written_;
};

} // namespace printdialog
