// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PlatformException.h"

namespace pdekit {

PlatformException::~PlatformException() = default;

} // namespace pdekit
