// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Feedback.h"

namespace pdekit {

/// The user's desktop: its bell, a message box, the program that opens HTML pages.
class DesktopFeedback final : public Feedback
{
public:
    void beep() override;
    void alert(const Alert &alert) override;
    /// A help book is a folder of HTML pages. Its start page is `index_<language>.html` for the first of the
    /// user's languages that the book has, else `index.html`.
    bool openHelpBook(const Bundle &bundle, const QString &name) override;
};

} // namespace pdekit
