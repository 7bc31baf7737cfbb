#pragma once

// What the benchmarks share: the document that they work on, and times of single runs, from which
// those that compare two things take medians.

#include <algorithm>
#include <chrono>
#include <string>
#include <vector>

// The path given on the command line, else that of a small example.
const std::string& BenchDocument();

template <class Work>
double Seconds(Work work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

inline double Median(std::vector<double> values) {
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}
