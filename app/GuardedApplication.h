// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtWidgets/QApplication>

namespace printdialog {

/// Catches exceptions of panels' event handlers: in Qt's event loop they would end the program.
class GuardedApplication final : public QApplication
{
public:
    using QApplication::QApplication;

    bool notify(QObject *receiver, QEvent *event) override;
};

} // namespace printdialog
