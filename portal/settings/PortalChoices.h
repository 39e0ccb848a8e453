// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ProgramDocument.h"

namespace printdialog {

class OptionSource;
class PortalSettings;

/// What a program asks for in the words of this printer: choices to be made one after the other, and a
/// sentence about what the printer does not have. Where a setting and a printer's own option ("cups-KEY")
/// mean the same, the latter comes last and so counts.
ProgramChoices portalChoices(const PortalSettings &settings, const OptionSource &source);

} // namespace printdialog
