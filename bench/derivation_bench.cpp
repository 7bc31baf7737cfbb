// Ten times as many HP resources should cost ten times as much, whatever shape their tree has.

#include <benchmark/benchmark.h>

#include <array>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "bench/measure.h"
#include "bench/resources.h"
#include "qdf/core/documentmembers.h"

namespace {

constexpr int kFew = 1000;
constexpr int kMany = 10 * kFew;

constexpr std::array<const char*, 5> kShapes = {"square", "own media", "one media", "one folder",
                                                "many folders"};

// The shape that the argument tells, which becomes the label.
ResourceShape ShapeOf(benchmark::State& state) {
  const auto shape = state.range(0);
  state.SetLabel(kShapes[static_cast<std::size_t>(shape)]);
  return static_cast<ResourceShape>(shape);
}

// A folder that goes with the object.
class ScratchFolder {
 public:
  ScratchFolder() {
    if (mkdtemp(path_.data()) == nullptr) path_.clear();
  }
  ~ScratchFolder() {
    if (!path_.empty()) std::filesystem::remove_all(path_);
  }
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;

  const std::string& Path() const { return path_; }

 private:
  std::string path_ = "/tmp/apmqdf-bench-XXXXXX";
};

std::unique_ptr<APMQDF> PreviousDocument() {
  return LoadDocument(QDF_EXAMPLES "/OutputDrivers/plot36.qdf");
}

bool Derive(APtrArray& resources, APMQDF& previous, APMQDF& document) {
  DocumentMembers former(previous);
  return document.LoadHPResourceInfo(resources, former.InkList, former.MediaList) != 0;
}

// Finds the resources in the folder, derives a document and writes it.
double ImportSeconds(const std::string& folder, APMQDF& previous, const ScratchFile& target) {
  return Seconds([&] {
    Resources resources;
    APMQDF document;
    PMGetHPRecursive(folder.c_str(), resources);
    AFilePath path(target.Path());
    if (Derive(resources, previous, document)) document.PMWriteQDF(path);
  });
}

void ImportGrows(benchmark::State& state) {
  const ResourceShape shape = ShapeOf(state);
  const ScratchFolder scratch;
  const ScratchFile target;
  const std::string few = scratch.Path() + "/few";
  const std::string many = scratch.Path() + "/many";
  WriteResources(shape, kFew, few);
  WriteResources(shape, kMany, many);
  const auto previous = PreviousDocument();
  std::vector<double> timesOfFew;
  std::vector<double> timesOfMany;
  for (auto _ : state) {
    for (int i = 0; i < 3; ++i) timesOfFew.push_back(ImportSeconds(few, *previous, target));
    timesOfMany.push_back(ImportSeconds(many, *previous, target));
  }
  if (LoadDocument(target.Path()) == nullptr) state.SkipWithError("no document was written");
  Compare(state, Median(timesOfMany), Median(timesOfFew), 13);
}

// The seconds that it takes to derive a document from each array and to destroy them all.
double DerivationSeconds(std::vector<APtrArray>& arrays, APMQDF& previous) {
  return Seconds([&] {
    std::vector<std::unique_ptr<APMQDF>> documents;
    for (APtrArray& resources : arrays) {
      documents.push_back(std::make_unique<APMQDF>());
      Derive(resources, previous, *documents.back());
    }
  });
}

// From records in memory: one document of them all against ten, each of a tenth. Both go through
// equally much memory, so that the ratio doesn't tell the size of a processor's caches.
void DerivationGrows(benchmark::State& state) {
  Resources resources;
  MakeResources(ShapeOf(state), kMany, resources);
  std::vector<APtrArray> parts(kMany / kFew);
  for (int i = 0; i < kMany; ++i) parts[static_cast<std::size_t>(i / kFew)].Add(resources[i]);
  std::vector<APtrArray> whole = {resources};
  const auto previous = PreviousDocument();
  std::vector<double> timesOfParts;
  std::vector<double> timesOfWhole;
  for (auto _ : state) {
    timesOfParts.push_back(DerivationSeconds(parts, *previous));
    timesOfWhole.push_back(DerivationSeconds(whole, *previous));
  }
  Compare(state, Median(timesOfWhole), Median(timesOfParts), 1.3);
}

void EachShape(benchmark::internal::Benchmark* benchmark) {
  benchmark->DenseRange(0, kShapes.size() - 1)->Unit(benchmark::kMillisecond);
}

BENCHMARK(ImportGrows)->Apply(EachShape)->Iterations(5);
BENCHMARK(DerivationGrows)->Apply(EachShape)->Iterations(20);

}  // namespace
