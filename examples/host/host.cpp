// A host of apmqdf: loads a printer's document, narrows a print job to its end by what is
// preselected at each step, and asks whether a change of a colour option means rasterising again.
//
//   ./host ../OutputDrivers/plot36.qdf

#include <cstring>
#include <iostream>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "qdf/core/apmqdf.h"

// A name that fills its field has no terminating zero.
template <std::size_t size>
std::string Text(const char (&field)[size]) {
  return std::string(field, strnlen(field, size));
}

// Takes the record at the default position, as a user does who changes nothing.
template <class Record>
const Record& Choose(const char* what, const std::vector<Record>& records, int position) {
  if (records.empty()) throw std::runtime_error(std::string("no ") + what + " to choose");
  const Record& chosen = records[position];
  std::cout << what << ": " << Text(chosen.DisplayName) << '\n';
  return chosen;
}

// Each question takes the ids chosen so far and answers with what may follow them.
ColorModeInfo NarrowJob(APMQDF& printer) {
  int position = 0;

  std::vector<InkTypeInfo> inks;
  printer.GetInkTypeList(inks, position);
  const int ink = Choose("ink", inks, position).ID;

  std::vector<MediaTypeInfo> media;
  printer.GetMediaTypeList(ink, media, position);
  const int medium = Choose("medium", media, position).ID;

  std::vector<PrintModeInfo> printModes;
  printer.GetPrintModeList(ink, medium, printModes, position);
  const int printMode = Choose("print mode", printModes, position).ID;

  std::vector<ResolutionInfo> resolutions;
  printer.GetResolutionList(ink, medium, printMode, resolutions, position);
  const int resolution = Choose("resolution", resolutions, position).ID;

  std::vector<ColorModeInfo> colorModes;
  printer.GetColorModeList(ink, medium, printMode, resolution, colorModes, position);
  const ColorModeInfo& colorMode = Choose("colour mode", colorModes, position);

  std::vector<AString> profiles, dithers;
  AString profile, dither;
  printer.GetProfileList(ink, medium, printMode, resolution, colorMode.ID, profiles, profile);
  printer.GetDitherList(ink, medium, printMode, resolution, colorMode.ID, dithers, dither);
  std::cout << "profile: " << profile << "\ndither: " << dither << '\n';
  return colorMode;
}

int main(int argc, char** argv) try {
  if (argc != 2) throw std::runtime_error("usage: host DOCUMENT");
  AFilePath path(argv[1]);
  APMQDF* loaded = nullptr;
  PMGetQDFInterface(path, &loaded);
  const std::unique_ptr<APMQDF> printer(loaded);
  if (!printer) throw std::runtime_error(std::string("can't load ") + argv[1]);

  const ColorModeInfo colorMode = NarrowJob(*printer);

  const ANewColorOpt& before = colorMode.Colorants[0];
  ANewColorOpt finer;
  finer = before;
  finer.Frequency += 10;
  const bool again = finer.ColorOptionRequireReRip(before) != 0;
  std::cout << "a finer screen: " << (again ? "rasterise again" : "print what is there") << '\n';
} catch (const std::exception& fault) {
  std::cerr << "host: " << fault.what() << '\n';
  return 1;
}
