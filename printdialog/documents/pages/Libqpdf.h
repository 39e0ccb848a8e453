// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

// clang 14 cannot compile this header of libqpdf 11 as C++20 with GCC's library; nothing here uses it.
#ifdef __clang__
#define JSON_HH
class JSON;
#endif

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFPageObjectHelper.hh>
