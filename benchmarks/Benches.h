// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QStringList>

/// Process start to painted dialog, ours beside Qt's and GTK's with a PPD's options; each run in a new
/// process.
void benchOpening();
/// What such a process does with Qt's dialog. Ends the process at the first paint, whose time it prints.
int runOpeningChild();

/// What print servers add to the painted window: one that never answers, one with 500 queues.
void benchQueues();
/// What such a process does: opens the window and reports when it was painted and had listed the queues.
int runQueueChild(int queues);

/// Printing to a queue without a window, beside lp.
void benchJobs();

/// A keystroke, and restoring with the summary, with PPDs of different sizes.
void benchPanels();

/// The dialog's own page of options: turning to it, and a choice on it, with few and with many options.
void benchOptionPage();

/// A step of a slider to the painted preview, with all adjustments, beside what others take for the pixels
/// alone.
void benchPreview();
/// What such a process does: opens the window with a photo, and prints what it measures.
int runPreviewChild(const QStringList &arguments);

/// Launching the backend, beside a bare posix_spawn of the same.
void benchRunner();

/// Photos of three sizes to PDF, beside img2pdf and ImageMagick, with the memory that it takes.
void benchPdf();

/// The window with a thousand photos: until it can be used, and the memory that it takes.
void benchPhotos();

/// Hundreds of photos on sheets in one PDF, beside img2pdf and CUPS's own filter.
void benchSheets();

/// The print portal beside GTK's: from a program's call to the painted dialog.
void benchPortal();

/// What adjusting the preview's picture takes, beside lcms2's own table.
void benchAdjustments();
