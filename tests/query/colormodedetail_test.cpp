// What belongs to one combination: profiles, dithers, RIP resolutions, the text for the device.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "qdf/core/documentmembers.h"
#include "qdf/query/iccprofile.h"
#include "tests/documents.h"

namespace {

// A document with one path of five ids 1, and on it a colour mode of these attributes and children.
std::unique_ptr<APMQDF> OnePath(const std::string& attributes, const std::string& children) {
  return Load({.Control = Control("[1[1[1[1[1]]]]]", children, attributes)});
}

// "profiles>default dithers>default" behind what the vectors held.
std::string Names(APMQDF& document, std::vector<AString> profiles = {},
                  std::vector<AString> dithers = {}) {
  AString profile("former");
  AString dither("former");
  const int hasProfiles = document.GetProfileList(1, 1, 1, 1, 1, profiles, profile);
  const int hasDithers = document.GetDitherList(1, 1, 1, 1, 1, dithers, dither);
  EXPECT_EQ(hasProfiles, profiles.empty() ? 0 : 1);
  EXPECT_EQ(hasDithers, dithers.empty() ? 0 : 1);
  return Dump(profiles) + ">" + std::string(profile) + " " + Dump(dithers) + ">" +
         std::string(dither);
}

std::string Rip(APMQDF& document, const char* dither, int colorMode = 1) {
  double x = 9;
  double y = 9;
  const int found = document.GetRipResolutionForDither(1, 1, 1, 1, colorMode, dither, x, y);
  return std::to_string(found) + " " + std::to_string(x) + " " + std::to_string(y);
}

constexpr const char* kNoRip = "0 0.000000 0.000000";
constexpr const char* kDithers = "<DitherList><Dither Name='x'/><Dither Name='y'/></DitherList>";

TEST(ColorModeDetail, ListsNamesAndDefaults) {
  const struct {
    const char* attributes;
    const char* profiles;
    const char* dithers;
    const char* names;
  } rows[] = {{"DefaultICCProfile='b' DefaultDither='y'", "a|B|c", kDithers, "a|b|c>b x|y>y"},
              {"DefaultICCProfile='z' DefaultDither='z'", "a", kDithers, "a> x|y>z"},
              {"", "a", kDithers, "a> x|y>"},
              {"DefaultICCProfile='z' DefaultDither='z'", "a|aLL|b",
               "<DitherList><Dither Name='all'/><Dither Name='x'/></DitherList>", "ALL>z ALL>z"},
              {"DefaultICCProfile='ALL'", "a", "", "a> >"},
              {"DefaultICCProfile='z' DefaultDither='z'", "",
               "<DitherList SupportAll='1'><Dither Name='x'/>"
               "</DitherList>",
               ">z >z"},
              {"DefaultDither='z'", "", "", "> >"}};
  for (const auto& row : rows) {
    std::string profiles = Replaced(row.profiles, "|", "</ICCProfile><ICCProfile>");
    if (!profiles.empty()) profiles = "<ICCProfile>" + profiles + "</ICCProfile>";
    const auto document = OnePath(row.attributes, profiles + row.dithers);
    EXPECT_EQ(Names(*document), row.names) << row.attributes << row.profiles;
  }
}

TEST(ColorModeDetail, AppendsNamesButForAll) {
  const auto document = OnePath("DefaultICCProfile='z'", "<ICCProfile>a</ICCProfile>");
  const auto all = OnePath("DefaultICCProfile='z'", "<ICCProfile>All</ICCProfile>");
  EXPECT_EQ(Names(*document, {"Z"}, {"d"}), "Z|a>z d>") << "the default is among them";
  EXPECT_EQ(Names(*document, {"ALL"}), "ALL|a>z >");
  EXPECT_EQ(Names(*all, {"b", "c"}), "ALL>z >");
  std::vector<AString> names = {"kept"};
  AString name("former");
  EXPECT_EQ(all->GetProfileList(1, 1, 1, 1, 2, names, name), 0);
  EXPECT_EQ(all->GetDitherList(1, 1, 1, 2, 1, names, name), 0);
  EXPECT_EQ(Dump(names) + ">" + std::string(name), "kept>");
}

TEST(ColorModeDetail, KnowsRipResolutionsByWholeNames) {
  const std::string d64(64, 'd');
  const auto document =
      OnePath("",
              "<DitherList SupportAll='1'><Dither Name='Fast' RipResolution='720x360'/>"
              "<Dither Name='Fast' RipResolution='600'/><Dither Name='none'/><Dither Name='" +
                  d64 + "' RipResolution='300'/></DitherList>");
  EXPECT_EQ(Rip(*document, "Fast"), "1 720.000000 360.000000");
  EXPECT_EQ(Rip(*document, d64.c_str()), "1 300.000000 300.000000");
  for (const std::string& unknown :
       {std::string("fast"), std::string("none"), std::string("Fas"), std::string(), d64 + "d"}) {
    EXPECT_EQ(Rip(*document, unknown.c_str()), kNoRip) << unknown;
  }
  EXPECT_EQ(Rip(*document, "Fast", 2), kNoRip);
  int resolution = 0;
  EXPECT_EQ(document->GetResolutionIDFromDisplayID(7, 7, 7, -42, resolution), 1);
  EXPECT_EQ(resolution, -42);
}

TEST(ColorModeDetail, LeavesTheTextWhereThereIsNone) {
  const auto with = OnePath("", "<PrinterSpecificSetting> a\n b </PrinterSpecificSetting>");
  const auto without = OnePath("", "");
  AString text;
  EXPECT_EQ(without->GetOEMInfo(1, 1, 1, 1, 1, text), 0);
  EXPECT_EQ(with->GetOEMInfo(1, 1, 1, 1, 1, text), 1);
  EXPECT_EQ(without->GetOEMInfo(1, 1, 1, 1, 1, text), 1) << "the text that it came with";
  EXPECT_EQ(with->GetOEMInfo(1, 1, 1, 1, 2, text), 0) << "no path";
  EXPECT_EQ(text, "a\n b");
}

// As a derived tree has them, and with indices that lead nowhere.
TEST(ColorModeDetail, DoesWithFewerLeavesAndWrongIndices) {
  const auto document = OnePath("DefaultICCProfile='a' DefaultDither='x'",
                                "<ICCProfile>a</ICCProfile><DitherList><Dither Name='x' "
                                "RipResolution='1'/></DitherList>");
  CQDFNode* node = &DocumentMembers(*document).ControlTreeRoot;
  for (int level = 0; level < 5; ++level) node = ChildAt(*node, 0);
  for (const std::uint32_t wrong : {1U, 0x7FFFFFFFU, 0x80000000U, 0xFFFFFFFFU}) {
    for (int leaf = 0; leaf < 3; ++leaf) ChildAt(*node, leaf)->IDs.Add(wrong);
  }
  EXPECT_EQ(Names(*document), "a>a x>x");
  EXPECT_EQ(Rip(*document, "y"), kNoRip);
  AString text;
  for (const int wrong : {1, -2, 0x7FFFFFFF}) {
    node->Default = ChildAt(*node, 0)->Default = ChildAt(*node, 1)->Default = wrong;
    EXPECT_EQ(Names(*document), "a> x>");
    EXPECT_EQ(document->GetOEMInfo(1, 1, 1, 1, 1, text), 0);
  }
  const char* const names[] = {"a> x>", "a> >", "> >"};
  for (int leaves = 2; leaves >= 0; --leaves) {
    delete ChildAt(*node, leaves);
    node->Children.SetSize(leaves, -1);
    EXPECT_EQ(Names(*document), names[2 - leaves]);
    EXPECT_EQ(Rip(*document, "x"), kNoRip);
  }
}

TEST(ColorModeDetail, AProfileIsInAListByNameOrAll) {
  std::vector<AString> none;
  std::vector<AString> names = {"a", "p", "q "};
  std::vector<AString> all = {"a", "aLL"};
  EXPECT_EQ(PMIccProfileIsInList("p", none), 1);
  EXPECT_EQ(PMIccProfileIsInList("P", names), 1);
  EXPECT_EQ(PMIccProfileIsInList("p", all), 1);
  for (const char* other : {"q", "ALL", ""}) EXPECT_EQ(PMIccProfileIsInList(other, names), 0);
}

}  // namespace
