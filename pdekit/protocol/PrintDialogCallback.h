// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QObject>

struct ppd_file_s;

namespace pdekit {

class Printer;
class PrintSession;

/// What a panel can request from the dialog. The dialog passes a panel one QObject, the callback object, that
/// implements this interface and, if the dialog checks the PPD's constraints itself, also ConstraintHandling.
/// Everything that it returns is owned by the dialog, and may be null.
class PrintDialogCallback
{
public:
    virtual ~PrintDialogCallback() = default;

    virtual PrintSession *printSession() = 0;
    virtual Printer *PMPrinter() = 0;
    /// The libcups record that holds the marked choices.
    virtual ppd_file_s *ppdFile() = 0;
};

/// An optional interface of a callback object: the dialog owns the PPD's marks and rules on each choice. A
/// panel checks for it once (qobject_cast); without it, it works through the print settings.
class ConstraintHandling
{
public:
    virtual ~ConstraintHandling() = default;

    /// Offers a choice. True: the choice now applies to the job. False: it is refused, and the PPD is
    /// unchanged.
    virtual bool willChangePPDOptionKeyValuePpdChoice(const QString &key, const QString &choice) = 0;
};

} // namespace pdekit

Q_DECLARE_INTERFACE(pdekit::PrintDialogCallback, "org.corvel.pdekit.PrintDialogCallback/1")
Q_DECLARE_INTERFACE(pdekit::ConstraintHandling, "org.corvel.pdekit.ConstraintHandling/1")
