// What it costs to scroll a TableView of cells of the module, a row per frame, and the same of Qt's items.
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
    QVariant data(const QModelIndex &index, int role) const override
    {
        const double level = -index.row() - index.column() / 10.0;
        return role == NumberRole ? QVariant(level) : QVariant(QStringLiteral("%1 dB").arg(level));
    }
    QHash<int, QByteArray> roleNames() const override { return {{Qt::DisplayRole, "display"}, {NumberRole, "number"}}; }

private:
    enum Role { NumberRole = Qt::UserRole };
};

/// A window with a table.
class Table
{
public:
    Table(QQmlEngine &engine, Levels &model, const char *type)
    {
        QQmlComponent component(&engine, QUrl(QStringLiteral("qrc:/TableBench/%1.qml").arg(QLatin1String(type))));
        if (!component.isReady())
            qFatal("%s", qPrintable(component.errorString()));
        m_table.reset(qobject_cast<QQuickItem *>(
            component.createWithInitialProperties({{QStringLiteral("model"), QVariant::fromValue(&model)}})));
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

void scroll(benchmark::State &state, QQmlEngine &engine, const char *plainType, const char *type)
{
    Levels model;
    Table plain(engine, model, plainType);
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
    const auto compare = [&engine](const char *name, const char *plainType, const char *type) {
        const auto run = [&engine, plainType, type](benchmark::State &state) {
            scroll(state, engine, plainType, type);
        };
        // The time of an iteration is that of one row of many, and frames have a rate.
        benchmark::RegisterBenchmark(name, run)->Iterations(5)->UseManualTime()->Unit(benchmark::kMicrosecond);
    };
    compare("1000 x 32/RCellText beside Text", "PlainTable", "CellTable");
    compare("1000 x 32/RCellSpinBox beside TextField", "FieldTable", "SpinTable");
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
