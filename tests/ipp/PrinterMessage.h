// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "IppAttributes.h"

#include <QtCore/QByteArrayList>

#include <cups/cups.h>

#include <functional>
#include <initializer_list>
#include <memory>

namespace testing_support {

/// A printer's answer about itself, as an IPP message.
class PrinterMessage
{
public:
    PrinterMessage();

    PrinterMessage &keywords(const char *name, const QByteArrayList &values);
    PrinterMessage &numbers(const char *name, ipp_tag_t tag, const QList<int> &values);
    PrinterMessage &boolean(const char *name, bool value);
    PrinterMessage &range(const char *name, int lower, int upper);
    PrinterMessage &resolutions(const char *name, const QList<int> &values);
    PrinterMessage &text(const char *name, ipp_tag_t tag, const QByteArray &value);
    /// Each one is filled in by a function.
    using Members = std::function<void(PrinterMessage &)>;
    PrinterMessage &collections(const char *name, const QList<Members> &all);
    PrinterMessage &remove(const char *name);

    printdialog::IppAttributes attributes() const;
    std::shared_ptr<ipp_t> message() const { return message_; }

    /// A photo printer: sizes with and without margins, a custom range, sources, types, all usual options,
    /// two vendor's, and rules about them.
    static PrinterMessage photoPrinter();
    /// An entry of media-col-database; @param margin of each side; negative: none is named
    static Members medium(int width, int length, int margin, const char *source = nullptr,
                          const char *type = nullptr);

private:
    explicit PrinterMessage(ipp_t *members, ipp_tag_t group);

    std::shared_ptr<ipp_t> message_;
    ipp_tag_t group_;
};

} // namespace testing_support
