// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "veltaTaskContext.h"

#include "SystemLog.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <iterator>
#include <utility>

namespace {

void release(GRefString *&string)
{
    if (string)
        g_ref_string_release(std::exchange(string, nullptr));
}

void release(GBytes *&data)
{
    if (data)
        g_bytes_unref(std::exchange(data, nullptr));
}

/// Like strlcpy(3), which this C library does not have yet: always appends a NUL, and returns the source's
/// length.
template <std::size_t size>
std::size_t copyBounded(char (&destination)[size], const char *source)
{
    const std::size_t length = std::strlen(source);
    const std::size_t kept = std::min(length, size - 1);
    std::memcpy(destination, source, kept);
    destination[kept] = '\0';
    return length;
}

} // namespace

void initializeVeltaContext(veltaTaskContext_s *context)
{
    context->dataLength = 0;
    context->dataBytes = nullptr;
    context->deviceURIString = nullptr;
    context->contextData = nullptr;
    std::fill(std::begin(context->command), std::end(context->command), '\0');
    context->commandLength = 0;

    const char *deviceURI = std::getenv("DEVICE_URI");
    if (!deviceURI)
        return;
    const std::size_t length = copyBounded(context->deviceURIBuffer, deviceURI);
    if (length >= sizeof context->deviceURIBuffer) {
        pdekit::systemLog(
            QStringLiteral("inadequate buffersize for device URI; needed %1 bytes, had only %2 \n")
                .arg(length)
                .arg(sizeof context->deviceURIBuffer));
    } else if (g_utf8_validate(context->deviceURIBuffer, -1, nullptr)) {
        context->deviceURIString = g_ref_string_new(context->deviceURIBuffer);
    }
}

void clearVeltaContextData(veltaTaskContext_s *context)
{
    if (!context)
        return;
    context->dataLength = 0;
    release(context->contextData);
    context->dataBytes = nullptr;
}

void destroyVeltaJobContext(veltaTaskContext_s *context)
{
    release(context->deviceURIString);
    release(context->contextData);
}
