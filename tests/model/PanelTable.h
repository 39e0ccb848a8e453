// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QMap>
#include <QtCore/QMetaType>
#include <QtCore/QStringList>

#include <optional>

/// One control of a form.
struct FormControl
{
    enum Kind { Slider, Field, Label, Title, Box, Radio, PopUp, Button };

    int tag = 0;
    Kind kind = Slider;
    int minimum = 0; ///< positions of a slider
    int maximum = 0;
    int decimals = 0;       ///< of a slider: a position is a number times ten to this power
    int page = 5;           ///< positions of a slider's page
    QList<int> cells = {};  ///< tags of a radio group's cells
    QStringList items = {}; ///< choices of a pop-up
    bool mixed = false;     ///< a box has a third state
    int container = 0;      ///< controls with the same number lie in the same widget
};

/// One option of the test's PPD. The text of a choice is its keyword with "Text of " before it.
struct PpdOption
{
    QString key;
    QString defaultChoice;
    QStringList choices;
};

/// What is known of a panel without asking it: its form, its options, its tables of tags.
struct PanelTable
{
    enum Kind { Color, Sharpness, Lamination, Mixed };

    Kind kind = Color;
    std::optional<QByteArray> printersPpd = {}; ///< as the print system has it
    bool setsSliders = false;                   ///< the form's sliders take these ranges
    QList<FormControl> controls = {};
    QList<PpdOption> options = {}; ///< in the PPD
    QStringList keys = {};         ///< the panel's options, in its own order
    QMap<int, QString> keyOfTag = {};
    QMap<int, QString> cellChoice = {}; ///< by cell tag

    const PpdOption *option(const QString &key) const;
    std::optional<QString> key(int tag) const;
    QByteArray ppd() const;

    static PanelTable color();
    /// With the form's intensities, or negative ones and thousandths, too.
    static PanelTable sharpness(bool withThousandths = false);
    static PanelTable lamination(const std::optional<QByteArray> &printersPpd = {});
    /// A form with what the plug-in's own lack: a pop-up, a cell without a choice, a box with a third state,
    /// a field without a slider, gaps in the tags, and a key that the PPD lacks.
    static PanelTable mixed();
};

Q_DECLARE_METATYPE(PanelTable)
