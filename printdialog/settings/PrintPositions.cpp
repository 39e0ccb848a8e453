// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PrintPositions.h"

#include "SettingsFile.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QStandardPaths>

#include <algorithm>

namespace printdialog {

namespace {

constexpr int positionsVersion = 1;
const QString versionKey = QStringLiteral("version");
const QString positionsKey = QStringLiteral("positions");

QString file()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QLatin1String("/corvel-print/print-positions.json");
}

/// The saved positions: printer to paper to two numbers.
QJsonObject positionsIn(const QByteArray &text)
{
    const QJsonObject content = QJsonDocument::fromJson(text).object();
    return content[versionKey].toInt() == positionsVersion ? content[positionsKey].toObject() : QJsonObject();
}

int limited(int tenths)
{
    return std::clamp(tenths, -PrintPositions::farthest, PrintPositions::farthest);
}

} // namespace

QPoint PrintPositions::load(const QString &printer, const QString &paper)
{
    const auto text = SettingsFile::read(file());
    const QJsonObject positions = positionsIn(text ? *text : QByteArray());
    const QJsonArray numbers = positions[printer].toObject()[paper].toArray();
    return {limited(numbers.at(0).toInt()), limited(numbers.at(1).toInt())};
}

SettingsFailure PrintPositions::save(const QString &printer, const QString &paper, const QPoint &tenths)
{
    return SettingsFile::change(file(), [&](const QByteArray &before) -> Result<QByteArray, SettingsFault> {
        QJsonObject positions = positionsIn(before);
        QJsonObject papers = positions[printer].toObject();
        if (tenths.isNull())
            papers.remove(paper);
        else
            papers[paper] = QJsonArray{limited(tenths.x()), limited(tenths.y())};
        if (papers.isEmpty())
            positions.remove(printer);
        else
            positions[printer] = papers;
        const QJsonObject content{{versionKey, positionsVersion}, {positionsKey, positions}};
        return QJsonDocument(content).toJson();
    });
}

} // namespace printdialog
