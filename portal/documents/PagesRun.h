// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Arrangement.h"
#include "PortalRun.h"
#include "PrintJob.h"

namespace printdialog {

class PrintWorker;

/// Prints the pages of a document as the window does.
class PagesRun : public PortalRun
{
    Q_OBJECT

public:
    PagesRun(const PrintJob &job, const Arrangement &arrangement, QObject *parent);
    ~PagesRun() override;

    void leave() override;

private:
    PrintWorker *worker_;
};

} // namespace printdialog
