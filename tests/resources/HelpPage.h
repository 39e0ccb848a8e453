// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QSize>
#include <QtCore/QStringList>

/// A word of the help, and the keyword of the PPD that it stands for.
struct HelpData
{
    QString value;
    QString text;
};

/// What a page says under one heading.
struct HelpTopic
{
    QString anchor;
    QString heading;
    QList<QList<HelpData>> facts; ///< one list for each row of its table of facts
};

/// A picture in a page.
struct HelpPicture
{
    QString file;
    QSize size;
    QString text; ///< for those who do not see it
};

/// A page of help as a browser reads it.
struct HelpPage
{
    QString error; ///< empty when it is well-formed
    QString language;
    QStringList anchors; ///< in order
    QStringList links;   ///< style sheets too
    QStringList terms;   ///< what is set in bold: buttons and keys
    QList<HelpPicture> pictures;
    QList<HelpTopic> topics;

    const HelpTopic *topic(const QString &anchor) const;
};

HelpPage readHelpPage(const QString &path);
