// How times grow with the document: the counter "ratio" of a load is its time for each byte, that
// of a narrowing step its time, on a document that is so many times as large, over the same on the
// document itself.

#include <benchmark/benchmark.h>

#include <fstream>
#include <memory>
#include <vector>

#include "bench/enlarge.h"
#include "bench/measure.h"
#include "qdf/core/apmqdf.h"

namespace {

// The document and a larger one like it.
class TwoSizes {
 public:
  explicit TwoSizes(int times) : size_(Write(plain_, 1)), largeSize_(Write(large_, times)) {}

  std::unique_ptr<APMQDF> Load() const { return LoadDocument(plain_.Path()); }
  std::unique_ptr<APMQDF> LoadLarge() const { return LoadDocument(large_.Path()); }
  double Growth() const { return static_cast<double>(largeSize_) / static_cast<double>(size_); }

 private:
  static std::size_t Write(const ScratchFile& file, int times) {
    const std::string text = EnlargedDocument(BenchDocument(), times);
    std::ofstream(file.Path(), std::ios::binary) << text;
    return text.size();
  }

  ScratchFile plain_;
  ScratchFile large_;
  std::size_t size_;
  std::size_t largeSize_;
};

void LoadGrows(benchmark::State& state) {
  const TwoSizes documents(static_cast<int>(state.range(0)));
  std::vector<double> times;
  std::vector<double> largeTimes;
  bool loaded = true;
  for (auto _ : state) {
    times.push_back(Seconds([&] { loaded = documents.Load() != nullptr && loaded; }));
    largeTimes.push_back(Seconds([&] { loaded = documents.LoadLarge() != nullptr && loaded; }));
  }
  if (!loaded) state.SkipWithError("a document can't be loaded");
  Compare(state, Median(largeTimes), Median(times) * documents.Growth(), 1.3);
}

// Many steps at a time: one alone is too short for the clock.
double StepSeconds(APMQDF& document, int ink, int medium) {
  constexpr int kSteps = 1000;
  std::vector<PrintModeInfo> printModes;
  return Seconds([&] {
    for (int i = 0; i < kSteps; ++i) {
      int position = 0;
      printModes.clear();
      benchmark::DoNotOptimize(document.GetPrintModeList(ink, medium, printModes, position));
    }
  });
}

void NarrowingStepGrows(benchmark::State& state) {
  const TwoSizes documents(static_cast<int>(state.range(0)));
  const std::unique_ptr<APMQDF> document = documents.Load();
  const std::unique_ptr<APMQDF> large = documents.LoadLarge();
  if (document == nullptr || large == nullptr) {
    state.SkipWithError("a document can't be loaded");
    return;
  }
  // The last medium of an ink is the one that a walk reaches last.
  std::vector<InkTypeInfo> inks;
  std::vector<MediaTypeInfo> media;
  std::vector<MediaTypeInfo> largeMedia;
  int position = 0;
  document->GetInkTypeList(inks, position);
  const int ink = inks.back().ID;
  document->GetMediaTypeList(ink, media, position);
  large->GetMediaTypeList(ink, largeMedia, position);
  const auto later = [](const MediaTypeInfo& a, const MediaTypeInfo& b) { return a.ID < b.ID; };
  const int last = std::max_element(media.begin(), media.end(), later)->ID;
  const int largeLast = std::max_element(largeMedia.begin(), largeMedia.end(), later)->ID;
  std::vector<double> steps;
  std::vector<double> largeSteps;
  for (auto _ : state) {
    steps.push_back(StepSeconds(*document, ink, last));
    largeSteps.push_back(StepSeconds(*large, ink, largeLast));
  }
  Compare(state, Median(largeSteps), Median(steps), 3);
}

BENCHMARK(LoadGrows)->Arg(10)->Arg(100)->Unit(benchmark::kMillisecond)->Iterations(9);
BENCHMARK(NarrowingStepGrows)->Arg(100)->Unit(benchmark::kMillisecond)->Iterations(50);

}  // namespace
