// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtTest/QTest>

#include <initializer_list>
#include <tuple>

inline QString text(const char *latin1)
{
    return QString::fromLatin1(latin1);
}

/// What adds the rows of a test, one at a time: the name of each and its values, which row() has in the test.
template <class... Values>
auto rows()
{
    QTest::addColumn<std::tuple<Values...>>("values");
    return [](const char *name, const Values &...values) {
        QTest::newRow(name) << std::tuple<Values...>(values...);
    };
}

/// Adds the rows of a test.
template <class... Values>
void addRows(std::initializer_list<std::tuple<const char *, Values...>> all)
{
    const auto add = rows<Values...>();
    for (const auto &each : all)
        std::apply(add, each);
}

template <class... Values>
std::tuple<Values...> row()
{
    QFETCH(std::tuple<Values...>, values);
    return values;
}
