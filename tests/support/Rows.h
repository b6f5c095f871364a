#pragma once

#include <QtTest/QTest>

#include <any>
#include <functional>
#include <tuple>

template <typename... Columns>
auto rowsOf(std::function<void(Columns...)> check)
{
    QTest::addColumn<std::function<void()>>("check");
    return [check](const char *rule, const std::remove_cvref_t<Columns> &...values) {
        QTest::newRow(rule) << std::function<void()>([check, values...] { check(values...); });
    };
}

/// The table of a test, made by its `_data` function: the check of a row has the columns as its parameters, and what is
/// returned takes the name and the values of each row. The test itself is `checkRow()`.
template <typename Check>
auto rowsOf(Check check)
{
    return rowsOf(std::function(check));
}

inline void checkRow()
{
    QFETCH(std::function<void()>, check);
    check();
}

/// A table whose test is longer and stands on its own: it takes `current()` apart.
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
