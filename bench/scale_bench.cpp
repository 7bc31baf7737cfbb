// How times grow with the document: the counter "ratio" of a load is its time for each byte, that
// of a narrowing step its time, on a document that is so many times as large, over the same on the
// document itself. A first step is the first question after a load.

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

// The ids to ask for print modes with: the last medium of an ink is the one that a walk reaches
// last.
struct Step {
  int ink = 0;
  int medium = 0;
};

Step LastStep(APMQDF& document) {
  std::vector<InkTypeInfo> inks;
  std::vector<MediaTypeInfo> media;
  int position = 0;
  document.GetInkTypeList(inks, position);
  if (inks.empty()) return {};
  document.GetMediaTypeList(inks.back().ID, media, position);
  const auto later = [](const MediaTypeInfo& a, const MediaTypeInfo& b) { return a.ID < b.ID; };
  const auto last = std::max_element(media.begin(), media.end(), later);
  return {inks.back().ID, last != media.end() ? last->ID : 0};
}

double StepSeconds(APMQDF& document, const Step& step, int times) {
  std::vector<PrintModeInfo> printModes;
  return Seconds([&] {
    for (int i = 0; i < times; ++i) {
      int position = 0;
      printModes.clear();
      benchmark::DoNotOptimize(
          document.GetPrintModeList(step.ink, step.medium, printModes, position));
    }
  });
}

void NarrowingStepGrows(benchmark::State& state) {
  constexpr int kSteps = 1000;  // one alone is short for the clock
  const TwoSizes documents(static_cast<int>(state.range(0)));
  const std::unique_ptr<APMQDF> document = documents.Load();
  const std::unique_ptr<APMQDF> large = documents.LoadLarge();
  if (document == nullptr || large == nullptr) {
    state.SkipWithError("a document can't be loaded");
    return;
  }
  std::vector<double> steps;
  std::vector<double> largeSteps;
  for (auto _ : state) {
    steps.push_back(StepSeconds(*document, LastStep(*document), kSteps));
    largeSteps.push_back(StepSeconds(*large, LastStep(*large), kSteps));
  }
  Compare(state, Median(largeSteps), Median(steps), 3);
}

void FirstStepGrows(benchmark::State& state) {
  const TwoSizes documents(static_cast<int>(state.range(0)));
  Step step;
  Step largeStep;
  if (const auto document = documents.Load()) step = LastStep(*document);
  if (const auto large = documents.LoadLarge()) largeStep = LastStep(*large);
  std::vector<double> steps;
  std::vector<double> largeSteps;
  for (auto _ : state) {
    const std::unique_ptr<APMQDF> document = documents.Load();
    if (document != nullptr) steps.push_back(StepSeconds(*document, step, 1));
    const std::unique_ptr<APMQDF> large = documents.LoadLarge();
    if (large != nullptr) largeSteps.push_back(StepSeconds(*large, largeStep, 1));
  }
  if (steps.empty() || largeSteps.empty()) {
    state.SkipWithError("a document can't be loaded");
    return;
  }
  Compare(state, Median(largeSteps), Median(steps), 3);
}

BENCHMARK(LoadGrows)->Arg(10)->Arg(100)->Unit(benchmark::kMillisecond)->Iterations(9);
BENCHMARK(NarrowingStepGrows)->Arg(100)->Unit(benchmark::kMillisecond)->Iterations(50);
BENCHMARK(FirstStepGrows)->Arg(100)->Unit(benchmark::kMillisecond)->Iterations(9);

}  // namespace
