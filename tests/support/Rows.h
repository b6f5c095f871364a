#pragma once

#include <QtTest/QTest>

#include <any>
#include <tuple>

/// The table of a test: its `_data` function calls an instance with the name and the values of each row, and the test
/// takes `current()` apart.
template <typename... Columns>
class Rows
{
public:
    Rows() { QTest::addColumn<std::any>("row"); }

    void operator()(const char *rule, const Columns &...values) const
    {
        QTest::newRow(rule) << std::any(Row(values...));
    }

    static const auto &current()
    {
        const void *row = QTest::qData("row", QMetaType::fromType<std::any>().id());
        return *std::any_cast<Row>(static_cast<const std::any *>(row));
    }

private:
    using Row = std::tuple<Columns...>;
};
