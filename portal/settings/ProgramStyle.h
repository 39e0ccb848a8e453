// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ArrangementStyle.h"
#include "PortalAnswer.h"

namespace printdialog {

class PortalSettings;
struct PreparedPrint;

/// How the pages lie on sheets by a program's settings, where the dialog can do it as well. Otherwise, as
/// with pages in columns, they are left to the program.
ArrangementStyle programStyle(const PortalSettings &settings);

/// Who arranges the pages: the dialog, unless the program has an order of its own for pages on a sheet and
/// the user has chosen none here.
PagesBy arrangedBy(const PortalSettings &settings, const PreparedPrint &print);

} // namespace printdialog
