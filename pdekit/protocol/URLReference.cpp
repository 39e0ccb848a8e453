// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "URLReference.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QStringList>

namespace pdekit {

namespace {

/// The parts of a reference, each with its delimiter; null when it is missing.
struct Parts
{
    QString scheme;
    QString authority;
    QString path; ///< may be empty
    QString query;
    QString fragment;
};

Parts partsOf(const QString &reference)
{
    // RFC 3986, appendix B, with the scheme of 3.1.
    static const QRegularExpression pattern(
        QStringLiteral("\\A([A-Za-z][A-Za-z0-9+.-]*:)?(//[^/?#]*)?([^?#]*)(\\?[^#]*)?(#.*)?\\z"),
        QRegularExpression::DotMatchesEverythingOption);
    const QRegularExpressionMatch match = pattern.match(reference);
    return {match.captured(1), match.captured(2), match.captured(3), match.captured(4), match.captured(5)};
}

/// The path without its "." and ".." (RFC 3986, 5.2.4).
QString withoutDots(const QString &path)
{
    QStringList kept;
    const QStringList segments = path.split(u'/');
    for (qsizetype i = 0; i < segments.size(); ++i) {
        const QString &segment = segments.at(i);
        const bool isDots = segment == QLatin1String(".") || segment == QLatin1String("..");
        if (!isDots) {
            kept += segment;
            continue;
        }
        // The empty segment before the first slash is the root, which has no parent.
        if (segment.size() == 2 && (kept.size() > 1 || (kept.size() == 1 && !kept.constFirst().isEmpty())))
            kept.removeLast();
        if (i == segments.size() - 1)
            kept += QString();
    }
    return kept.join(u'/');
}

/// The reference's path in place of everything after the base's last slash.
QString mergedPath(const Parts &base, const QString &path)
{
    if (!base.authority.isNull() && base.path.isEmpty())
        return u'/' + path;
    return base.path.left(base.path.lastIndexOf(u'/') + 1) + path;
}

} // namespace

QString URLReference::absolute() const
{
    if (!base)
        return text;
    const Parts reference = partsOf(text);
    if (!reference.scheme.isNull())
        return text;
    Parts target = partsOf(*base);
    target.fragment = reference.fragment;
    if (!reference.authority.isNull()) {
        target.authority = reference.authority;
        target.path = withoutDots(reference.path);
        target.query = reference.query;
    } else if (!reference.path.isEmpty()) {
        const bool isRooted = reference.path.startsWith(u'/');
        target.path = withoutDots(isRooted ? reference.path : mergedPath(target, reference.path));
        target.query = reference.query;
    } else if (!reference.query.isNull()) {
        target.query = reference.query;
    }
    return target.scheme + target.authority + target.path + target.query + target.fragment;
}

} // namespace pdekit
