// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "IppMessage.h"

#include <algorithm>

namespace printdialog {

IppPointer ippRequest(ipp_op_t operation, const QByteArray &uri)
{
    IppPointer request(ippNewRequest(operation));
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, uri.constData());
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr, cupsUser());
    return request;
}

QStringList textsOf(ipp_t *answer, const char *attribute)
{
    QStringList texts;
    ipp_attribute_t *found = ippFindAttribute(answer, attribute, IPP_TAG_ZERO);
    for (int i = 0; found && i < std::min(ippGetCount(found), mostValues); ++i) {
        if (const char *text = ippGetString(found, i, nullptr))
            texts.append(QString::fromUtf8(text));
    }
    return texts;
}

QByteArray textOf(ipp_t *answer, const char *attribute)
{
    ipp_attribute_t *found = ippFindAttribute(answer, attribute, IPP_TAG_ZERO);
    const char *text = found ? ippGetString(found, 0, nullptr) : nullptr;
    return text ? QByteArray(text) : QByteArray();
}

} // namespace printdialog
