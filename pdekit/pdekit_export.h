// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QtGlobal>

#ifdef PDEKIT_BUILDING
#define PDEKIT_EXPORT Q_DECL_EXPORT
#else
#define PDEKIT_EXPORT Q_DECL_IMPORT
#endif
