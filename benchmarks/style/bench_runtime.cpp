// What the style engine costs the items of a scene. Times are CPU time of the GUI thread, memory is the C++ heap.
//   attach       a style set on an item, up to the first property read: us/set, bytes/set. The QML engine takes a
//                table of 1 KB for the first attached object of an item, so its own cost shows with the second.
//   first value  props object and first colour, of a path that other items share or that is new: us/set, bytes/set
//   create       an item through its QML component: plain, with a style set, with three bound colours, and a control
//                of three styled parts with two colours each: us/item, bytes/item
//   state        one control becomes hovered or ceases to be, until its bindings are done: us per change
//   restyle      another sheet of 20 KB comes in force, file read and parsed, with so many items in the scene; "load"
//                is the same without items, "own paths" gives each item a name of its own: us/item, ms in all
//   pages        1,000 items with names of their own come, are hovered and go, then the sheet is loaded again: bytes in
//                use per item while they stand (bytes/item), and what is still held per page ever shown (kept/page)
// Nothing is drawn and no display is needed.

#include "BareAttached.h"
#include "BenchScene.h"
#include "BenchSheets.h"

#include "style/StateHelper.h"
#include "style/StyleSet.h"

#include <benchmark/benchmark.h>

#include <QtGui/QGuiApplication>

#include <functional>
#include <string>

using namespace tamble::client;

