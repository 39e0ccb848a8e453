// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "IppAttributes.h"
#include "OptionSource.h"

#include <QtCore/QList>

#include <optional>

namespace printdialog {

/// A paper size with its margins, in hundredths of a millimeter like IPP's.
struct IppSize
{
    struct Margins
    {
        int left = 0;
        int top = 0;
        int right = 0;
        int bottom = 0;

        bool areNone() const { return left == 0 && top == 0 && right == 0 && bottom == 0; }
        friend bool operator==(const Margins &, const Margins &) = default;
    };

    QString name; ///< self-describing (PWG 5101.1), such as "iso_a4_210x297mm"
    int width = 0;
    int length = 0;
    Margins margins = {};

    QSizeF points() const;
    /// The area inside the margins, in points from the top left; the sheet, when nothing is left inside.
    QRectF imageable() const;
    /// For a job. @param source, type their keywords; empty: the printer chooses
    IppAttributes mediaCol(const QString &source, const QString &type) const;
};

/// What a printer can print on (PWG 5100.7): `media-col-database`, or else `media-supported` with the margins
/// that the printer has. Each size counts once with margins, the widest, and once without.
class IppMedia
{
public:
    explicit IppMedia(const IppAttributes &printer);

    struct Listed
    {
        QString keyword; ///< the size's name; of the borderless twin of a size, with ".borderless" after it
        IppSize size;
        bool isTwin = false; ///< borderless, of a size that is there with margins, too
    };

    const QList<Listed> &sizes() const { return sizes_; }
    /// How many entries have no usable dimensions.
    int unusable() const { return unusable_; }
    /// The index of a size; negative when it is not listed.
    qsizetype indexOf(const QString &keyword) const { return indexOf_.value(keyword, -1); }
    /// The listed sizes that an entry like those of `media-col` means, by its dimensions, name and margins as
    /// far as it has them.
    QStringList keywordsOf(const IppAttributes &mediaCol) const;
    /// By its name, with its twin.
    QStringList keywordsOf(const QString &name) const;

    std::optional<CustomPageRange> customRange() const;
    /// A size within the range, with its margins.
    std::optional<IppSize> customSize(const QSizeF &points) const;

private:
    struct Range
    {
        int leastWidth;
        int leastLength;
        int mostWidth;
        int mostLength;
    };

    void readDatabase(const IppAttributes &printer);
    void readNames(const IppAttributes &printer);
    void readCustomNames(const QStringList &names);
    void add(const IppSize &size);
    void offer(const Range &range, const IppSize::Margins &margins);
    void list();

    QList<QList<IppSize>> found_; // variants of a size
    QHash<std::pair<int, int>, qsizetype> foundAt_;
    QList<Listed> sizes_;
    QHash<QString, qsizetype> indexOf_;
    std::optional<Range> range_;
    IppSize::Margins rangeMargins_;
    int unusable_ = 0;
};

} // namespace printdialog
