// Loading a document against what any reader of it pays: the parser alone on the same file. Both
// are timed in turn within one run, and the counter "ratio" is the quotient of the medians.

#include <benchmark/benchmark.h>

#include <pugixml.hpp>
#include <vector>

#include "bench/measure.h"

namespace {

void LoadAgainstParser(benchmark::State& state) {
  const char* document = BenchDocument().c_str();
  std::vector<double> loads;
  std::vector<double> parses;
  for (auto _ : state) {
    bool loaded = false;
    bool parsed = false;
    loads.push_back(Seconds([&] { loaded = LoadDocument(document) != nullptr; }));
    parses.push_back(Seconds([&] {
      pugi::xml_document tree;
      parsed = static_cast<bool>(tree.load_file(document));
    }));
    if (!loaded || !parsed) {
      state.SkipWithError("the document can't be loaded");
      return;
    }
  }
  Compare(state, Median(loads), Median(parses), 2.5);
}

BENCHMARK(LoadAgainstParser)->Unit(benchmark::kMillisecond)->MinTime(2);

}  // namespace
