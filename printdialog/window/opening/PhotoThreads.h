// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <functional>

class QThreadPool;

namespace printdialog {

/// The priority of a photo; higher ones come first.
enum PhotoPriority { CheckedPhoto = -1, ThumbnailPhoto = 0, NeighborPhoto = 1, ShownPhoto = 2 };

/// The thread pool on which the window opens, decodes and checks photos. It is separate from the global pool,
/// on which Qt paints and scales: there Qt would wait until every photo is decoded. Tasks that have not begun
/// when the application ends are dropped.
QThreadPool &photoThreads();
/// Has one of these threads do the task. They give way to the rest of the program, and of the computer: a
/// window that opens waits for its printer's options on no more cores than it has.
void startPhotoTask(std::function<void()> task, PhotoPriority priority);

} // namespace printdialog
