// Runs the benchmarks:
//
//     apmqdf-bench [benchmark options] [DOCUMENT]

#include <benchmark/benchmark.h>

#include "bench/measure.h"

namespace {

std::string& Document() {
  static std::string path = QDF_EXAMPLES "/OutputDrivers/plot36.qdf";
  return path;
}

}  // namespace

const std::string& BenchDocument() { return Document(); }

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (argc > 1) Document() = argv[1];
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
