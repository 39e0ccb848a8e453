// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "DocumentIntake.h"

namespace printdialog {

/// A failure with its sentence. @param name of the document, for people
Failure<IntakeFault> intakeFailure(IntakeFault fault, const QString &name, const IntakeLimits &limits);

} // namespace printdialog
