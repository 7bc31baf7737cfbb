// The documents of real printers, updated with the resources of the same printers.

#include <gtest/gtest.h>

#include "qdf/hpimport/update.h"
#include "tests/hpimport/resources.h"

namespace {

template <class Record, class Wanted>
std::vector<Record> Those(std::vector<Record> records, Wanted wanted) {
  std::erase_if(records, [&](const Record& record) { return !wanted(record); });
  return records;
}

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

// What stands at the ends of the paths that a resource is reached by, step by step and each step
// among the answers to the former ones.
std::vector<std::string> Reached(APMQDF& document, const HPResourceInfo& resource) {
  std::vector<std::string> leaves;
  int at = 0;
  const int ink = Asked<InkTypeInfo>(document, &APMQDF::GetInkTypeList, at).at(0).ID;
  const auto ofName = [&](const auto& media) {
    return resource.MediaName == Str(media.InternalName).c_str();
  };
  const auto ofQuality = [&](const auto& mode) {
    return resource.PrintQuality == Str(mode.DisplayName).c_str();
  };
  const auto ofResolution = [&](const auto& resolution) {
    return resource.DisplayResolution == Str(resolution.DisplayName).c_str() &&
           resolution.XResolution == resource.InputHRes &&
           resolution.YResolution == resource.InputVRes;
  };
  for (const auto& media :
       Those(Asked<MediaTypeInfo>(document, &APMQDF::GetMediaTypeList, at, ink), ofName)) {
    for (const auto& mode :
         Those(Asked<PrintModeInfo>(document, &APMQDF::GetPrintModeList, at, ink, media.ID),
               ofQuality)) {
      for (const auto& resolution :
           Those(Asked<ResolutionInfo>(document, &APMQDF::GetResolutionList, at, ink, media.ID,
                                       mode.ID),
                 ofResolution)) {
        for (const auto& color : Asked<ColorModeInfo>(document, &APMQDF::GetColorModeList, at, ink,
                                                      media.ID, mode.ID, resolution.ID)) {
          leaves.push_back(LeavesOf(document, ink, media.ID, mode.ID, resolution.ID, color.ID));
        }
      }
    }
  }
  return leaves;
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
  for (int i = 0; i < resources.GetSize(); ++i) {
    const auto& resource = *static_cast<HPResourceInfo*>(resources.GetAt(i));
    const std::string leaves = Join(
        {static_cast<const char*>(resource.OutputICC), std::to_string(resource.Algorithm + 100),
         static_cast<const char*>(resource.FileName)},
        "/");
    // In colour and in grey.
    EXPECT_EQ(Reached(*updated, resource), (std::vector<std::string>{leaves, leaves}));
  }
  const std::string bytes = ReadFile(document);
  PMUpdateQDF(AFilePath(document.c_str()), tree);
  EXPECT_EQ(ReadFile(document), bytes);
}

INSTANTIATE_TEST_SUITE_P(Examples, Printers, testing::Values("plot36", "dyesub6"));

}  // namespace
