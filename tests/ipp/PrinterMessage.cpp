// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PrinterMessage.h"

#include <vector>

namespace testing_support {

PrinterMessage::PrinterMessage()
    : PrinterMessage(ippNew(), IPP_TAG_PRINTER)
{
    ippSetVersion(message_.get(), 2, 0);
    ippSetRequestId(message_.get(), 1);
    ippAddString(message_.get(), IPP_TAG_OPERATION, IPP_TAG_CHARSET, "attributes-charset", nullptr, "utf-8");
    ippAddString(message_.get(), IPP_TAG_OPERATION, IPP_TAG_LANGUAGE, "attributes-natural-language", nullptr,
                 "en");
}

PrinterMessage::PrinterMessage(ipp_t *members, ipp_tag_t group)
    : message_(members, ippDelete)
    , group_(group)
{
}

PrinterMessage &PrinterMessage::remove(const char *name)
{
    while (ipp_attribute_t *known = ippFindAttribute(message_.get(), name, IPP_TAG_ZERO))
        ippDeleteAttribute(message_.get(), known);
    return *this;
}

PrinterMessage &PrinterMessage::keywords(const char *name, const QByteArrayList &values)
{
    std::vector<const char *> texts;
    for (const QByteArray &value : values)
        texts.push_back(value.constData());
    ippAddStrings(message_.get(), group_, IPP_TAG_KEYWORD, name, static_cast<int>(texts.size()), nullptr,
                  texts.data());
    return *this;
}

PrinterMessage &PrinterMessage::numbers(const char *name, ipp_tag_t tag, const QList<int> &values)
{
    ippAddIntegers(message_.get(), group_, tag, name, static_cast<int>(values.size()), values.constData());
    return *this;
}

PrinterMessage &PrinterMessage::boolean(const char *name, bool value)
{
    ippAddBoolean(message_.get(), group_, name, value ? 1 : 0);
    return *this;
}

PrinterMessage &PrinterMessage::range(const char *name, int lower, int upper)
{
    ippAddRange(message_.get(), group_, name, lower, upper);
    return *this;
}

PrinterMessage &PrinterMessage::resolutions(const char *name, const QList<int> &values)
{
    ippAddResolutions(message_.get(), group_, name, static_cast<int>(values.size()), IPP_RES_PER_INCH,
                      values.constData(), values.constData());
    return *this;
}

PrinterMessage &PrinterMessage::text(const char *name, ipp_tag_t tag, const QByteArray &value)
{
    ippAddString(message_.get(), group_, tag, name, nullptr, value.constData());
    return *this;
}

PrinterMessage &PrinterMessage::collections(const char *name, const QList<Members> &all)
{
    ipp_attribute_t *attribute = nullptr;
    for (const Members &fill : all) {
        PrinterMessage members(ippNew(), IPP_TAG_ZERO);
        fill(members);
        if (attribute)
            ippSetCollection(message_.get(), &attribute, ippGetCount(attribute), members.message_.get());
        else
            attribute = ippAddCollection(message_.get(), group_, name, members.message_.get());
    }
    return *this;
}

printdialog::IppAttributes PrinterMessage::attributes() const
{
    return printdialog::IppAttributes::ofPrinter(message_.get());
}

PrinterMessage::Members PrinterMessage::medium(int width, int length, int margin, const char *source,
                                               const char *type)
{
    return [=](PrinterMessage &entry) {
        entry.collections("media-size", {[=](PrinterMessage &size) {
                              size.numbers("x-dimension", IPP_TAG_INTEGER, {width})
                                  .numbers("y-dimension", IPP_TAG_INTEGER, {length});
                          }});
        for (const char *side :
             {"media-left-margin", "media-top-margin", "media-right-margin", "media-bottom-margin"}) {
            if (margin >= 0)
                entry.numbers(side, IPP_TAG_INTEGER, {margin});
        }
        if (source)
            entry.keywords("media-source", {source});
        if (type)
            entry.keywords("media-type", {type});
    };
}

PrinterMessage PrinterMessage::photoPrinter()
{
    PrinterMessage printer;
    const auto range = [](PrinterMessage &entry) {
        entry.collections("media-size", {[](PrinterMessage &size) {
                              size.range("x-dimension", 8900, 21590).range("y-dimension", 12700, 35560);
                          }});
        entry.numbers("media-left-margin", IPP_TAG_INTEGER, {318});
    };
    printer.text("printer-name", IPP_TAG_NAME, "photo")
        .text("printer-make-and-model", IPP_TAG_TEXT, "Example Photo 100")
        .text("printer-info", IPP_TAG_TEXT, "Photo One")
        .keywords("media-supported", {"na_index-4x6_4x6in", "iso_a4_210x297mm"})
        .keywords("media-default", {"iso_a4_210x297mm"})
        .collections("media-col-database",
                     {medium(10160, 15240, 0), medium(10160, 15240, 318, "photo", "photographic-glossy"),
                      medium(21000, 29700, 318, "main"), medium(21000, 29700, 500, "photo"), range})
        .collections("media-col-default", {medium(10160, 15240, 0, "photo", "photographic-glossy")})
        .keywords("media-source-supported", {"auto", "main", "photo", "tray-2"})
        .keywords("media-type-supported", {"stationery", "photographic-glossy", "com.example-luster"})
        .numbers("print-quality-supported", IPP_TAG_ENUM, {3, 4, 5})
        .numbers("print-quality-default", IPP_TAG_ENUM, {4})
        .keywords("print-scaling-supported", {"auto", "fill", "fit", "none"})
        .keywords("print-scaling-default", {"auto"})
        .resolutions("printer-resolution-supported", {300, 600})
        .resolutions("printer-resolution-default", {600})
        .keywords("sides-supported", {"one-sided", "two-sided-long-edge", "two-sided-short-edge"})
        .keywords("sides-default", {"one-sided"})
        .numbers("finishings-supported", IPP_TAG_ENUM, {3, 11, 15})
        .numbers("finishings-default", IPP_TAG_ENUM, {3})
        .keywords("finishing-template-supported", {"none", "com.example-cut"})
        .keywords("com.example-overcoat-supported", {"glossy", "matte"})
        .keywords("com.example-overcoat-default", {"glossy"})
        .range("com.example-sharpness-supported", -5, 5)
        .numbers("com.example-sharpness-default", IPP_TAG_INTEGER, {0})
        .boolean("com.example-mirror-supported", true)
        .boolean("com.example-mirror-default", false)
        .numbers("com.example-note-supported", IPP_TAG_INTEGER, {20})
        .text("com.example-note-default", IPP_TAG_TEXT, "none")
        .range("copies-supported", 1, 99)
        .numbers("copies-default", IPP_TAG_INTEGER, {1})
        .keywords("document-format-supported", {"application/pdf", "image/jpeg"})
        .collections("job-constraints-supported",
                     {[](PrinterMessage &rule) {
                          rule.text("resolver-name", IPP_TAG_NAME, "duplex-glossy")
                              .keywords("sides", {"two-sided-long-edge", "two-sided-short-edge"})
                              .collections("media-col", {[](PrinterMessage &media) {
                                               media.keywords("media-type", {"photographic-glossy"});
                                           }});
                      },
                      [](PrinterMessage &rule) {
                          rule.text("resolver-name", IPP_TAG_NAME, "matte-draft")
                              .keywords("com.example-overcoat", {"matte"})
                              .numbers("print-quality", IPP_TAG_ENUM, {3});
                      },
                      [](PrinterMessage &rule) {
                          rule.numbers("finishings", IPP_TAG_ENUM, {15})
                              .collections("media-col", {medium(21000, 29700, -1)});
                      }})
        .collections("job-resolvers-supported",
                     {[](PrinterMessage &resolver) {
                          resolver.text("resolver-name", IPP_TAG_NAME, "duplex-glossy")
                              .keywords("sides", {"one-sided"});
                      },
                      [](PrinterMessage &resolver) {
                          resolver.text("resolver-name", IPP_TAG_NAME, "matte-draft")
                              .numbers("print-quality", IPP_TAG_ENUM, {4});
                      }});
    return printer;
}

} // namespace testing_support
