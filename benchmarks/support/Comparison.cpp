#include "support/Comparison.h"

#include <malloc.h>
#include <memory>
#include <vector>

std::size_t heapBytes()
{
    const auto info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

void compare(benchmark::State &state, const Measure &ours, const Measure &basic, const char *unit, double perSecond)
{
    std::vector<double> seconds, bytes, secondsRatios, bytesRatios;
    for (auto _ : state) {
        const Cost there = basic();
        const Cost here = ours();
        state.SetIterationTime(here.seconds);
        seconds.push_back(here.seconds * perSecond);
        secondsRatios.push_back(here.seconds / there.seconds);
        if (there.bytes > 0.0) {
            bytes.push_back(here.bytes);
            bytesRatios.push_back(here.bytes / there.bytes);
        }
    }
    state.counters[unit] = median(seconds);
    state.counters["time of Basic"] = median(secondsRatios);
    if (!bytes.empty()) {
        state.counters["bytes"] = median(bytes);
        state.counters["heap of Basic"] = median(bytesRatios);
    }
}

void compareCreation(benchmark::State &state, ControlScene &scene, const Pair &pair)
{
    constexpr std::size_t count = 200;
    const auto measured = [&scene](const char *module, const char *declaration) -> Measure {
        return [&scene, component = std::shared_ptr<QQmlComponent>(scene.compile(module, declaration))] {
            std::vector<std::unique_ptr<QQuickItem>> items;
            items.reserve(count);
            scene.settle();
            const std::size_t heapBefore = heapBytes();
            const double begin = processSeconds();
            for (std::size_t i = 0; i < count; ++i)
                items.push_back(scene.create(*component));
            const double end = processSeconds();
            scene.settle();
            return Cost{(end - begin) / count, (double(heapBytes()) - double(heapBefore)) / count};
        };
    };
    const Measure ours = measured(ourModule, pair.ours);
    const Measure basic = measured(basicModule, pair.basic);
    ours();
    basic();
    compare(state, ours, basic, "us", 1e6);
}

void addComparison(const std::string &name, int iterations, const std::function<void(benchmark::State &)> &run)
{
    benchmark::RegisterBenchmark(name.c_str(), run)
        ->Iterations(iterations)
        ->UseManualTime()
        ->Unit(benchmark::kMicrosecond);
}

void addCreation(ControlScene &scene, const Pair &pair)
{
    addComparison(std::string("create/") + pair.name, 9,
                  [&scene, &pair](benchmark::State &state) { compareCreation(state, scene, pair); });
}
