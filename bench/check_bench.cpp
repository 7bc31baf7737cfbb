// Examining a document against loading it. The counter "ratio" is the quotient of the medians.

#include <benchmark/benchmark.h>

#include <vector>

#include "bench/measure.h"
#include "tool/check/layout.h"

namespace {

void CheckAgainstLoad(benchmark::State& state) {
  const std::string& document = BenchDocument();
  std::vector<double> checks;
  std::vector<double> loads;
  for (auto _ : state) {
    bool loaded = false;
    loads.push_back(Seconds([&] { loaded = LoadDocument(document.c_str()) != nullptr; }));
    checks.push_back(Seconds([&] {
      benchmark::DoNotOptimize(check::TextOf({{document, check::Examine(document)}}, false));
    }));
    if (!loaded) {
      state.SkipWithError("the document can't be loaded");
      return;
    }
  }
  Compare(state, Median(checks), Median(loads), 20);
}

BENCHMARK(CheckAgainstLoad)->Unit(benchmark::kMillisecond)->MinTime(2);

}  // namespace
