// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "FileDescriptor.h"
#include "PortalRun.h"
#include "PrintJob.h"

#include <memory>

class QThread;

namespace printdialog {

/// Prints a document that cannot be read here as it is: the print server or the printer may know better.
class DocumentRun : public PortalRun
{
    Q_OBJECT

public:
    /// @param content a sealed file with a PDF
    /// @param name the document's, for people and as the job's title
    DocumentRun(const PrintJob &job, pdekit::FileDescriptor content, const QString &name, QObject *parent);
    ~DocumentRun() override;

    void leave() override;

private:
    struct State;

    std::shared_ptr<State> state_;
    QThread *thread_;
};

} // namespace printdialog
