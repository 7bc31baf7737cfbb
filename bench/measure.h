#pragma once

// What the benchmarks share: the document that they work on, and times of single runs, from which
// those that compare two things take medians.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <ctime>
#include <memory>
#include <string>
#include <vector>

#include "qdf/core/apmqdf.h"

// The path given on the command line, else that of a small example.
const std::string& BenchDocument();

// Null when it can't be loaded.
std::unique_ptr<APMQDF> LoadDocument(const char* path);

// The name of a file that goes with the object.
class ScratchFile {
 public:
  ScratchFile();
  ~ScratchFile();
  ScratchFile(const ScratchFile&) = delete;
  ScratchFile& operator=(const ScratchFile&) = delete;

  const char* Path() const { return path_.c_str(); }

 private:
  std::string path_ = "/tmp/apmqdf-bench-XXXXXX";
};

// What a benchmark tells: its figure, the one that it is measured against, how many times as much
// it is, and how many times it may be.
void Compare(benchmark::State& state, double figure, double against, double atMost);

// The processor time of this thread: what other programs do meanwhile doesn't count.
inline double ThreadSeconds() {
  timespec now{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
  return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

template <class Work>
double Seconds(Work work) {
  const double start = ThreadSeconds();
  work();
  return ThreadSeconds() - start;
}

inline double Median(std::vector<double> values) {
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}
