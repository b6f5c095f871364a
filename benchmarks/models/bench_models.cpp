#include "models/RSortFilterProxyModel.h"

#include <QtCore/QAbstractListModel>
#include <QtCore/QCollator>
#include <QtCore/QCoreApplication>
#include <QtQml/QJSEngine>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <random>
#include <vector>

using namespace tamble::client;

namespace {

constexpr int TextRole = Qt::UserRole + 1;

// Channels of a device in no order. A model that is this quick hides nothing of what a proxy takes.
class Channels : public QAbstractListModel
{
public:
    Channels()
    {
        std::mt19937 random(1);
        for (int i = 0; i < 10000; ++i)
            m_texts.append(QStringLiteral("%1 %2").arg(i % 2 == 0 ? "Input" : "Output").arg(random() % 10000));
    }

    int rowCount(const QModelIndex &parent = {}) const override { return parent.isValid() ? 0 : int(m_texts.size()); }
    QVariant data(const QModelIndex &index, int role) const override
    {
        return role == TextRole ? QVariant(m_texts.at(index.row())) : QVariant();
    }
    QHash<int, QByteArray> roleNames() const override { return {{TextRole, "text"}}; }
    void change(int row)
    {
        QString &text = m_texts[row];
        if (text.endsWith(u"00"))
            text.chop(2);
        else
            text.append(u"00");
        Q_EMIT dataChanged(index(row), index(row));
    }

private:
    QStringList m_texts;
};

class BareProxy : public QSortFilterProxyModel
{
public:
    BareProxy()
    {
        setSortRole(TextRole);
        setFilterRole(TextRole);
        setSortCaseSensitivity(Qt::CaseInsensitive);
        setFilterCaseSensitivity(Qt::CaseInsensitive);
        sort(0);
    }
};

class BareNaturalProxy : public BareProxy
{
public:
    BareNaturalProxy()
        : m_collator(QLocale(QLocale::English))
    {
        m_collator.setNumericMode(true);
        m_collator.setCaseSensitivity(Qt::CaseInsensitive);
    }

protected:
    bool lessThan(const QModelIndex &left, const QModelIndex &right) const override
    {
        return m_collator.compare(left.data(TextRole).toString(), right.data(TextRole).toString()) < 0;
    }

private:
    QCollator m_collator;
};

struct Proxy : RSortFilterProxyModel
{
    explicit Proxy(bool natural)
    {
        setProperty("sortRoleName", "text");
        setProperty("filterRoleNames", QStringList("text"));
        setProperty("naturalSort", natural);
    }
};

struct PlainProxy : Proxy
{
    PlainProxy()
        : Proxy(false)
    {}
};

struct NaturalProxy : Proxy
{
    NaturalProxy()
        : Proxy(true)
    {}
};

void setPattern(RSortFilterProxyModel &proxy, const char *pattern)
{
    proxy.setProperty("filterPattern", pattern);
}

void setPattern(BareProxy &proxy, const char *pattern)
{
    proxy.setFilterFixedString(QString::fromLatin1(pattern));
}

// The task each benchmark gives to a proxy.
struct FromNew
{
    template <typename Model>
    static void run(Model &, Channels &channels)
    {
        Model proxy;
        setPattern(proxy, "put");
        proxy.setSourceModel(&channels);
        benchmark::DoNotOptimize(proxy.rowCount());
    }
};

struct OtherPattern
{
    template <typename Model>
    static void run(Model &proxy, Channels &)
    {
        for (const char *pattern : {"in", "out", ""}) {
            setPattern(proxy, pattern);
            benchmark::DoNotOptimize(proxy.rowCount());
        }
    }
};

struct OneRow
{
    template <typename Model>
    static void run(Model &, Channels &channels)
    {
        for (int i = 0; i < 20; ++i)
            channels.change(i * 400);
    }
};

template <typename Task, typename Model>
double secondsOf(Model &proxy, Channels &channels)
{
    const auto begin = std::chrono::steady_clock::now();
    Task::run(proxy, channels);
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

// Ours and a bare one by turns, so that both meet the same state of the machine.
template <typename Task, typename Ours, typename Bare>
void compared(benchmark::State &state)
{
    Channels channels;
    Channels bareChannels;
    Ours ours;
    Bare bare;
    ours.setSourceModel(&channels);
    bare.setSourceModel(&bareChannels);
    std::vector<double> ratios;
    for (auto _ : state) {
        const double bareSeconds = secondsOf<Task>(bare, bareChannels);
        const double seconds = secondsOf<Task>(ours, channels);
        state.SetIterationTime(seconds);
        ratios.push_back(seconds / bareSeconds);
    }
    std::nth_element(ratios.begin(), ratios.begin() + std::ptrdiff_t(ratios.size() / 2), ratios.end());
    state.counters["of bare"] = ratios[ratios.size() / 2];
}
#define TAMBLE_COMPARED(name, Task)                                                                                    \
    BENCHMARK(compared<Task, PlainProxy, BareProxy>)                                                                   \
        ->Name("10000 rows, plain/" name)                                                                              \
        ->UseManualTime()                                                                                              \
        ->Unit(benchmark::kMillisecond);                                                                               \
    BENCHMARK(compared<Task, NaturalProxy, BareNaturalProxy>)                                                          \
        ->Name("10000 rows, natural/" name)                                                                            \
        ->UseManualTime()                                                                                              \
        ->Unit(benchmark::kMillisecond)
TAMBLE_COMPARED("sort and filter", FromNew);
TAMBLE_COMPARED("three patterns", OtherPattern);
TAMBLE_COMPARED("20 changed rows", OneRow);

void expressions(benchmark::State &state)
{
    Channels channels;
    QJSEngine engine;
    for (auto _ : state) {
        auto *proxy = new RSortFilterProxyModel;
        const QJSValue owner = engine.newQObject(proxy);
        proxy->setSourceModel(&channels);
        proxy->setFilterExpression(engine.evaluate(QStringLiteral("(row => row.text.length > 3)")));
        if (state.range(0) != 0)
            proxy->setSortExpression(engine.evaluate(QStringLiteral("((a, b) => a.text < b.text)")));
        benchmark::DoNotOptimize(proxy->rowCount());
    }
}
BENCHMARK(expressions)
    ->Name("10000 rows, functions/filter, then sort as well")
    ->Arg(0)
    ->Arg(1)
    ->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
