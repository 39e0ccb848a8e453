// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QSizeF>
#include <QtCore/QString>

namespace printdialog {

/// The self-describing name (PWG 5101.1) of a paper size in points: "iso_a4_210x297mm"; of a size without a
/// name of its own "custom_...".
QString mediaName(const QSizeF &points);

} // namespace printdialog
