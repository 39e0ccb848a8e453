// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QByteArray>

class QScreen;

namespace printdialog {

/// The ICC profile that the X server has for the screen ("ICC Profiles in X", 0.4), untrusted; empty when
/// there is none, when it has more than 4 MiB, and without X. Waits for the server's answer. Main thread
/// only.
QByteArray profileFromX(const QScreen &screen);

} // namespace printdialog
