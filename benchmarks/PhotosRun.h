// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QString>

/// Opens the dialog with a folder's photos as the program does, and scrolls their strip to its end. Prints
/// the monotonic milliseconds of the first paint, of the first photo with others to scroll to, and of the
/// last photo opened; then the longest time in milliseconds without a turn of the event loop since, and the
/// peak memory in MiB. Ends the process.
int runPhotos(const QString &folder);
