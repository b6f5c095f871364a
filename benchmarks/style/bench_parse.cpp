#include "GeneratedSheet.h"

#include "style/language/StyleSheetParser.h"

#include <benchmark/benchmark.h>

#include <fstream>
#include <iterator>

namespace {

void parse(benchmark::State &state, const std::string &text)
{
    std::size_t rules = 0;
    for (auto _ : state) {
        const auto sheet = tamble::client::parseSheet(text);
        rules += sheet.ruleCount();
        benchmark::DoNotOptimize(sheet);
    }
    // In units of 1000 × 1000 bytes, and with the sheet given back.
    state.counters["MB/s"] =
        benchmark::Counter(double(text.size()) * double(state.iterations()) / 1e6, benchmark::Counter::kIsRate);
    state.counters["rules/s"] = benchmark::Counter(double(rules), benchmark::Counter::kIsRate);
}

} // namespace

int main(int argc, char **argv)
{
    benchmark::Initialize(&argc, argv);
    benchmark::RegisterBenchmark("parse/180 rules", parse, generatedSheet(5));
    benchmark::RegisterBenchmark("parse/1 MB, 360 selectors repeated", parse, generatedSheet(10, 60));
    benchmark::RegisterBenchmark("parse/1 MB, all selectors different", parse, generatedSheet(600));
    // Further sheets to measure may be named on the command line.
    for (int i = 1; i < argc; ++i) {
        std::ifstream file(argv[i], std::ios::binary);
        benchmark::RegisterBenchmark(argv[i], parse, std::string(std::istreambuf_iterator<char>(file), {}));
    }
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
