// What the drag of one handle costs in a plot of so many filters: mouse event, the page's answer, response and frame;
// and what the same moves cost when a page calls the curve for them, which holds and selects no handle.
// Times are CPU time of the process on the Null graphics backend: all but the drawing itself. "of 8" is the ratio to
// the drag in a plot of 8 filters, taken by turns, so that both meet the same state of the machine. No display is
// needed.

#include "support/BenchWindow.h"

#include <benchmark/benchmark.h>

#include <QtGui/QGuiApplication>
#include <QtGui/QMouseEvent>
#include <QtQml/QQmlComponent>
#include <QtQml/QQmlEngine>
#include <QtQuick/QQuickItem>

#include <cmath>
#include <memory>
#include <numbers>
#include <string>
#include <vector>

namespace {

enum class Way { Mouse, Calls };

/// A window with a plot of so many filters.
class Plot
{
public:
    Plot(QQmlEngine &engine, int filters, Way way)
        : m_dragged(filters / 2)
        , m_way(way)
    {
        QQmlComponent component(&engine, QUrl(QStringLiteral("qrc:/DragBench/DragPage.qml")));
        m_page.reset(qobject_cast<QQuickItem *>(component.createWithInitialProperties({{"count", filters}})));
        if (!m_page)
            qFatal("%s", qPrintable(component.errorString()));
        m_window.showPage(*m_page);
        secondsPerMove(); // to warm up
        if (m_page->property("edits").toInt() < moves)
            qFatal("the handle does not follow the pointer");
    }

    /// Drags the handle in the middle once around, with a frame after each move, and lets it go.
    double secondsPerMove()
    {
        QPointF grip;
        QMetaObject::invokeMethod(m_page.get(), "grip", Q_RETURN_ARG(QPointF, grip), Q_ARG(int, m_dragged));
        if (m_way == Way::Mouse)
            send(QEvent::MouseButtonPress, grip);
        double begin = 0.0;
        for (int i = 0; i <= moves; ++i) {
            if (i == 1) // the frame before shows the press as well
                begin = processSeconds();
            m_window.beginFrame();
            const double angle = 2.0 * std::numbers::pi * (i + 1) / (moves + 1);
            moveTo(grip + QPointF(40.0 * std::sin(angle), 30.0 * std::sin(3.0 * angle)));
            m_window.awaitFrame();
        }
        const double end = processSeconds();
        if (m_way == Way::Mouse)
            send(QEvent::MouseButtonRelease, grip);
        return (end - begin) / moves;
    }

private:
    static constexpr int moves = 40;

    void moveTo(const QPointF &place)
    {
        if (m_way == Way::Mouse)
            send(QEvent::MouseMove, place);
        else
            QMetaObject::invokeMethod(m_page.get(), "move", Q_ARG(int, m_dragged), Q_ARG(QPointF, place));
    }

    void send(QEvent::Type type, const QPointF &place)
    {
        const auto button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
        const auto buttons = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(type, place, m_window.mapToGlobal(place), button, buttons, Qt::NoModifier);
        QCoreApplication::sendEvent(&m_window, &event);
    }

    BenchWindow m_window;
    std::unique_ptr<QQuickItem> m_page;
    int m_dragged;
    Way m_way;
};

void drag(benchmark::State &state, QQmlEngine &engine, int filters, Way way)
{
    Plot few(engine, 8, way);
    Plot many(engine, filters, way);
    std::vector<double> ratios;
    for (auto _ : state) {
        const double fewSeconds = few.secondsPerMove();
        const double manySeconds = many.secondsPerMove();
        state.SetIterationTime(manySeconds);
        ratios.push_back(manySeconds / fewSeconds);
    }
    state.counters["of 8"] = median(ratios);
}

} // namespace

int main(int argc, char **argv)
{
    drawNothing();
    QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    QQmlEngine engine;
    useModule(engine);
    for (const Way way : {Way::Mouse, Way::Calls}) {
        for (const int filters : {8, 64, 200}) {
            const auto name = std::string(way == Way::Mouse ? "drag/" : "call/") + "1 of " + std::to_string(filters);
            const auto run = [&engine, filters, way](benchmark::State &state) { drag(state, engine, filters, way); };
            // The time of an iteration is that of one move of many, and frames have a rate.
            benchmark::RegisterBenchmark(name.c_str(), run)
                ->Iterations(7)
                ->UseManualTime()
                ->Unit(benchmark::kMicrosecond);
        }
    }
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
