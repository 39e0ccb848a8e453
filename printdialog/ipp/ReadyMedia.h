// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QList>
#include <QtCore/QSizeF>

namespace printdialog {

class IppAttributes;

/// The paper that a printer reports to be loaded (PWG 5100.7): `media-col-ready`, or else `media-ready`. A
/// print server with a PPD does not know it, and reports the PPD's default instead.
class ReadyMedia
{
public:
    explicit ReadyMedia(const IppAttributes &printer);

    /// False: the printer says nothing, which does not mean that it has no paper.
    bool isKnown() const { return !loaded_.isEmpty(); }
    /// Whether paper of this size, in points, is loaded, in either orientation. Half a millimeter more or
    /// less is the same size.
    bool has(const QSizeF &points) const;

private:
    struct Sides
    {
        int leastWidth;
        int mostWidth;
        int leastLength;
        int mostLength;
    };

    QList<Sides> loaded_; // in hundredths of a millimeter; a roll has ranges
};

} // namespace printdialog
