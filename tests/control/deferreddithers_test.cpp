// Dithers that are read late, and lists of them that repeat the one before.

#include <gtest/gtest.h>

#include <array>

#include "qdf/core/documentmembers.h"
#include "tests/documents.h"
#include "tests/files.h"
#include "tests/writer/written.h"

namespace {

// The names on offer and the RIP resolution of "d" for these ids.
std::string Dithers(APMQDF& document, const std::array<int, 5>& ids) {
  const auto [ink, media, printMode, resolution, colorMode] = ids;
  std::vector<AString> names;
  AString preselected;
  double x = 0.0;
  double y = 0.0;
  document.GetDitherList(ink, media, printMode, resolution, colorMode, names, preselected);
  document.GetRipResolutionForDither(ink, media, printMode, resolution, colorMode, "d", x, y);
  return Dump(names) + ' ' + std::to_string(static_cast<int>(x)) + 'x' +
         std::to_string(static_cast<int>(y));
}

constexpr const char* kDithers =
    "<DitherList><Dither Name='d' RipResolution='600x300'/><Dither Name='e'/></DitherList>";

TEST(DeferredDithers, RepeatOnlyWhatIsTheSame) {
  std::string control = Control("[1[1[1[1[1;2;3;4;5;6;7;8]]]]]", kDithers);
  const struct {
    int id;
    const char* from;
    const char* to;
    const char* dithers;
  } rows[] = {{1, "", "", "d|e 600x300"},
              {2, "", "", "d|e 600x300"},
              {3, "600x300", "72", "d|e 72x72"},
              {4, "", "", "d|e 600x300"},
              {5, "<DitherList>", "<DitherList SupportAll='1'>", " 600x300"},
              {6, "", "", "d|e 600x300"},
              {7, "'e'", "'f'", "d|f 600x300"},
              {8, "<Dither Name='e'/>", "", "d 600x300"}};
  for (const auto& row : rows) {
    const std::size_t mode = control.find("<ColorMode ID=\"" + std::to_string(row.id));
    control.replace(control.find(row.from, mode), std::string(row.from).size(), row.to);
  }
  const DocumentText text{.ColorModeList = ColorModes("1;2;3;4;5;6;7;8"), .Control = control};
  const auto inOrder = Load(text);
  const auto backwards = Load(text);
  for (int i = 0; i < 8; ++i) {
    EXPECT_EQ(Dithers(*inOrder, {1, 1, 1, 1, rows[i].id}), rows[i].dithers) << i;
    EXPECT_EQ(Dithers(*backwards, {1, 1, 1, 1, rows[7 - i].id}), rows[7 - i].dithers) << 7 - i;
  }
}

TEST(DeferredDithers, OfInksThatAWriteLeavesOutAreAnsweredAfterIt) {
  std::string control = Control("[1[1[1[1[1]]]];2[1[1[1[1]]]]]", kDithers);
  control.replace(control.rfind("600x300"), 7, "72");
  const auto document = Load({.InkList = Entries("1;2"), .Control = control});
  EXPECT_EQ(Part(Written(*document), "DitherList"),
            "DitherList(SupportAll=0){Dither(Name=D) Dither(Name=E)}");
  EXPECT_EQ(Dithers(*document, {2, 1, 1, 1, 1}), "d|e 72x72");
  EXPECT_EQ(Dithers(*document, {1, 1, 1, 1, 1}), "d|e 600x300");
}

// So many inks that a search takes an index, which the second file adds to.
TEST(DeferredDithers, OfBothFilesAreAnsweredAfterASecondLoad) {
  const std::string path = "[1[1[1[1]]]]";
  std::string inks = "1";
  for (int id = 2; id <= 70; ++id) inks += ';' + std::to_string(id);
  const DocumentText first{
      .InkList = Entries(inks),
      .Control = Control('[' + Replaced(inks, ";", path + ';') + path + ']', kDithers)};
  const DocumentText second{
      .InkList = Entries("71"),
      .Control = Control("[71[1[1[1[1]]]]]", "<DitherList><Dither Name='g'/></DitherList>")};
  const TempFolder folder;
  AFilePath firstPath(folder.Write("first", first.Text()).c_str());
  AFilePath secondPath(folder.Write("second", second.Text()).c_str());
  APMQDF document;
  EXPECT_EQ(document.LoadQDFFile(firstPath), 1);
  EXPECT_EQ(Dithers(document, {1, 1, 1, 1, 1}), "d|e 600x300");
  EXPECT_EQ(Dithers(document, {71, 1, 1, 1, 1}), " 0x0");
  EXPECT_EQ(document.LoadQDFFile(secondPath), 1);
  EXPECT_EQ(Dithers(document, {70, 1, 1, 1, 1}), "d|e 600x300");
  EXPECT_EQ(Dithers(document, {71, 1, 1, 1, 1}), "g 0x0");
  EXPECT_EQ(Dump(DocumentMembers(document).DitherNameList), "d|e|g");
}

}  // namespace
