// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "FileDescriptor.h"
#include "PrintJob.h"

#include <QtCore/QObject>

#include <memory>

class QThread;

namespace printdialog {

/// Prints a program's document as it is, on a thread of its own, and follows its job to the end.
class DocumentRun : public QObject
{
    Q_OBJECT

public:
    /// @param content a sealed file with a PDF
    /// @param name the document's, for people and as the job's title
    DocumentRun(const PrintJob &job, pdekit::FileDescriptor content, const QString &name, QObject *parent);
    /// Stops following. The job being sent is canceled.
    ~DocumentRun() override;

    /// Stops following; what is being sent is sent to its end.
    void leave();

Q_SIGNALS:
    /// @param trouble sentences for people about what is not printed; empty when everything is
    void finished(const QString &trouble);

private:
    struct State;

    std::shared_ptr<State> state_;
    QThread *thread_;
};

} // namespace printdialog
