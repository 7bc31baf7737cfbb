// What a host sees that is linked with the library and includes its public headers. That it sees
// all of it is for the host in docs/hosts.md to show, and for the description in tests/abi.

#include <gtest/gtest.h>

#include "qdf/core/apmqdf.h"
#include "tests/documents.h"
#include "tests/files.h"

namespace {

constexpr const char* kExamples = QDF_EXAMPLES;

TEST(Host, GetsNothingForWhatIsNoDocument) {
  const TempFolder folder;
  folder.Write("OutputDrivers/text.qdf", "no XML");
  folder.Write("OutputDrivers/folder.qdf/file", "");
  const WorkingFolder in(folder.Path());
  for (const char* name : {static_cast<const char*>(nullptr), "", "missing.qdf", "text.qdf",
                           "folder.qdf", "text.qdf/x"}) {
    APMQDF other;
    APMQDF* document = &other;
    PMGetQDFInterfaceFromName(name, &document);
    EXPECT_EQ(document, nullptr) << (name == nullptr ? "null" : name);
  }
}

// A whole job, as a host asks for it; what is expected was read in the document by eye.
TEST(Host, NarrowsAJobAndKeepsTheAnswers) {
  auto document = LoadFile(std::string(kExamples) + "/OutputDrivers/plot36.qdf");
  ASSERT_NE(document, nullptr);
  APMQDF& plot36 = *document;
  int at[5] = {};
  const auto inks = Asked<InkTypeInfo>(plot36, &APMQDF::GetInkTypeList, at[0]);
  const auto media = Asked<MediaTypeInfo>(plot36, &APMQDF::GetMediaTypeList, at[1], 1);
  const auto modes = Asked<PrintModeInfo>(plot36, &APMQDF::GetPrintModeList, at[2], 1, 1);
  const auto resolutions =
      Asked<ResolutionInfo>(plot36, &APMQDF::GetResolutionList, at[3], 1, 1, 2);
  const auto colorModes =
      Asked<ColorModeInfo>(plot36, &APMQDF::GetColorModeList, at[4], 1, 1, 2, 1);
  EXPECT_EQ(Join({IDs(inks), IDs(media), IDs(modes), IDs(resolutions), IDs(colorModes)}, " "),
            "1 2,4,1,3,5 1,2 1 1,2");
  EXPECT_EQ(std::vector<int>(at, at + 5), (std::vector<int>{0, 2, 1, 0, 0}));

  std::vector<AString> profiles;
  std::vector<AString> dithers;
  AString profile;
  AString dither;
  AString text;
  double x = 0;
  double y = 0;
  EXPECT_EQ(plot36.GetProfileList(1, 1, 2, 1, 2, profiles, profile), 1);
  EXPECT_EQ(plot36.GetDitherList(1, 1, 2, 1, 2, dithers, dither), 1);
  EXPECT_EQ(plot36.GetRipResolutionForDither(1, 1, 2, 1, 2, "Floyd", x, y), 1);
  EXPECT_EQ(plot36.GetOEMInfo(1, 1, 2, 1, 2, text), 1);

  document.reset();
  EXPECT_EQ(Str(media.at(2).DisplayName), "Plain");
  EXPECT_EQ(Str(colorModes.at(0).Colorants[3].Colorant.InternalName), "Black");
  EXPECT_EQ(Dump(profiles), "plot36 Plain Standard Gray Scale.icc");
  EXPECT_EQ(profile, profiles.at(0));
  EXPECT_EQ(dithers.size(), 11U);
  EXPECT_EQ(dither, "EvenTone");
  EXPECT_EQ(x + y, 600.0);
  EXPECT_EQ(text, "MediaType=Plain;Quality=Standard;InkType=Gray Scale");
}

}  // namespace