namespace {

StyleSet *styleSetOf(const std::unique_ptr<QQuickItem> &item)
{
    return static_cast<StyleSet *>(qmlAttachedPropertiesObject<StyleSet>(item.get(), true));
}

void nameEach(const BenchScene::Items &items, const QString &prefix)
{
    for (std::size_t i = 0; i < items.size(); ++i)
        styleSetOf(items[i])->setName(QStringLiteral("red %1%2").arg(prefix).arg(i));
}

/// Measures `run`, which is done to `count` things at once, and reports both per thing.
void measureOnce(benchmark::State &state, std::size_t count, const char *thing, const std::function<void()> &run)
{
    const std::size_t heapBefore = heapBytes();
    const double begin = threadSeconds();
    run();
    const double seconds = threadSeconds() - begin;
    const double bytes = double(heapBytes()) - double(heapBefore);
    state.SetIterationTime(seconds);

    // Averaged over the iterations, since iterations are repeated calls of the whole batch.
    auto &time = state.counters[std::string("us/") + thing];
    time.value += seconds * 1e6 / double(count);
    time.flags = benchmark::Counter::kAvgIterations;
    auto &memory = state.counters[std::string("bytes/") + thing];
    memory.value += bytes / double(count);
    memory.flags = benchmark::Counter::kAvgIterations;
}

constexpr std::size_t batch = 1'000;

template <typename Attached>
void attach(benchmark::State &state, BenchScene &scene, bool first)
{
    for (auto _ : state) {
        const auto items = scene.create("PlainItem", batch);
        for (std::size_t i = 0; i < items.size() && !first; ++i)
            qmlAttachedPropertiesObject<BareAttached>(items[i].get(), true);
        measureOnce(state, batch, "set", [&items] {
            for (const auto &item : items)
                benchmark::DoNotOptimize(qmlAttachedPropertiesObject<Attached>(item.get(), true));
        });
    }
}

void firstValue(benchmark::State &state, BenchScene &scene, BenchSheets &sheets, bool ownPaths)
{
    const QString key = QStringLiteral("background");
    for (auto _ : state) {
        const auto items = scene.create("StyleSetItem", batch);
        if (ownPaths)
            nameEach(items, QStringLiteral("n"));
        measureOnce(state, batch, "set", [&items, &key] {
            for (const auto &item : items)
                benchmark::DoNotOptimize(styleSetOf(item)->props()->color(key));
        });
        sheets.reload();
    }
}

void create(benchmark::State &state, BenchScene &scene, const char *type)
{
    scene.create(type, 1);
    for (auto _ : state) {
        BenchScene::Items items;
        scene.settle();
        measureOnce(state, batch, "item", [&] { items = scene.create(type, batch); });
    }
}

void changeState(benchmark::State &state, BenchScene &scene, const char *type)
{
    const auto items = scene.create(type, 1);
    StateHelper *helper = styleSetOf(items.front())->stateHelper();
    const auto before = items.front()->property("background");
    helper->setHovered(true);
    if (items.front()->property("background") == before)
        state.SkipWithError("the colour does not change");
    bool hovered = true;
    const double begin = threadSeconds();
    for (auto _ : state) {
        hovered = !hovered;
        helper->setHovered(hovered);
    }
    state.counters["us"] = (threadSeconds() - begin) * 1e6 / double(state.iterations());
}

void load(benchmark::State &state, BenchSheets &sheets)
{
    for (auto _ : state) {
        const double begin = threadSeconds();
        sheets.swap();
        state.SetIterationTime(threadSeconds() - begin);
    }
}

void restyle(benchmark::State &state, BenchScene &scene, BenchSheets &sheets, const char *type, std::size_t count,
             bool ownPaths)
{
    const auto items = scene.create(type, count);
    if (ownPaths)
        nameEach(items, QStringLiteral("n"));
    for (auto _ : state) {
        const auto before = items.back()->property("background");
        measureOnce(state, count, "item", [&sheets] { sheets.swap(); });
        if (items.back()->property("background") == before)
            state.SkipWithError("the colour does not change");
    }
    state.counters.erase("bytes/item");
}

void pages(benchmark::State &state, BenchScene &scene, BenchSheets &sheets)
{
    int page = 0;
    const auto show = [&] {
        const auto items = scene.create("StyledItem", batch);
        nameEach(items, QStringLiteral("p%1-").arg(++page));
        for (const auto &item : items)
            styleSetOf(item)->stateHelper()->setHovered(true);
        return heapBytes();
    };
    const auto clear = [&] {
        scene.settle();
        sheets.reload();
        return heapBytes();
    };
    for (int warmUp = 0; warmUp < 3; ++warmUp) {
        show();
        clear();
    }
    const std::size_t atFirst = clear();
    std::size_t atLast = atFirst;
    double inUse = 0;
    for (auto _ : state) {
        inUse += double(show()) - double(atLast);
        atLast = clear();
    }
    state.counters["bytes/item"] = inUse / double(state.iterations()) / double(batch);
    state.counters["kept/page"] = (double(atLast) - double(atFirst)) / double(state.iterations());
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    // Every load is logged; where the log goes is no matter of the style engine.
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &, const QString &text) {
        if (type == QtFatalMsg)
            fprintf(stderr, "%s\n", qPrintable(text));
    });
    BenchScene scene;
    BenchSheets sheets;

    const auto add = [](const std::string &name, auto run) {
        return benchmark::RegisterBenchmark(name.c_str(), run)->Unit(benchmark::kMicrosecond);
    };
    const auto addBatch = [&add](const std::string &name, auto run) {
        add(name, run)->Unit(benchmark::kMillisecond)->UseManualTime();
    };
    qmlRegisterAnonymousType<BareAttached>("StyleBench", 1);
    addBatch("attach/bare object, first", [&](benchmark::State &state) { attach<BareAttached>(state, scene, true); });
    addBatch("attach/style set, first", [&](benchmark::State &state) { attach<StyleSet>(state, scene, true); });
    addBatch("attach/style set, second", [&](benchmark::State &state) { attach<StyleSet>(state, scene, false); });
    addBatch("first value/shared path", [&](benchmark::State &state) { firstValue(state, scene, sheets, false); });
    addBatch("first value/own paths", [&](benchmark::State &state) { firstValue(state, scene, sheets, true); });
    for (const char *type : {"PlainItem", "StyleSetItem", "StyledItem", "StyledControl"})
        addBatch(std::string("create/") + type, [&, type](benchmark::State &state) { create(state, scene, type); });
    for (const char *type : {"StyledItem", "StyledControl"})
        add(std::string("state/") + type, [&, type](benchmark::State &state) { changeState(state, scene, type); });
    addBatch("load", [&](benchmark::State &state) { load(state, sheets); });
    for (const char *type : {"StyledItem", "StyledControl"}) {
        for (const std::size_t count : {1'000u, 10'000u}) {
            for (const bool ownPaths : {false, true}) {
                addBatch(std::string("restyle/") + std::to_string(count) + " " + type + (ownPaths ? ", own paths" : ""),
                         [&, type, count, ownPaths](benchmark::State &state) {
                             restyle(state, scene, sheets, type, count, ownPaths);
                         });
            }
        }
    }
    add("pages", [&](benchmark::State &state) { pages(state, scene, sheets); })->Unit(benchmark::kMillisecond);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
