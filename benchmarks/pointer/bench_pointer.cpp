// What it costs that the pointer is watched: mouse moves through a window per second of CPU time, with items that do
// nothing, and with detections or cursors in their place. "of bare" is the ratio to a window of plain items that
// nothing watches, taken by turns, so that both meet the same state of the machine; those beside cursors have the same
// one. No display is needed.

#include "support/BenchWindow.h"

#include "pointer/RMouseCursor.h"
#include "pointer/RMouseDetection.h"
#include "pointer/RMouseEventSpy.h"

#include <benchmark/benchmark.h>

#include <QtGui/QGuiApplication>
#include <QtQuick/QQuickItem>

#include <memory>
#include <vector>

using namespace tamble::client;

namespace {

constexpr int columns = 40;
constexpr qreal pitch = 20.0;

/// A window full of items of one kind.
class Field
{
public:
    using Maker = QQuickItem *(*)();

    Field(int count, Maker make)
    {
        m_page.setSize({columns * pitch, columns * pitch});
        for (int i = 0; i < count; ++i) {
            QQuickItem *item = make();
            item->setParent(&m_page);
            item->setParentItem(&m_page);
            item->setPosition({pitch * (i % columns), pitch * (i / columns)});
            item->setSize({pitch - 2.0, pitch - 2.0});
        }
        m_window.showPage(m_page);
        secondsPerMove(); // to warm up
    }

    /// Moves the mouse along the diagonal.
    double secondsPerMove()
    {
        constexpr int moves = 2000;
        const double begin = processSeconds();
        for (int i = 0; i < moves; ++i) {
            const QPointF place(i * columns * pitch / moves, i * columns * pitch / moves);
            QMouseEvent event(QEvent::MouseMove, place, place, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
            QCoreApplication::sendEvent(&m_window, &event);
        }
        return (processSeconds() - begin) / moves;
    }

private:
    QQuickItem m_page;
    BenchWindow m_window;
};

QQuickItem *plainItem()
{
    return new QQuickItem;
}

void moveMouse(benchmark::State &state, int count, Field::Maker make, Field::Maker makeBare)
{
    auto *spy = RMouseEventSpy::instance();
    Field bare(count, makeBare);
    std::vector<double> ratios, rates;
    Field watched(count, make);
    for (auto _ : state) {
        qApp->removeEventFilter(spy);
        const double bareSeconds = bare.secondsPerMove();
        spy->install();
        const double seconds = watched.secondsPerMove();
        state.SetIterationTime(seconds);
        ratios.push_back(seconds / bareSeconds);
        rates.push_back(1.0 / seconds);
    }
    state.counters["moves/s"] = median(rates);
    state.counters["of bare"] = median(ratios);
}

} // namespace

int main(int argc, char **argv)
{
    drawNothing();
    QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    const auto add = [](const char *name, int count, Field::Maker make, Field::Maker bare = plainItem) {
        benchmark::RegisterBenchmark(name, [=](benchmark::State &state) { moveMouse(state, count, make, bare); })
            ->Iterations(9)
            ->UseManualTime()
            ->Unit(benchmark::kMicrosecond);
    };
    const Field::Maker detection = []() -> QQuickItem * { return new RMouseDetection; };
    const Field::Maker inactive = []() -> QQuickItem * {
        auto *item = new RMouseDetection;
        item->setActive(false);
        return item;
    };
    const Field::Maker withCursor = [] {
        auto *item = new QQuickItem;
        (new RMouseCursor(item))->setShape(Qt::CrossCursor);
        return item;
    };
    const Field::Maker withOwnCursor = [] {
        auto *item = new QQuickItem;
        item->setCursor(Qt::CrossCursor);
        return item;
    };
    add("spy alone", 1, plainItem);
    add("1 detection", 1, detection);
    add("1000 detections", 1000, detection);
    add("1000 inactive detections", 1000, inactive);
    add("1000 items with a cursor", 1000, withCursor, withOwnCursor);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
