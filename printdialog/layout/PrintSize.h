// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QCoreApplication>
#include <QtCore/QLocale>
#include <QtCore/QSizeF>
#include <QtCore/QString>

#include <optional>
#include <span>

namespace printdialog {

inline constexpr double pointsPerInch = 72;
inline constexpr double pointsPerMillimeter = pointsPerInch / 25.4;

/// A length as people and scripts write it: a number and one of mm, cm, in, pt. Nothing for any other text,
/// and for a length that is not finite. In points.
std::optional<double> lengthFromText(const QString &text);
/// The length as a script writes it, in the unit that needs the fewest digits: "3mm", "0.5in".
QString lengthText(double points);

/// A length and two sides in the user's own units, rounded for reading: "3 mm", "10.2 × 15.2 cm", "4 × 6 in".
QString localLengthText(double points);
QString localSizeText(const QSizeF &points);

/// The size that a photo is printed with, whatever the paper. A value.
struct PrintSize
{
    QSizeF points;                 ///< Of the upright print; positive.
    bool keepsOrientation = false; ///< Whether a wide photo gets an upright print of this size, too.

    /// The longest side that can be asked for, in points: 2 m.
    static constexpr double longestSide = 2000 * pointsPerMillimeter;
    /// The shortest one: 5 mm.
    static constexpr double shortestSide = 5 * pointsPerMillimeter;

    /// A known name ("10x15cm", "passport") or WIDTHxHEIGHT with a unit, such as "9x13cm", "35x45mm",
    /// "4x6in". Nothing for any other text, and for sides beyond the limits.
    static std::optional<PrintSize> fromText(const QString &text);
    /// The text that fromText() reads as this size.
    QString toText() const;
    /// Both sides in the user's words: "10 × 15 cm".
    QString localText() const;

    friend bool operator==(const PrintSize &one, const PrintSize &other)
    {
        return one.keepsOrientation == other.keepsOrientation && one.points == other.points;
    }
};

/// A size that is offered by name.
struct KnownPrintSize
{
    Q_DECLARE_TR_FUNCTIONS(printdialog::KnownPrintSize)

public:
    const char *id;   ///< For scripts: "10x15cm", "passport".
    const char *name; ///< For people, untranslated; null: the size itself is the name.
    PrintSize size;

    QString text() const;
    /// In the order in which they are offered: metric, in inches, small formats.
    static std::span<const KnownPrintSize> all();
};

} // namespace printdialog
