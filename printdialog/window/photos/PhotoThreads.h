// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

class QThreadPool;

namespace printdialog {

/// How soon a photo is wanted; the higher one comes first.
enum PhotoPriority { CheckedPhoto = -1, ThumbnailPhoto = 0, ShownPhoto = 1 };

/// The threads on which the window opens, decodes and checks photos. Not the application's own pool: Qt
/// paints and scales on that one, and would wait there until every photo is decoded. What has not begun when
/// the application ends is left out.
QThreadPool &photoThreads();

} // namespace printdialog
