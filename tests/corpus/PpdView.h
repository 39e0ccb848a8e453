// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace corpus {

struct OptionView
{
    std::vector<std::string> choices; ///< keywords, in the PPD's order
    std::string defaultChoice;        ///< empty when it is not one of the choices
    std::string marked;               ///< after the defaults are marked; empty for none
    std::set<std::string> refused;    ///< the choices that conflict with the marked defaults
};

/// What one of the two finds in a PPD.
struct PpdView
{
    std::vector<std::string> order; ///< option keywords
    std::map<std::string, OptionView> options;
    bool defaultsConflict = false;
    std::vector<std::string> remarks; ///< what is worth knowing but not compared
};

/// The view, or why the PPD is not opened.
struct Opening
{
    std::optional<PpdView> view;
    std::string failure;
};

/// libcups' own, by plain loops over its record, without any of this system's code. Of what can never be
/// chosen by a keyword alone it leaves out the same as this system promises to: an option without choices,
/// the second record of an option in two groups, choices that repeat an earlier one, and custom choices.
/// Where the default page size cannot be printed on, the first that can is marked.
Opening libcupsView(const std::string &ppd);

/// This system's: inspection, opening and constraint handling; with the trial in a separate process if
/// wanted.
Opening ourView(const std::string &ppd, const std::string &name, bool withTrial);

} // namespace corpus
