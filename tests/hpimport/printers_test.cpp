// The documents of real printers, updated with the resources of the same printers.

#include <gtest/gtest.h>

#include <set>

#include "qdf/hpimport/update.h"
#include "tests/hpimport/resources.h"

namespace {

// The profile, the dither and the printer's text at the end of a path.
std::string LeavesOf(APMQDF& document, int ink, int media, int mode, int resolution, int color) {
  std::vector<AString> profiles;
  std::vector<AString> dithers;
  AString chosen;
  AString text;
  document.GetProfileList(ink, media, mode, resolution, color, profiles, chosen);
  document.GetDitherList(ink, media, mode, resolution, color, dithers, chosen);
  document.GetOEMInfo(ink, media, mode, resolution, color, text);
  return Join({Dump(profiles), Dump(dithers), static_cast<const char*>(text)}, "/");
}

// What leads to each end of a path below the first ink, step by step, and what stands there.
std::multiset<std::string> Reached(APMQDF& document) {
  using D = APMQDF;
  std::multiset<std::string> reached;
  int at = 0;
  const int ink = Asked<InkTypeInfo>(document, &D::GetInkTypeList, at).at(0).ID;
  for (const auto& media : Asked<MediaTypeInfo>(document, &D::GetMediaTypeList, at, ink)) {
    const int m = media.ID;
    for (const auto& mode : Asked<PrintModeInfo>(document, &D::GetPrintModeList, at, ink, m)) {
      const int p = mode.ID;
      for (const auto& resolution :
           Asked<ResolutionInfo>(document, &D::GetResolutionList, at, ink, m, p)) {
        const int r = resolution.ID;
        for (const auto& color :
             Asked<ColorModeInfo>(document, &D::GetColorModeList, at, ink, m, p, r)) {
          reached.insert(
              Join({Str(media.InternalName), Str(mode.DisplayName), Str(resolution.DisplayName),
                    std::to_string(resolution.XResolution), std::to_string(resolution.YResolution),
                    LeavesOf(document, ink, m, p, r, color.ID)},
                   "/"));
        }
      }
    }
  }
  return reached;
}

class Printers : public testing::TestWithParam<const char*> {};

TEST_P(Printers, LeadToEachOfTheirResources) {
  const std::string document = Join({"OutputDrivers/", GetParam(), ".qdf"}, "");
  const TempFolder folder;
  const WorkingFolder in(folder.Path());
  folder.Write(document, ReadFile(Join({QDF_EXAMPLES, document}, "/")));
  const AFilePath tree(Join({QDF_EXAMPLES, "resources", GetParam()}, "/").c_str());
  PMUpdateQDF(AFilePath(document.c_str()), tree);
  const auto updated = LoadFile(document);
  ASSERT_NE(updated, nullptr);
  Resources resources;
  PMGetHPRecursive(tree.GetFullPath(), resources);
  ASSERT_GT(resources.GetSize(), 0);
  std::multiset<std::string> expected;
  for (const auto& resource : Records<HPResourceInfo>(resources)) {
    const std::string path =
        Join({std::string(resource.MediaName), std::string(resource.PrintQuality),
              std::string(resource.DisplayResolution), std::to_string(resource.InputHRes),
              std::to_string(resource.InputVRes), std::string(resource.OutputICC),
              std::to_string(resource.Algorithm + 100), std::string(resource.FileName)},
             "/");
    expected.insert({path, path});  // in colour and in grey
  }
  EXPECT_EQ(Reached(*updated), expected);
  const std::string bytes = ReadFile(document);
  PMUpdateQDF(AFilePath(document.c_str()), tree);
  EXPECT_EQ(ReadFile(document), bytes);
}

INSTANTIATE_TEST_SUITE_P(Examples, Printers, testing::Values("plot36", "dyesub6"));

}  // namespace
