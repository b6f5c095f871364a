#include "models/RowExpressions.h"

#include <algorithm>
#include <utility>

namespace tamble::client {

void RowExpressions::setFilter(const QJSValue &function)
{
    m_filter.set(function);
    ++m_changes;
    for (State &state : m_states)
        state.isJudged = false;
}

void RowExpressions::setSort(const QJSValue &function)
{
    m_sort.set(function);
    ++m_changes;
    for (State &state : m_states)
        state.isRanked = false;
}

bool RowExpressions::shows(int row) const
{
    if (!areSet())
        return true;
    if (std::size_t(row) >= m_states.size())
        return false;
    const State &state = m_states[std::size_t(row)];
    return (!m_filter.isSet() || state.passes) && (!m_sort.isSet() || state.rank != Unranked);
}

int RowExpressions::compare(int a, int b) const
{
    return rank(a) < rank(b) ? -1 : int(rank(a) > rank(b));
}

int RowExpressions::rank(int row) const
{
    return std::size_t(row) < m_states.size() ? m_states[std::size_t(row)].rank : Unranked;
}

void RowExpressions::reset(int rows)
{
    ++m_changes;
    m_states.assign(std::size_t(rows), State());
}

void RowExpressions::insert(int first, int last)
{
    ++m_changes;
    m_states.resize(std::max(m_states.size(), std::size_t(first)));
    m_states.insert(m_states.begin() + first, std::size_t(last - first) + 1, State());
}

void RowExpressions::remove(int first, int last)
{
    ++m_changes;
    const std::size_t end = std::min(std::size_t(last) + 1, m_states.size());
    if (std::size_t(first) < end)
        m_states.erase(m_states.begin() + first, m_states.begin() + std::ptrdiff_t(end));
}

void RowExpressions::permute(const std::vector<int> &sources)
{
    ++m_changes;
    std::vector<State> states(sources.size());
    for (std::size_t row = 0; row < sources.size(); ++row) {
        if (sources[row] >= 0 && std::size_t(sources[row]) < m_states.size())
            states[row] = m_states[std::size_t(sources[row])];
    }
    m_states = std::move(states);
}

void RowExpressions::change(int first, int last)
{
    ++m_changes;
    const std::size_t end = std::min(std::size_t(last) + 1, m_states.size());
    for (auto row = std::size_t(first); row < end; ++row)
        m_states[row].isJudged = m_states[row].isRanked = false;
}

RowExpressions::Outcome RowExpressions::ask(QJSEngine &engine, const RowObject &rowObject, const Report &report)
{
    Outcome outcome;
    const auto unranked = [this] {
        return std::count_if(m_states.begin(), m_states.end(), [](const State &s) { return s.rank == Unranked; });
    };
    outcome.complete = (!m_filter.isSet() || judge(engine, rowObject, report, outcome.otherRowsPass));
    if (outcome.complete && m_sort.isSet()) {
        const auto before = unranked();
        outcome.complete = rankRows(engine, rowObject, report, outcome.otherOrder);
        outcome.otherRowsPass |= unranked() != before;
    }
    return outcome;
}

bool RowExpressions::judge(QJSEngine &engine, const RowObject &rowObject, const Report &report, bool &changed)
{
    for (std::size_t row = 0; row < m_states.size(); ++row) {
        if (m_states[row].isJudged)
            continue;
        const unsigned changes = m_changes;
        const bool passes = m_filter.ask(engine, {rowObject(int(row))}, true, report);
        if (m_changes != changes)
            return false;
        State &state = m_states[row];
        changed |= state.passes != passes;
        state.passes = passes;
        state.isJudged = true;
    }
    return true;
}

// Each row that has no rank yet is put among the others, behind those that it does not come before.
bool RowExpressions::rankRows(QJSEngine &engine, const RowObject &rowObject, const Report &report, bool &changed)
{
    struct Place
    {
        int row;
        bool isTied; // with the place before
    };
    std::vector<Place> places;
    std::vector<int> news;
    for (std::size_t row = 0; row < m_states.size(); ++row) {
        if (m_states[row].isRanked)
            places.push_back({int(row), false});
        else
            news.push_back(int(row));
    }
    if (news.empty())
        return true;
    std::stable_sort(places.begin(), places.end(),
                     [this](const Place &a, const Place &b) { return rank(a.row) < rank(b.row); });
    for (std::size_t i = 1; i < places.size(); ++i)
        places[i].isTied = rank(places[i].row) == rank(places[i - 1].row);

    const unsigned changes = m_changes;
    std::vector<QJSValue> objects(m_states.size());
    const auto object = [&](int row) {
        QJSValue &known = objects[std::size_t(row)];
        return known.isUndefined() ? known = rowObject(row) : known;
    };
    const auto isBefore = [&](int a, int b) {
        return m_changes == changes && m_sort.ask(engine, {object(a), object(b)}, false, report);
    };
    for (const int row : news) {
        const auto next = std::upper_bound(places.begin(), places.end(), row,
                                           [&](int value, const Place &place) { return isBefore(value, place.row); });
        const bool isTied = next != places.begin() && !isBefore(std::prev(next)->row, row);
        if (m_changes != changes)
            return false;
        if (next != places.end())
            next->isTied = false;
        places.insert(next, {row, isTied});
    }

    std::vector<int> ranks(m_states.size());
    int last = -1;
    for (const Place &place : places)
        ranks[std::size_t(place.row)] = place.isTied ? last : ++last;
    changed |= takeRanks(ranks);
    return true;
}

/// Whether rows that had a rank stand in another order now.
bool RowExpressions::takeRanks(const std::vector<int> &ranks)
{
    std::vector<std::pair<int, int>> pairs;
    for (std::size_t row = 0; row < m_states.size(); ++row) {
        if (m_states[row].rank != Unranked)
            pairs.emplace_back(m_states[row].rank, ranks[row]);
        m_states[row].rank = ranks[row];
        m_states[row].isRanked = true;
    }
    std::sort(pairs.begin(), pairs.end());
    return std::adjacent_find(pairs.begin(), pairs.end(), [](const auto &a, const auto &b) {
               return a.first == b.first ? a.second != b.second : a.second >= b.second;
           }) != pairs.end();
}

void RowExpressions::giveUp()
{
    for (State &state : m_states) {
        state.passes |= !state.isJudged;
        state.isJudged = state.isRanked = true;
        if (state.rank == Unranked)
            state.rank = Unranked - 1;
    }
}

void RowExpressions::Expression::set(const QJSValue &value)
{
    function = value;
    guarded = QJSValue();
    reported = false;
}

// A thrown value that is no Error cannot be told from an answer outside of JavaScript.
bool RowExpressions::Expression::ask(QJSEngine &engine, const QJSValueList &rows, bool otherwise, const Report &report)
{
    if (guarded.isUndefined())
        guarded = engine
                      .evaluate(QStringLiteral("(function(f) { return function(a, b) {"
                                               " try { return !!f(a, b) } catch (error) { return [error] } } })"))
                      .call({function});
    // The function may set another one meanwhile.
    const QJSValue running = guarded;
    const QJSValue answer = running.call(rows);
    if (answer.isBool())
        return answer.toBool();
    if (!std::exchange(reported, true))
        report(name + QStringLiteral(": ") + (answer.isArray() ? answer.property(0) : answer).toString());
    return otherwise;
}

} // namespace tamble::client
