// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "WaylandParent.h"

namespace printdialog {

void setWaylandParent(QWidget * /*window*/, const QString & /*handle*/)
{
}

} // namespace printdialog
