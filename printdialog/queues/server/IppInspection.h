// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QSet>

#include <cstddef>

namespace printdialog {

/// The most bytes in an answer of a print server. Real answers, even about ten thousand queues, are far
/// below.
constexpr qint64 answerBytesLimit = qint64(8) * 1024 * 1024;
constexpr int answerValuesLimit = 200'000;
/// The most different texts: libcups keeps them sorted in an array, so each new one moves those after it.
constexpr int answerTextsLimit = 50'000;
constexpr int answerDepthLimit = 16;
/// The most memory for libcups' representation, in bytes, by a generous estimate.
constexpr qint64 answerMemoryLimit = qint64(32) * 1024 * 1024;

/// Checks an IPP message (RFC 8010) before libcups reads it. libcups recurses into nested collections until
/// the stack overflows, and needs up to sixty times the memory of the message on the wire. Only the framing
/// is parsed; a message that libcups would frame differently is refused.
class IppInspection
{
public:
    /// Whether libcups may read these bytes, which continue those of earlier calls. Once false, always false.
    bool admits(const unsigned char *bytes, size_t count);
    /// Whether the message is complete.
    bool isAtEnd() const { return part_ == Part::End; }

private:
    enum class Part { Header, Tag, NameLength, Name, ValueLength, Value, End };

    bool readTag(unsigned char tag);
    bool readNameLength();
    bool readValueLength();
    bool charge(qint64 memory);
    bool chargeText();
    void expect(Part part, int count);

    Part part_ = Part::Header;
    int left_ = 8;    ///< bytes until the part is complete
    int length_ = 8;  ///< of the current part
    int number_ = 0;  ///< a length, as far as read
    size_t text_ = 0; ///< the hash of a name or value, as far as read
    int nameLength_ = 0;
    unsigned char tag_ = 0;
    int depth_ = 0; ///< of nested collections
    qint64 bytes_ = 0;
    int values_ = 0;
    qint64 memory_ = 0;
    QSet<size_t> texts_; ///< the hashes of all texts so far
    bool isRefused_ = false;
};

} // namespace printdialog
