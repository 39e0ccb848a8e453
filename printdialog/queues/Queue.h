// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QMetaType>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace printdialog {

/// A printer that can be chosen: a queue of the print server, with the user's instance of it, or the built-in
/// one. A plain value. Every text in it is plain text, cleaned of control characters and limited in length.
struct Queue
{
    enum class State { Idle, Processing, Stopped, Unknown };

    QString name;         ///< The destination's name, as the server knows it.
    QString instance;     ///< The user's own variant (lpoptions); mostly empty.
    QString info;         ///< The description for people; the name when the server has none.
    QString location;     ///< Where it stands; may be empty.
    QString makeAndModel; ///< May be empty.
    QString deviceUri;    ///< Where the server sends its jobs; may be empty.
    State state = State::Unknown;
    QStringList stateReasons; ///< Keywords such as "media-empty-error"; empty when there is nothing to say.
    bool acceptsJobs = false;
    bool isDefault = false; ///< The user's default, or else the server's.
    bool isClass = false;
    bool isBuiltIn = false;

    /// "name", or "name/instance": what identifies it in settings, on the command line, and in this library.
    QString id() const;

    /// The printer that needs no server: it leaves its jobs as files.
    static Queue builtIn();

    friend bool operator==(const Queue &, const Queue &) = default;
};

} // namespace printdialog

Q_DECLARE_METATYPE(printdialog::Queue)
