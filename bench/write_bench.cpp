// Writing a document against what any writer of it pays: the printer alone, saving a tree of the
// same content. Each makes a new file: what it costs to cut an old one off is the file system's
// affair, and only the printer does it. The counter "ratio" is the quotient of the medians.

#include <benchmark/benchmark.h>
#include <unistd.h>

#include <memory>
#include <pugixml.hpp>
#include <string>
#include <vector>

#include "bench/measure.h"
#include "qdf/core/apmqdf.h"

namespace {

// The name of a file that goes with the object.
class ScratchFile {
 public:
  ScratchFile() {
    const int file = mkstemp(path_.data());
    if (file >= 0) close(file);
  }
  ~ScratchFile() { unlink(path_.c_str()); }
  ScratchFile(const ScratchFile&) = delete;
  ScratchFile& operator=(const ScratchFile&) = delete;

  const char* Path() const { return path_.c_str(); }

 private:
  std::string path_ = "/tmp/apmqdf-bench-XXXXXX";
};

void WriteAgainstPrinter(benchmark::State& state) {
  AFilePath source(BenchDocument().c_str());
  APMQDF* object = nullptr;
  PMGetQDFInterface(source, &object);
  const std::unique_ptr<APMQDF> document(object);
  const ScratchFile file;
  const ScratchFile printed;
  AFilePath path(file.Path());
  if (document != nullptr) document->PMWriteQDF(path);
  pugi::xml_document tree;
  if (!tree.load_file(file.Path())) {
    state.SkipWithError("the document can't be loaded and written");
    return;
  }
  std::vector<double> writes;
  std::vector<double> prints;
  for (auto _ : state) {
    unlink(file.Path());
    unlink(printed.Path());
    writes.push_back(Seconds([&] { document->PMWriteQDF(path); }));
    prints.push_back(Seconds([&] { tree.save_file(printed.Path(), "  "); }));
  }
  state.counters["write"] = Median(writes);
  state.counters["printer"] = Median(prints);
  state.counters["ratio"] = Median(writes) / Median(prints);
}

BENCHMARK(WriteAgainstPrinter)->Unit(benchmark::kMillisecond)->MinTime(2);

}  // namespace
