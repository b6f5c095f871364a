#include "GeneratedSheet.h"

#include "style/language/StyleSheetParser.h"
#include "style/resolution/StylePathPool.h"
#include "style/resolution/StyleResolver.h"

#include <benchmark/benchmark.h>

#include <malloc.h>

#include <chrono>
#include <string>
#include <vector>

using namespace tamble::client;

namespace {

// Five controls have 180 rules; larger sheets hold copies of them, for other controls or for other classes.
constexpr std::size_t baseControls = 5;

std::string sheetOfOtherTypes(std::size_t copies)
{
    return generatedSheet(baseControls * copies);
}

std::string sheetOfOtherClasses(std::size_t copies)
{
    std::string text = generatedSheet(baseControls);
    for (std::size_t copy = 1; copy < copies; ++copy) {
        const std::string type = "RControl1.v" + std::to_string(copy);
        for (const char *state : {"", "::hovered", "::pressed", "::selected::pressed", "::inconsistent::pressed"}) {
            for (int declaration = 0; declaration < 36; ++declaration)
                text += type + "-" + std::to_string(declaration) + state + " { background: \"#005691\"; } \r\n";
        }
    }
    return text;
}

/// A button in nested panels, in a scene whose items have no rules of their own. With a `name` the path is one that
/// no other path shares an element with but for the root.
StylePathRef pathTo(StylePathPool &pool, const QString &name, const QString &leafName)
{
    StylePathRef path = pool.child({}, u"QQuickRootItem", u"", u"");
    for (const QStringView type : {u"RWindow", u"RControl3", u"QQuickItem", u"RControl4"})
        path = pool.child(path, type, name, u"");
    return pool.child(path, u"RControl1", leafName, u"hovered pressed");
}

double secondsSince(std::chrono::steady_clock::time_point start)
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

void knownPath(benchmark::State &state, const std::string &text)
{
    const StyleSheet sheet = parseSheet(text);
    StylePathPool pool;
    StyleResolver resolver(sheet);
    std::vector<StylePathRef> paths;
    for (int i = 0; i < 1'000; ++i) {
        paths.push_back(pathTo(pool, QString(), QStringLiteral("red n%1").arg(i)));
        resolver.resolve(*paths.back());
    }
    std::size_t next = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(&resolver.resolve(*paths[next]));
        next = next + 1 < paths.size() ? next + 1 : 0;
    }
}

/// Paths that differ in the innermost element only, or in every element but the root.
void newPath(benchmark::State &state, const std::string &text, bool newSurroundings)
{
    constexpr int batch = 10'000;
    const StyleSheet sheet = parseSheet(text);
    double bytes = 0;
    for (auto _ : state) {
        StylePathPool pool;
        std::vector<StylePathRef> paths;
        for (int i = 0; i < batch; ++i) {
            const QString number = QStringLiteral("n%1").arg(i);
            paths.push_back(pathTo(pool, newSurroundings ? number : QString(), "red " + number));
        }
        StyleResolver resolver(sheet);
        const auto before = mallinfo2().uordblks;
        const auto start = std::chrono::steady_clock::now();
        for (const StylePathRef &path : paths)
            benchmark::DoNotOptimize(&resolver.resolve(*path));
        state.SetIterationTime(secondsSince(start) / batch);
        bytes = double(mallinfo2().uordblks - before) / double(resolver.pathCount());
    }
    state.counters["bytes/path"] = bytes;
}

/// A lookup of every name that a control asks for, in a map that inherits them.
void find(benchmark::State &state)
{
    const StyleSheet sheet = parseSheet(generatedSheet(baseControls) + "RWindow { a: 1; b: 1; foreground-item: 1 }");
    StylePathPool pool;
    StyleResolver resolver(sheet);
    const ResolvedMap &map = resolver.resolve(*pathTo(pool, QString(), QString()));
    const std::vector<QString> keys = {"background", "foreground", "line-visible", "foreground-item", "missing"};
    for (auto _ : state) {
        for (const QString &key : keys)
            benchmark::DoNotOptimize(map.find(key));
    }
    state.SetItemsProcessed(std::int64_t(state.iterations()) * std::int64_t(keys.size()));
}

/// The path of an item below a known one: seen before, as when a state comes and goes, or for the first time.
void knownPathNode(benchmark::State &state)
{
    StylePathPool pool;
    const StylePathRef parent = pathTo(pool, QString(), QString());
    const QString type = "RButton";
    const QString name = "red big";
    const QString states[] = {"", "hovered ", "pressed hovered "};
    std::vector<StylePathRef> held;
    for (const QString &text : states)
        held.push_back(pool.child(parent, type, name, text));
    std::size_t next = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(pool.child(parent, type, name, states[next]).get());
        next = next < 2 ? next + 1 : 0;
    }
}

void newPathNode(benchmark::State &state, bool newElements)
{
    constexpr int batch = 10'000;
    std::vector<QString> names;
    for (int i = 0; i < batch; ++i)
        names.push_back(QStringLiteral("red n%1").arg(newElements ? i : i % 10));
    double bytes = 0;
    for (auto _ : state) {
        StylePathPool pool;
        std::vector<StylePathRef> parents(batch);
        for (std::size_t i = 0; i < batch; ++i)
            parents[i] = pool.child({}, u"RPanel", QString::number(i), u"");
        std::vector<StylePathRef> held(batch);
        const auto before = mallinfo2().uordblks;
        const auto start = std::chrono::steady_clock::now();
        for (std::size_t i = 0; i < batch; ++i)
            held[i] = pool.child(parents[i], u"RButton", names[i], u"hovered");
        state.SetIterationTime(secondsSince(start) / batch);
        bytes = double(mallinfo2().uordblks - before) / batch;
    }
    state.counters["bytes/path"] = bytes;
}

} // namespace

int main(int argc, char **argv)
{
    benchmark::Initialize(&argc, argv);
    for (const std::size_t copies : {1u, 10u, 100u}) {
        const std::string rules = std::string("/").append(std::to_string(180 * copies)).append(" rules");
        const std::string other = sheetOfOtherTypes(copies);
        const std::string same = sheetOfOtherClasses(copies);
        benchmark::RegisterBenchmark(("known path, other types" + rules).c_str(), knownPath, other);
        benchmark::RegisterBenchmark(("known path, same type" + rules).c_str(), knownPath, same);
        for (const auto &[name, sheet] : {std::pair("other types", &other), std::pair("same type", &same)}) {
            benchmark::RegisterBenchmark((std::string("new leaf, ") + name + rules).c_str(), newPath, *sheet, false)
                ->UseManualTime()
                ->Iterations(30);
            benchmark::RegisterBenchmark((std::string("new path, ") + name + rules).c_str(), newPath, *sheet, true)
                ->UseManualTime()
                ->Iterations(30);
        }
    }
    benchmark::RegisterBenchmark("find a property", find);
    benchmark::RegisterBenchmark("path node, known", knownPathNode);
    benchmark::RegisterBenchmark("path node, new below another parent", newPathNode, false)
        ->UseManualTime()
        ->Iterations(30);
    benchmark::RegisterBenchmark("path node, new name", newPathNode, true)->UseManualTime()->Iterations(30);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
