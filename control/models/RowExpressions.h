#pragma once

#include <QtCore/QString>
#include <QtQml/QJSEngine>
#include <QtQml/QJSValue>

#include <functional>
#include <limits>
#include <vector>

namespace tamble::client {

/// What a page's functions say of the rows of a list: whether one passes, and its rank among the others.
///
/// They are asked ahead, never while a model sorts: they may change the model that they are asked about, and no order
/// follows from what contradicts itself. A row that they have not been asked about stays hidden until then.
class RowExpressions
{
public:
    using RowObject = std::function<QJSValue(int row)>;
    using Report = std::function<void(const QString &text)>;
    struct Outcome
    {
        bool otherRowsPass = false;
        bool otherOrder = false;
        /// False when the list changed meanwhile: there are rows left to ask about.
        bool complete = true;
    };

    void setFilter(const QJSValue &function);
    void setSort(const QJSValue &function);
    bool sorts() const { return m_sort.isSet(); }
    bool areSet() const { return m_filter.isSet() || m_sort.isSet(); }
    QJSValue filter() const { return m_filter.function; }
    QJSValue sort() const { return m_sort.function; }
    int rows() const { return int(m_states.size()); }

    bool shows(int row) const;
    /// Negative when row `a` comes first, 0 when neither comes before the other.
    int compare(int a, int b) const;

    void reset(int rows);
    void insert(int first, int last);
    void remove(int first, int last);
    /// Row `i` was row `sources[i]` before, or is new where that is negative.
    void permute(const std::vector<int> &sources);
    /// The rows have other values, which count once they are asked about.
    void change(int first, int last);

    /// Asks about what is new or changed.
    Outcome ask(QJSEngine &engine, const RowObject &rowObject, const Report &report);
    /// Lets the rows pass that are left, behind all others: asking does not come to an end.
    void giveUp();

private:
    static constexpr int Unranked = std::numeric_limits<int>::max();

    struct Expression
    {
        QString name;
        QJSValue function;
        QJSValue guarded;
        bool reported = false;

        bool isSet() const { return function.isCallable(); }
        void set(const QJSValue &value);
        bool ask(QJSEngine &engine, const QJSValueList &rows, bool otherwise, const Report &report);
    };

    struct State
    {
        bool passes = false;
        bool isJudged = false;
        bool isRanked = false;
        int rank = Unranked;
    };

    int rank(int row) const;
    bool judge(QJSEngine &engine, const RowObject &rowObject, const Report &report, bool &changed);
    bool rankRows(QJSEngine &engine, const RowObject &rowObject, const Report &report, bool &changed);
    bool takeRanks(const std::vector<int> &ranks);

    Expression m_filter{QStringLiteral("filterExpression"), {}, {}};
    Expression m_sort{QStringLiteral("sortExpression"), {}, {}};
    std::vector<State> m_states;
    // Counts whatever makes the answers of a function that is just running worthless.
    unsigned m_changes = 0;
};

} // namespace tamble::client
