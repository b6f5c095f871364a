#pragma once

#include "support/ControlScene.h"

#include <benchmark/benchmark.h>

#include <functional>
#include <string>

/// A control of the module and one of Qt Quick Controls Basic of the same kind.
struct Pair
{
    const char *name;
    const char *ours;
    const char *basic;
};

constexpr const char *ourModule = "TambleClient.Control 1.0";
constexpr const char *basicModule = "QtQuick.Controls.Basic";

/// CPU time of the process in seconds, and bytes of the C++ heap; 0 bytes where they are of no interest.
struct Cost
{
    double seconds = 0.0;
    double bytes = 0.0;
};
using Measure = std::function<Cost()>;

/// Bytes in use on the heap of C++, without that of the script engine.
std::size_t heapBytes();

/// Takes both by turns, so that both meet the same state of the machine, and reports our costs in `unit`s, of which a
/// second has `perSecond`, and the medians of the ratios.
void compare(benchmark::State &state, const Measure &ours, const Measure &basic, const char *unit, double perSecond);

/// Compares what it costs to make controls through their QML components, in a window, without a frame: us, bytes.
void compareCreation(benchmark::State &state, ControlScene &scene, const Pair &pair);

/// Adds a benchmark of its own times.
void addComparison(const std::string &name, int iterations, const std::function<void(benchmark::State &)> &run);

/// Adds the creation of a pair, which outlives it, as the scene does.
void addCreation(ControlScene &scene, const Pair &pair);
