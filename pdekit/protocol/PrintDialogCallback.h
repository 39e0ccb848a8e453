// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QObject>

struct ppd_file_s;

namespace pdekit {

class Printer;
class PrintSession;

/// What a panel may ask of the dialog. The dialog hands a panel one QObject, the callback object, that
/// implements this interface and, when the dialog keeps the PPD's constraints itself, ConstraintHandling too.
/// Everything it hands out stays the dialog's, and may be null when there is none.
class PrintDialogCallback
{
public:
    virtual ~PrintDialogCallback() = default;

    virtual PrintSession *printSession() = 0;
    virtual Printer *PMPrinter() = 0;
    /// The libcups record in which the dialog keeps the marked choices.
    virtual ppd_file_s *ppdFile() = 0;
};

/// The optional ability of a callback object: the dialog owns the PPD's marks and rules on each choice. A
/// panel asks for it once (qobject_cast), and works without it through the print settings.
class ConstraintHandling
{
public:
    virtual ~ConstraintHandling() = default;

    /// Offers a choice. True: the choice is the job's now. False: it is refused, and the PPD is as it was.
    virtual bool willChangePPDOptionKeyValuePpdChoice(const QString &key, const QString &choice) = 0;
};

} // namespace pdekit

Q_DECLARE_INTERFACE(pdekit::PrintDialogCallback, "org.corvel.pdekit.PrintDialogCallback/1")
Q_DECLARE_INTERFACE(pdekit::ConstraintHandling, "org.corvel.pdekit.ConstraintHandling/1")
