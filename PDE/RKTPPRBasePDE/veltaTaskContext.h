// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QtGlobal>
#include <glib.h>

#include <cstddef>
#include <cstdint>
#include <type_traits>

/// One command for the printer's backend. The caller owns the record and its storage. The order and the
/// widths of the fields are part of the interface.
struct veltaTaskContext_s
{
    GRefString
        *deviceURIString; ///< from the environment variable "DEVICE_URI"; owned by the record, may be null
    GBytes *contextData;  ///< belongs to the command; owned by the record, may be null
    char *dataBytes;      ///< goes with contextData; never freed
    std::ptrdiff_t dataLength;  ///< goes with dataBytes
    char reservedBuffer[256];   ///< the caller's
    char command[256];          ///< raw bytes for the backend's standard input; no NUL at their end
    std::uint8_t commandLength; ///< how many bytes of `command` count; 0: there is no command
    std::uint8_t reservedByte;  ///< the caller's
    char deviceURIBuffer[1024]; ///< what deviceURIString is made from, with a NUL at its end
};

static_assert(std::is_standard_layout_v<veltaTaskContext_s>);
static_assert(offsetof(veltaTaskContext_s, deviceURIString) == 0);
static_assert(offsetof(veltaTaskContext_s, contextData) == sizeof(void *));
static_assert(offsetof(veltaTaskContext_s, dataBytes) == 2 * sizeof(void *));
static_assert(offsetof(veltaTaskContext_s, dataLength) == 3 * sizeof(void *));
static_assert(std::is_same_v<decltype(veltaTaskContext_s::dataLength), std::ptrdiff_t>);
static_assert(sizeof(veltaTaskContext_s::dataLength) == sizeof(void *));
static_assert(std::is_same_v<decltype(veltaTaskContext_s::commandLength), std::uint8_t>);
static_assert(std::is_same_v<decltype(veltaTaskContext_s::reservedByte), std::uint8_t>);
static_assert(sizeof(veltaTaskContext_s::deviceURIBuffer) == 1024);
static_assert(offsetof(veltaTaskContext_s, reservedBuffer) == 4 * sizeof(void *));
static_assert(offsetof(veltaTaskContext_s, command) == 4 * sizeof(void *) + 256);
static_assert(offsetof(veltaTaskContext_s, commandLength) == 4 * sizeof(void *) + 512);
static_assert(offsetof(veltaTaskContext_s, reservedByte) == 4 * sizeof(void *) + 513);
static_assert(offsetof(veltaTaskContext_s, deviceURIBuffer) == 4 * sizeof(void *) + 514);

extern "C" {

/// Initializes a record in the caller's storage. Earlier contents of its fields are overwritten, not
/// released.
Q_DECL_EXPORT void initializeVeltaContext(veltaTaskContext_s *context);

/// Drops the data of the previous command; a null pointer does nothing.
Q_DECL_EXPORT void clearVeltaContextData(veltaTaskContext_s *context);

/// Releases the data that the record owns, but not the record itself.
Q_DECL_EXPORT void destroyVeltaJobContext(veltaTaskContext_s *context);
}
