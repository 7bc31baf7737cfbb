// The memory that a load takes at its peak. The counter "ratio" is that over the size of the file.

#include <benchmark/benchmark.h>
#include <malloc.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <string>

#include "bench/measure.h"
#include "qdf/core/apmqdf.h"

namespace {

// A line of /proc/self/status, in bytes.
double StatusBytes(const std::string& key) {
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);) {
    if (line.rfind(key, 0) == 0) return std::stod(line.substr(key.size())) * 1024;
  }
  return 0;
}

// In a process of its own that first gives back what its parent freed: else the load would take
// that, and nothing new.
double PeakOfLoad() {
  int ends[2];
  if (pipe(ends) != 0) return 0;
  double peak = 0;
  const pid_t child = fork();
  if (child == 0) {
    malloc_trim(0);
    std::ofstream("/proc/self/clear_refs") << 5;  // the peak counts from here
    const double before = StatusBytes("VmRSS:");
    const bool loaded = LoadDocument(BenchDocument().c_str()) != nullptr;
    peak = loaded ? StatusBytes("VmHWM:") - before : 0;
    const bool told = write(ends[1], &peak, sizeof peak) == sizeof peak;
    _exit(told ? 0 : 1);
  }
  close(ends[1]);
  if (read(ends[0], &peak, sizeof peak) != sizeof peak) peak = 0;
  close(ends[0]);
  waitpid(child, nullptr, 0);
  return peak;
}

void PeakMemoryOfLoad(benchmark::State& state) {
  double peak = 0;
  for (auto _ : state) peak = PeakOfLoad();
  if (peak == 0) state.SkipWithError("the document can't be loaded or its memory not measured");
  Compare(state, peak, static_cast<double>(std::filesystem::file_size(BenchDocument())), 6);
}

BENCHMARK(PeakMemoryOfLoad)->Iterations(1);

}  // namespace
