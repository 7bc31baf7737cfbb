// From a file to a whole print job, against the print server's own library on a PPD of the same
// printer: load, take the defaults level by level, look up what belongs to the combination.

#include <benchmark/benchmark.h>
#include <cups/ppd.h>

#include <fstream>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "bench/measure.h"
#include "bench/ppd.h"

namespace {

// The options chosen, by their ids.
struct Job {
  int ink = 0;
  int medium = 0;
  int printMode = 0;
  int resolution = 0;
  int colorMode = 0;
};

// The id of the default among the answers of one step.
template <class Record, class Ask>
int DefaultOf(Ask ask) {
  std::vector<Record> records;
  int position = 0;
  return ask(records, position) != 0 ? records.at(static_cast<std::size_t>(position)).ID : 0;
}

bool NarrowByDefaults(APMQDF& document, Job& job) {
  job.ink = DefaultOf<InkTypeInfo>(
      [&](auto& inks, int& at) { return document.GetInkTypeList(inks, at); });
  job.medium = DefaultOf<MediaTypeInfo>(
      [&](auto& media, int& at) { return document.GetMediaTypeList(job.ink, media, at); });
  job.printMode = DefaultOf<PrintModeInfo>([&](auto& printModes, int& at) {
    return document.GetPrintModeList(job.ink, job.medium, printModes, at);
  });
  job.resolution = DefaultOf<ResolutionInfo>([&](auto& resolutions, int& at) {
    return document.GetResolutionList(job.ink, job.medium, job.printMode, resolutions, at);
  });
  job.colorMode = DefaultOf<ColorModeInfo>([&](auto& colorModes, int& at) {
    return document.GetColorModeList(job.ink, job.medium, job.printMode, job.resolution, colorModes,
                                     at);
  });
  std::vector<AString> names;
  AString profile;
  AString dither;
  AString setting;
  double x = 0;
  double y = 0;
  const bool hasProfiles = document.GetProfileList(job.ink, job.medium, job.printMode,
                                                   job.resolution, job.colorMode, names, profile);
  names.clear();
  document.GetDitherList(job.ink, job.medium, job.printMode, job.resolution, job.colorMode, names,
                         dither);
  document.GetRipResolutionForDither(job.ink, job.medium, job.printMode, job.resolution,
                                     job.colorMode, dither, x, y);
  document.GetOEMInfo(job.ink, job.medium, job.printMode, job.resolution, job.colorMode, setting);
  return hasProfiles;
}

// The same by keywords: the choices are marked, and the attributes of the combination looked up.
bool NarrowByMarks(ppd_file_t* ppd, const std::string& combination) {
  ppdMarkDefaults(ppd);
  for (const char* keyword : {"InkType", "MediaType", "PrintMode", "Resolution", "ColorModel"}) {
    if (ppdFindMarkedChoice(ppd, keyword) == nullptr) return false;
  }
  const char* spec = combination.c_str();
  benchmark::DoNotOptimize(ppdFindAttr(ppd, "apSetting", spec));
  benchmark::DoNotOptimize(ppdFindAttr(ppd, "apDither", spec));
  return ppdFindAttr(ppd, "cupsICCProfile", spec) != nullptr;
}

std::string Combination(const Job& job) {
  std::ostringstream text;
  text << 'I' << job.ink << ".M" << job.medium << ".P" << job.printMode << ".R" << job.resolution
       << ".C" << job.colorMode;
  return text.str();
}

void NarrowAgainstPPD(benchmark::State& state, PPDContent content) {
  const std::unique_ptr<APMQDF> sample = LoadDocument(BenchDocument().c_str());
  Job job;
  if (sample == nullptr || !NarrowByDefaults(*sample, job)) {
    state.SkipWithError("the document can't be loaded and narrowed");
    return;
  }
  const std::string combination = Combination(job);
  const ScratchFile file;
  const std::string text = MakePPD(*sample, content);
  std::ofstream(file.Path(), std::ios::binary) << text;
  std::vector<double> ours;
  std::vector<double> theirs;
  bool found = true;
  for (auto _ : state) {
    ours.push_back(Seconds([&] {
      const std::unique_ptr<APMQDF> document = LoadDocument(BenchDocument().c_str());
      found = NarrowByDefaults(*document, job) && found;
    }));
    theirs.push_back(Seconds([&] {
      ppd_file_t* ppd = ppdOpenFile(file.Path());
      found = ppd != nullptr && NarrowByMarks(ppd, combination) && found;
      ppdClose(ppd);
    }));
  }
  if (!found) state.SkipWithError("a look-up found nothing");
  state.SetLabel(std::to_string(text.size()) + " bytes of PPD");
  Compare(state, Median(ours), Median(theirs), 1);
}

BENCHMARK_CAPTURE(NarrowAgainstPPD, Choices, PPDContent::Choices)
    ->Unit(benchmark::kMillisecond)
    ->MinTime(2);
BENCHMARK_CAPTURE(NarrowAgainstPPD, Combinations, PPDContent::Combinations)
    ->Unit(benchmark::kMillisecond)
    ->MinTime(2);

}  // namespace
