// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QSet>

#include <cstddef>

namespace printdialog {

/// What an answer of a print server may hold. Real ones stay far below: a server with ten thousand queues.
constexpr qint64 answerBytesLimit = qint64(8) * 1024 * 1024;
constexpr int answerValuesLimit = 200'000;
/// Texts that differ: libcups keeps them in order, and moves all that follow for each that is new.
constexpr int answerTextsLimit = 50'000;
constexpr int answerDepthLimit = 16;
/// Of memory for what libcups makes of it, in bytes, by a generous estimate.
constexpr qint64 answerMemoryLimit = qint64(32) * 1024 * 1024;

/// Looks at an IPP message (RFC 8010) on its way to libcups, which calls itself for each collection inside
/// another until the stack is used up, and needs up to sixty times the memory that the message takes on the
/// wire. It follows the framing only, and refuses what libcups would frame in another way.
class IppInspection
{
public:
    /// Whether libcups may have these bytes, which follow those of the calls before. Once false, always
    /// false.
    bool admits(const unsigned char *bytes, size_t count);
    /// Whether the message is complete.
    bool isAtEnd() const { return part_ == Part::End; }

private:
    enum class Part { Header, Tag, NameLength, Name, ValueLength, Value, End };

    bool takeTag(unsigned char tag);
    bool takeNameLength();
    bool takeValueLength();
    bool charge(qint64 memory);
    bool chargeText();
    void expect(Part part, int count);

    Part part_ = Part::Header;
    int left_ = 8;    ///< bytes until the part is complete
    int length_ = 8;  ///< of the part
    int number_ = 0;  ///< a length, as far as it was read
    size_t text_ = 0; ///< the hash of a name or value, as far as it was read
    int nameLength_ = 0;
    unsigned char tag_ = 0;
    int depth_ = 0; ///< of collections
    qint64 bytes_ = 0;
    int values_ = 0;
    qint64 memory_ = 0;
    QSet<size_t> texts_; ///< the hashes of all that there were
    bool isRefused_ = false;
};

} // namespace printdialog
