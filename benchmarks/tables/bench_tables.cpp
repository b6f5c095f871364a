// What it costs to scroll a TableView of cells of the module, a row per frame, and the same of plain Text items.
// Times are CPU time of the process on the Null graphics backend: all but the drawing itself. "of plain" is the ratio
// to the plain table, taken by turns, so that both meet the same state of the machine. No display is needed.

#include "support/BenchWindow.h"

#include <benchmark/benchmark.h>

#include <QtCore/QAbstractTableModel>
#include <QtGui/QGuiApplication>
#include <QtQml/QQmlComponent>
#include <QtQml/QQmlEngine>
#include <QtQuick/QQuickItem>

#include <memory>
#include <vector>

namespace {

class Levels : public QAbstractTableModel
{
public:
    int rowCount(const QModelIndex &) const override { return 1000; }
    int columnCount(const QModelIndex &) const override { return 32; }
    QVariant data(const QModelIndex &index, int) const override
    {
        return QStringLiteral("%1.%2 dB").arg(-index.row()).arg(index.column());
    }
};

/// A window with a table.
class Table
{
public:
    Table(QQmlEngine &engine, Levels &model, const char *type)
    {
        QQmlComponent component(&engine, QUrl(QStringLiteral("qrc:/TableBench/%1.qml").arg(QLatin1String(type))));
        m_table.reset(qobject_cast<QQuickItem *>(
            component.createWithInitialProperties({{QStringLiteral("model"), QVariant::fromValue(&model)}})));
        if (!m_table)
            qFatal("%s", qPrintable(component.errorString()));
        m_window.showPage(*m_table);
        secondsPerRow(); // to warm up
    }

    /// Scrolls down and back to the top.
    double secondsPerRow()
    {
        constexpr int rows = 60;
        constexpr double rowPitch = 33.0;
        const double begin = processSeconds();
        for (int i = 1; i <= 2 * rows; ++i) {
            m_window.beginFrame();
            m_table->setProperty("contentY", rowPitch * (i < rows ? i : 2 * rows - i));
            m_window.awaitFrame();
        }
        return (processSeconds() - begin) / (2 * rows);
    }

private:
    BenchWindow m_window;
    std::unique_ptr<QQuickItem> m_table;
};

void scroll(benchmark::State &state, QQmlEngine &engine, const char *type)
{
    Levels model;
    Table plain(engine, model, "PlainTable");
    Table cells(engine, model, type);
    std::vector<double> ratios;
    for (auto _ : state) {
        const double plainSeconds = plain.secondsPerRow();
        const double seconds = cells.secondsPerRow();
        state.SetIterationTime(seconds);
        ratios.push_back(seconds / plainSeconds);
    }
    state.counters["of plain"] = median(ratios);
}

} // namespace

int main(int argc, char **argv)
{
    drawNothing();
    QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    QQmlEngine engine;
    useModule(engine);
    // The time of an iteration is that of one row of many, and frames have a rate.
    benchmark::RegisterBenchmark("1000 x 32/RCellText",
                                 [&](benchmark::State &state) { scroll(state, engine, "CellTable"); })
        ->Iterations(7)
        ->UseManualTime()
        ->Unit(benchmark::kMicrosecond);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
