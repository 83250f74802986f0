#pragma once

#include <QTest>

namespace velmtest {
/// Adds rows to a test's table, with a value for each of its columns.
template <typename... Types>
class Rows
{
public:
    void operator()(const char* name, const Types&... values) const { (QTest::newRow(name) << ... << values); }
};

/// The table of a data-driven test: `const auto row = columns<int, QString>("number", "text"); row("one", 1, "1");`.
template <typename... Types, typename... Names>
Rows<Types...> columns(const Names&... names)
{
    (QTest::addColumn<Types>(names), ...);
    return {};
}
} // namespace velmtest
