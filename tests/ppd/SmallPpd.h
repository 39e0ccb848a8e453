// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QList>

/// The texts of small PPDs.
namespace smallppd {

inline const QByteArray header =
    "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*LanguageVersion: English\n"
    "*LanguageEncoding: ISOLatin1\n*ModelName: \"Photo\"\n*NickName: \"Photo 9\"\n";

inline QByteArray option(const QByteArray &keyword, const QByteArrayList &choices,
                         const QByteArray &text = {})
{
    QByteArray ppd = "*OpenUI *" + keyword + (text.isEmpty() ? text : "/" + text) + ": PickOne\n*Default" +
                     keyword + ": " + choices.value(0).split('/').constFirst() + "\n";
    for (const QByteArray &choice : choices)
        ppd += "*" + keyword + " " + choice + ": \"\"\n";
    return ppd + "*CloseUI: *" + keyword + "\n";
}

inline QByteArrayList numbered(int from, int to, const QByteArray &prefix = {})
{
    QByteArrayList choices;
    for (int i = from; i <= to; ++i)
        choices += prefix + QByteArray::number(i);
    return choices;
}

inline QByteArray pageSizes()
{
    return option("PageSize", {"w288h432/4 x 6", "w360h504/5 x 7"}, "Media Size") +
           "*ImageableArea w288h432: \"6 12 280 420\"\n*PaperDimension w288h432: \"288 432\"\n"
           "*ImageableArea w360h504: \"0 0 360 504\"\n*PaperDimension w360h504: \"360 504\"\n";
}

inline QByteArray minimal()
{
    return header + pageSizes();
}

} // namespace smallppd
