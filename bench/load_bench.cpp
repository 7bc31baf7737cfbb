// Loading a document against what any reader of it pays: the parser alone on the same file. Both
// are timed in turn within one run, and the counter "ratio" is the quotient of the medians.

#include <benchmark/benchmark.h>

#include <memory>
#include <pugixml.hpp>
#include <string>
#include <vector>

#include "bench/measure.h"
#include "qdf/core/apmqdf.h"

namespace {

void LoadAgainstParser(benchmark::State& state) {
  const std::string& document = BenchDocument();
  AFilePath path(document.c_str());
  std::vector<double> loads;
  std::vector<double> parses;
  for (auto _ : state) {
    bool loaded = false;
    bool parsed = false;
    loads.push_back(Seconds([&] {
      APMQDF* object = nullptr;
      PMGetQDFInterface(path, &object);
      loaded = std::unique_ptr<APMQDF>(object) != nullptr;
    }));
    parses.push_back(Seconds([&] {
      pugi::xml_document tree;
      parsed = static_cast<bool>(tree.load_file(document.c_str()));
    }));
    if (!loaded || !parsed) {
      state.SkipWithError("the document can't be loaded");
      return;
    }
  }
  state.counters["load"] = Median(loads);
  state.counters["parser"] = Median(parses);
  state.counters["ratio"] = Median(loads) / Median(parses);
}

BENCHMARK(LoadAgainstParser)->Unit(benchmark::kMillisecond)->MinTime(2);

}  // namespace
