// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QByteArrayView>

namespace printdialog {

/// Reads the integers of a TIFF block in its byte order, never outside the block.
class TiffNumbers
{
public:
    explicit TiffNumbers(QByteArrayView block)
        : block_(block)
        , isBigEndian_(block.startsWith(QByteArrayView("MM\0*", 4)))
    {
    }

    bool isTiff() const { return isBigEndian_ || block_.startsWith(QByteArrayView("II*\0", 4)); }

    /// The integer of that many bytes, or 0 beyond the end of the block.
    quint32 at(qsizetype offset, int bytes) const
    {
        if (offset < 0 || offset > block_.size() - bytes)
            return 0;
        quint32 number = 0;
        for (int i = 0; i < bytes; ++i)
            number = number << 8 | static_cast<quint8>(block_[offset + (isBigEndian_ ? i : bytes - 1 - i)]);
        return number;
    }

    QByteArray bytes(qsizetype offset, qsizetype size) const
    {
        return offset <= block_.size() - size ? block_.sliced(offset, size).toByteArray() : QByteArray();
    }

private:
    QByteArrayView block_;
    bool isBigEndian_;
};

} // namespace printdialog
