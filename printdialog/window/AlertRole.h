// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

class QWidget;

namespace printdialog {

/// Has screen readers take messages and refusals for alerts, which they read out, and not for frames with
/// some text in them. Once is enough.
void installAlertRole();

/// Has a screen reader say what the widget's accessible name says now.
void announce(QWidget *alert);

} // namespace printdialog
