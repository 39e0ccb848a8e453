// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "AnswerAttributes.h"

#include "IppMessage.h"
#include "PlainText.h"
#include "QueueRecord.h"

#include <algorithm>

namespace printdialog {

QStringList AnswerAttributes::texts(const char *name) const
{
    QStringList texts;
    ipp_attribute_t *attribute = attributes_.value(name);
    for (int i = 0; attribute && i < std::min(ippGetCount(attribute), mostValues); ++i)
        texts.append(
            plainText(QString::fromUtf8(ippGetString(attribute, i, nullptr)).simplified(), shownTextLimit));
    return texts;
}

QStringList AnswerAttributes::names(const char *attributeName) const
{
    QStringList names;
    ipp_attribute_t *attribute = attributes_.value(attributeName);
    for (int i = 0; attribute && i < std::min(ippGetCount(attribute), mostValues); ++i) {
        const QByteArray bytes(ippGetString(attribute, i, nullptr));
        const QString name = QString::fromUtf8(bytes);
        if (isQueueName(name) && name.toUtf8() == bytes)
            names.append(name);
    }
    return names;
}

int AnswerAttributes::number(const char *name, int otherwise, int index) const
{
    ipp_attribute_t *attribute = attributes_.value(name);
    const ipp_tag_t tag = attribute ? ippGetValueTag(attribute) : IPP_TAG_ZERO;
    const bool isNumber = tag == IPP_TAG_INTEGER || tag == IPP_TAG_ENUM;
    return isNumber && index < ippGetCount(attribute) ? ippGetInteger(attribute, index) : otherwise;
}

bool AnswerAttributes::flag(const char *name, bool otherwise) const
{
    ipp_attribute_t *attribute = attributes_.value(name);
    return attribute && ippGetValueTag(attribute) == IPP_TAG_BOOLEAN ? ippGetBoolean(attribute, 0) != 0
                                                                     : otherwise;
}

} // namespace printdialog
