// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QMetaType>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <memory>
#include <optional>

typedef struct _ipp_s ipp_t; // NOLINT(bugprone-reserved-identifier): libcups' name

namespace printdialog {

class IppAttributes;

/// One value of an IPP attribute (RFC 8010, 3.9).
struct IppValue
{
    enum class Kind {
        Integer,
        Enum,
        Boolean,    ///< `number` is 0 or 1
        Range,      ///< from `number` to `upper`
        Resolution, ///< `number` by `upper` dots per inch
        Keyword,
        Name,
        Text, ///< any other kind of text: a text, a URI, a media type
        Collection,
        None, ///< no-value, unknown, and kinds that are not read, such as dates
    };

    Kind kind = Kind::None;
    int number = 0;
    int upper = 0;
    QString text; ///< Untrusted, cut at 1,023 bytes as IPP does; may have any characters.
    std::shared_ptr<const IppAttributes> members; ///< of a collection; null for all others

    bool isText() const { return kind == Kind::Keyword || kind == Kind::Name || kind == Kind::Text; }
    bool isNumber() const { return kind == Kind::Integer || kind == Kind::Enum || kind == Kind::Boolean; }
};

/// The attributes of one group in an IPP answer, copied, so that they can be passed between threads. Values
/// beyond the first 10,000 of an attribute are left out; of attributes with the same name, the first counts.
/// A plain, cheaply copied value.
class IppAttributes
{
public:
    IppAttributes() = default;
    /// Copies the printer attributes (RFC 8011, 5.4) of the answer to a Get-Printer-Attributes request. The
    /// answer was limited while it was read (IppInspection).
    static IppAttributes ofPrinter(ipp_t *answer);

    bool isEmpty() const { return values_.isEmpty(); }
    bool contains(const QString &name) const { return values_.contains(name); }
    QStringList names() const { return values_.keys(); }
    /// Empty when there is no such attribute.
    QList<IppValue> values(const QString &name) const { return values_.value(name); }
    /// The texts among the values.
    QStringList texts(const QString &name) const;
    /// The first value if it is a text.
    std::optional<QString> text(const QString &name) const;
    /// The first value if it is an integer, an enumeration or a boolean.
    std::optional<int> number(const QString &name) const;

    void insert(const QString &name, const QList<IppValue> &values) { values_.insert(name, values); }
    void remove(const QString &name) { values_.remove(name); }

    /// Adds them to the request's job attributes, sorted by name.
    void addToJob(ipp_t *request) const;
    /// Each one by its name, as ipptool(1) shows it; for people who look at a job.
    QMap<QString, QString> spelled() const;
    /// Adds them to any message. @param group libcups' ipp_tag_t; zero in a collection
    void addTo(ipp_t *message, int group) const;

private:
    QHash<QString, QList<IppValue>> values_;
};

} // namespace printdialog

Q_DECLARE_METATYPE(printdialog::IppAttributes)
