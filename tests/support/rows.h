// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QTest>

#include <tuple>

/// What a `_data` function says of its rows: `Rows<QString, int> row; row("name", u"text"_s, 3);`. The test gets the
/// row by `const auto [text, number] = fetchRow<QString, int>();`.
template <class... Values> class Rows
{
public:
    Rows() { QTest::addColumn<std::tuple<Values...>>("row"); }
    void operator()(const char *name, const Values &...values) const { QTest::newRow(name) << std::tuple(values...); }
    void operator()(const QString &name, const Values &...values) const { (*this)(qPrintable(name), values...); }
};

template <class... Values> std::tuple<Values...> fetchRow()
{
    using Row = std::tuple<Values...>;
    QFETCH(Row, row);
    return row;
}
