// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "IppInspection.h"

#include <algorithm>

namespace printdialog {

namespace {

constexpr unsigned char endOfAttributes = 0x03;
constexpr unsigned char firstValueTag = 0x10;
constexpr unsigned char beginCollection = 0x34;
constexpr unsigned char endCollection = 0x37;
constexpr unsigned char textWithLanguage = 0x35;
constexpr unsigned char nameWithLanguage = 0x36;
constexpr unsigned char firstTextTag = 0x41;
constexpr unsigned char lastTextTag = 0x4a;
constexpr unsigned char memberName = 0x4a;
constexpr unsigned char extension = 0x7f;

// The memory that libcups allocates, rounded up.
constexpr qint64 attributeMemory = 80;
constexpr qint64 furtherValueMemory = 112; // the second value makes room for eight
constexpr qint64 textMemory = 80;
constexpr qint64 collectionMemory = 256;

} // namespace

bool IppInspection::admits(const unsigned char *bytes, size_t count)
{
    bytes_ += static_cast<qint64>(count);
    isRefused_ = isRefused_ || bytes_ > answerBytesLimit;
    for (size_t i = 0; i < count && !isRefused_;) {
        switch (part_) {
        case Part::Header:
        case Part::Name:
        case Part::Value: {
            const size_t taken = std::min(count - i, static_cast<size_t>(left_));
            text_ = qHashBits(bytes + i, taken, text_);
            i += taken;
            left_ -= static_cast<int>(taken);
            if (left_ == 0) {
                isRefused_ = part_ != Part::Header && !chargeText();
                expect(part_ == Part::Name ? Part::ValueLength : Part::Tag, part_ == Part::Name ? 2 : 1);
            }
            break;
        }
        case Part::Tag:
            isRefused_ = !readTag(bytes[i++]);
            break;
        case Part::NameLength:
        case Part::ValueLength:
            number_ = number_ * 256 + bytes[i++];
            if (--left_ == 0)
                isRefused_ = !(part_ == Part::NameLength ? readNameLength() : readValueLength());
            break;
        case Part::End:
            isRefused_ = true;
            break;
        }
    }
    return !isRefused_;
}

void IppInspection::expect(Part part, int count)
{
    part_ = part;
    left_ = count;
    length_ = count;
    number_ = 0;
    text_ = static_cast<size_t>(QHashSeed::globalSeed());
}

bool IppInspection::charge(qint64 memory)
{
    memory_ += memory;
    return memory_ <= answerMemoryLimit;
}

/// libcups stores equal names and texts once, but bytes of an unknown type each time.
bool IppInspection::chargeText()
{
    // Such a value holds two texts; no real server uses it here.
    if (tag_ == textWithLanguage || tag_ == nameWithLanguage)
        texts_.insert(~text_);
    const bool isText = part_ == Part::Name || (tag_ >= firstTextTag && tag_ <= lastTextTag);
    if (isText && texts_.contains(text_))
        return true;
    texts_.insert(text_);
    return texts_.size() <= answerTextsLimit && charge(textMemory + length_);
}

bool IppInspection::readTag(unsigned char tag)
{
    tag_ = tag;
    if (tag < firstValueTag) { // a delimiter: a group of attributes begins, or the attributes end
        if (depth_ > 0 || tag == 0)
            return false;
        if (tag == endOfAttributes)
            expect(Part::End, 0);
        return ++values_ <= answerValuesLimit && charge(attributeMemory); // libcups stores a separator
    }
    if (tag == extension || (tag == beginCollection && ++depth_ > answerDepthLimit))
        return false;
    expect(Part::NameLength, 2);
    return true;
}

bool IppInspection::readNameLength()
{
    nameLength_ = number_;
    if (nameLength_ > 0 && (tag_ == memberName || tag_ == endCollection))
        return false;
    if (nameLength_ > 0)
        expect(Part::Name, nameLength_);
    else
        expect(Part::ValueLength, 2);
    return true;
}

bool IppInspection::readValueLength()
{
    const int length = number_;
    if (length > 0 && (tag_ == beginCollection || tag_ == endCollection))
        return false;
    if (tag_ == endCollection && --depth_ < 0)
        return false;
    const bool isAttribute = nameLength_ > 0 || tag_ == memberName;
    qint64 memory = isAttribute ? attributeMemory : furtherValueMemory;
    if (tag_ == beginCollection)
        memory += collectionMemory;
    if (length > 0)
        expect(Part::Value, length);
    else
        expect(Part::Tag, 1);
    return ++values_ <= answerValuesLimit && charge(memory);
}

} // namespace printdialog
