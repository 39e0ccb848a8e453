// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Destination.h"

#include <QtCore/QList>
#include <QtCore/QMetaType>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>

namespace printdialog {

/// A ribbon, ink or other supply of a printer, as far as the server knows it. For information: it never
/// prevents a job from being sent.
struct Supply
{
    QString name;             ///< For people, in the server's words.
    std::optional<int> level; ///< In percent; nothing when unknown.
    bool isLow = false;       ///< Below the printer's own threshold.

    friend bool operator==(const Supply &, const Supply &) = default;
};

/// A printer that can be chosen: a queue of the print server, with an optional instance, or the built-in one.
/// A plain value. All texts are plain text, without control characters and limited in length.
struct Queue
{
    enum class State { Idle, Processing, Stopped, Unknown };

    QString name;         ///< The destination's name at the server.
    QString instance;     ///< The user's instance (lpoptions); mostly empty.
    QString info;         ///< The description for people; the name when the server has none.
    QString location;     ///< The printer's location; may be empty.
    QString makeAndModel; ///< May be empty.
    QString deviceUri;    ///< Where the server sends its jobs; may be empty.
    QString uri;          ///< The queue's own address at its server; may be empty.
    State state = State::Unknown;
    QStringList stateReasons; ///< Keywords such as "media-empty-error"; may be empty.
    QString stateMessage;     ///< The server's message about the state; may be empty.
    QList<Supply> supplies;   ///< Empty when the server knows none, as before a queue's first job.
    QStringList members;      ///< Of a class: the names of its queues.
    bool acceptsJobs = false;
    bool isDefault = false; ///< The user's default, or else the server's.
    bool isClass = false;
    bool isBuiltIn = false;
    /// A printer on the network that announces itself: it has none but a temporary queue, which the server
    /// removes a minute after its last job, and `deviceUri` is what one is made with.
    bool isAnnounced = false;

    /// "name" or "name/instance": the identifier in settings, on the command line, and in this library.
    QString id() const { return destination().id(); }
    Destination destination() const { return {name, instance}; }

    /// The built-in printer, which needs no server: it writes its jobs as files.
    static Queue builtIn();

    /// A printer by its address (Destination::isAddress()), before it was asked about itself.
    static Queue at(const Destination &address);

    friend bool operator==(const Queue &, const Queue &) = default;
};

} // namespace printdialog

Q_DECLARE_METATYPE(printdialog::Queue)
