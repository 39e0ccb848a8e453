// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QObject>
#include <QtCore/QString>

#include <optional>

class QWidget;

namespace pdekit {

/// An optional interface of a panel: receives a choice from a program, such as the command line, and handles
/// it like one of the user's.
class ChoiceReceiver
{
public:
    virtual ~ChoiceReceiver() = default;

    /// Offers `choice` for the option `key` to the print system, and records it unless it is refused.
    /// `sender` is the control that the user acted on, null for a program's choice. False: not recorded.
    virtual bool markChoiceForPPDOptionKeyFromSender(const std::optional<QString> &choice,
                                                     const std::optional<QString> &key, QWidget *sender) = 0;
};

} // namespace pdekit

Q_DECLARE_INTERFACE(pdekit::ChoiceReceiver, "org.corvel.pdekit.ChoiceReceiver/1")
