// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "OptionSource.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QJsonArray>
#include <QtCore/QStringList>

namespace printdialog {

class DialogSession;

/// The options of a printer and their current choices in a session, for people and for programs. A snapshot.
class OptionTable
{
    Q_DECLARE_TR_FUNCTIONS(OptionTable)

public:
    explicit OptionTable(const DialogSession &session);

    /// A table with a header and aligned columns; an option's numbers are shortened to their range.
    QStringList lines() const;
    QJsonArray json() const;

private:
    struct Row
    {
        QString keyword;
        QString text;
        std::optional<QString> choice;
        std::optional<QString> defaultChoice;
        std::optional<QString> panel; ///< the name of the panel that handles it
        QList<Choice> choices;
        QString custom;                           ///< the spelling and range of its custom choices
        std::optional<CustomPageRange> pageRange; ///< of the page size
    };

    static QString shortened(const Row &row);

    QList<Row> rows_;
};

} // namespace printdialog
