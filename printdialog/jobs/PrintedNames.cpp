// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PrintedNames.h"

#include "PlainText.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include <unistd.h>

#include <climits>

namespace printdialog {
namespace {

struct NameText
{
    Q_DECLARE_TR_FUNCTIONS(PrintedNames)
};

/// A folder that does not exist yet most likely allows the usual length.
qsizetype longestNameIn(const QString &folder)
{
    const long bytes = ::pathconf(QFile::encodeName(folder).constData(), _PC_NAME_MAX);
    return (bytes > 0 ? bytes : NAME_MAX) - PrintedNames::ticketSuffix.size();
}

/// The longest beginning of the text that fits in that many bytes.
QString shortened(QString text, qsizetype bytes)
{
    while (!text.isEmpty() && QFile::encodeName(text).size() > bytes)
        text.chop(text.back().isLowSurrogate() ? 2 : 1);
    return text;
}

} // namespace

PrintedNames::PrintedNames(const OutputFolder &folder)
    : folder_(folder)
    , longestName_(longestNameIn(folder.path))
    , photos_(folder.photos)
{
}

QString PrintedNames::nameFor(const QString &photoPath) const
{
    QString base = plainText(QFileInfo(photoPath).completeBaseName()).trimmed();
    while (base.startsWith(QLatin1Char('.')))
        base.remove(0, 1);
    if (base.isEmpty())
        base = QStringLiteral("photo");
    QString name = shortened(base, longestName_);
    for (int number = 2; !isFree(name); ++number) {
        const QString ending = QStringLiteral("-%1").arg(number);
        name = shortened(base, longestName_ - ending.size()) + ending;
    }
    return name;
}

std::optional<QString> PrintedNames::whyUnfit() const
{
    const QString name = folder_.document.value_or(QString());
    const QString shown = plainText(name, shownTextLimit);
    if (shown.trimmed().isEmpty())
        return NameText::tr("The PDF has no name. Type one, or choose one PDF for each photo.");
    if (name.contains(u'/'))
        return NameText::tr(
                   "The PDF cannot be named \"%1\", because of the slash. Leave it out, or choose another "
                   "folder.")
            .arg(shown);
    if (name.startsWith(u'.') || hasControls(name))
        return NameText::tr(
                   "The PDF cannot be named \"%1\": nobody would see it, or read all of its name. Leave out "
                   "the dot at its beginning, and characters that are not seen.")
            .arg(shown);
    if (QFile::encodeName(name).size() > longestName_)
        return NameText::tr("The name \"%1\" is too long for a PDF in this folder. Choose a shorter one.")
            .arg(shown);
    return std::nullopt;
}

bool PrintedNames::isDocumentThere() const
{
    const QString path = folder_.path + QLatin1Char('/') + folder_.document.value_or(QString());
    return QFileInfo::exists(path + pageSuffix) || QFileInfo::exists(path + ticketSuffix);
}

bool PrintedNames::isFree(const QString &name) const
{
    if (taken_.contains(name))
        return false;
    for (const QLatin1String suffix : {pageSuffix, ticketSuffix}) {
        const auto earlier = photos_.at(folder_.path + QLatin1Char('/') + name + suffix);
        if (earlier == KeptFiles::Earlier::Kept ||
            (earlier == KeptFiles::Earlier::Other && !folder_.isOverwritten))
            return false;
    }
    return true;
}

} // namespace printdialog
