#pragma once

// What the benchmarks share: the document that they work on, and times of single runs, from which
// those that compare two things take medians.

#include <algorithm>
#include <ctime>
#include <string>
#include <vector>

// The path given on the command line, else that of a small example.
const std::string& BenchDocument();

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
