// Writing a document against what any writer of it pays: the printer alone, saving a tree of the
// same content. What the load put off is part of the first write. Each makes a new file: what it
// costs to cut an old one off is the file system's affair, and only the printer does it. The
// counter "ratio" is the quotient of the medians.

#include <benchmark/benchmark.h>
#include <unistd.h>

#include <memory>
#include <pugixml.hpp>
#include <vector>

#include "bench/measure.h"

namespace {

void WriteAgainstPrinter(benchmark::State& state, bool again) {
  const char* source = BenchDocument().c_str();
  const ScratchFile file;
  const ScratchFile printed;
  AFilePath path(file.Path());
  if (const auto document = LoadDocument(source)) document->PMWriteQDF(path);
  pugi::xml_document tree;
  if (!tree.load_file(file.Path())) {
    state.SkipWithError("the document can't be loaded and written");
    return;
  }
  std::vector<double> writes;
  std::vector<double> prints;
  for (auto _ : state) {
    const std::unique_ptr<APMQDF> document = LoadDocument(source);
    if (again) document->PMWriteQDF(path);
    unlink(file.Path());
    unlink(printed.Path());
    writes.push_back(Seconds([&] { document->PMWriteQDF(path); }));
    prints.push_back(Seconds([&] { tree.save_file(printed.Path(), "  "); }));
  }
  Compare(state, Median(writes), Median(prints), 2.5);
}

BENCHMARK_CAPTURE(WriteAgainstPrinter, First, false)->Unit(benchmark::kMillisecond)->MinTime(2);
BENCHMARK_CAPTURE(WriteAgainstPrinter, Again, true)->Unit(benchmark::kMillisecond)->MinTime(2);

}  // namespace
