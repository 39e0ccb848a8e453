// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QObject>
#include <QtCore/QStringList>

namespace pdekit {

/// An optional interface of a panel: names options that it handles but does not show for this printer. The
/// dialog shows them on its own page, and reports what is chosen there by
/// PPDOptionKeyValueDidChangePpdChoice, so that the panel saves it.
class RetiredOptions
{
public:
    virtual ~RetiredOptions() = default;

    /// The keywords of these options, each one of supportedPPDOptionKeys. Asked after the panel has restored
    /// the job's choices, and again after its view was made and shown (willShow); a run without a window asks
    /// without a view.
    virtual QStringList retiredOptionKeys() = 0;
};

} // namespace pdekit

Q_DECLARE_INTERFACE(pdekit::RetiredOptions, "org.corvel.pdekit.RetiredOptions/1")
