// Runs the benchmarks:
//
//     apmqdf-bench [benchmark options] [DOCUMENT]

#include <benchmark/benchmark.h>
#include <malloc.h>
#include <unistd.h>

#include <climits>

#include "bench/measure.h"

namespace {

std::string& Document() {
  static std::string path = QDF_EXAMPLES "/OutputDrivers/plot36.qdf";
  return path;
}

}  // namespace

const std::string& BenchDocument() { return Document(); }

std::unique_ptr<APMQDF> LoadDocument(const char* path) {
  AFilePath source(path);
  APMQDF* document = nullptr;
  PMGetQDFInterface(source, &document);
  return std::unique_ptr<APMQDF>(document);
}

ScratchFile::ScratchFile() {
  const int file = mkstemp(path_.data());
  if (file >= 0) close(file);
}

ScratchFile::~ScratchFile() { unlink(path_.c_str()); }

void Compare(benchmark::State& state, double figure, double against, double atMost) {
  state.counters["figure"] = figure;
  state.counters["against"] = against;
  state.counters["ratio"] = figure / against;
  state.counters["at_most"] = atMost;
}

int main(int argc, char** argv) {
  // What is freed stays with the program: else the benchmarks that ran before would decide how
  // often a load has to ask the system for pages.
  mallopt(M_MMAP_MAX, 0);
  mallopt(M_TRIM_THRESHOLD, INT_MAX);
  benchmark::Initialize(&argc, argv);
  if (argc > 1) Document() = argv[1];
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
