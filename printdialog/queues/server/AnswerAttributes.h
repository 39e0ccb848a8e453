// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QHash>
#include <QtCore/QStringList>

#include <cups/ipp.h>

namespace printdialog {

/// The attributes of one queue or job in an answer about many, where ippFindAttribute() finds only the first
/// one's. Borrows them from the answer.
class AnswerAttributes
{
public:
    void add(ipp_attribute_t *attribute) { attributes_.insert(ippGetName(attribute), attribute); }
    bool isEmpty() const { return attributes_.isEmpty(); }

    /// Plain texts, of a limited number and length.
    QStringList texts(const char *name) const;
    QString text(const char *name) const { return texts(name).value(0); }
    /// The names of queues, unchanged. A name that needs cleaning is left out: the server would not recognize
    /// it, or take it for another queue's.
    QStringList names(const char *attributeName) const;
    /// The value of an integer or enumeration; `otherwise` when it has none.
    int number(const char *name, int otherwise = 0, int index = 0) const;
    bool flag(const char *name, bool otherwise) const;

private:
    QHash<QByteArray, ipp_attribute_t *> attributes_;
};

} // namespace printdialog
