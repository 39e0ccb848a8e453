// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PanelTable.h"

#include <QtCore/QRandomGenerator>

/// One thing that the user or the dialog does.
struct Step
{
    enum Act {
        SlideKey,    ///< a key on the slider `tag`; `detail` is the Qt::Key
        TypeKey,     ///< the character `choice` at the end of the field `tag`
        TypeOver,    ///< the character `choice` over all that the field `tag` holds
        PasteText,   ///< the text `choice` from the clipboard over all that the field `tag` holds
        EraseKey,    ///< Backspace at the end of the field `tag`
        LeaveField,  ///< the focus goes to the dialog's own button
        ReturnKey,   ///< Return in the field `tag`
        ClickBox,    ///< the check box `tag`; `detail` 1 with the mouse, 0 with the keyboard
        ClickCell,   ///< the cell `detail` of the radio group `tag`
        ClickButton, ///< the button `tag`
        PickItem,    ///< a key on the pop-up `tag`; `detail` is the Qt::Key
        TellChange,  ///< the dialog reports that `key` has the choice `choice` now; an empty one is missing
        MarkChoice,  ///< the dialog marks `choice` for `key` in its PPD
        Refuse,      ///< the dialog refuses `key` from now on, or allows it again
        SetTicket,   ///< the dialog's print settings get `choice` for `key`; an empty one is taken out
        BreakTicket, ///< the print settings cannot be had from now on (`detail`: how), or can again (0)
        StoreBound,  ///< `choice` for `key` by the lamination panel's own road
        Restore,
        Save,
        Show,
    };

    Act act = Show;
    int tag = 0;
    int detail = 0;
    QString key = {};
    QString choice = {};

    /// As the failing test prints it.
    QString toText() const;
    /// A step that makes sense for the panel.
    static Step random(const PanelTable &table, QRandomGenerator &random);
};
