#include <gtest/gtest.h>
#include <sys/stat.h>

#include "tests/children.h"
#include "tests/tool/document.h"

namespace {

using QdfWrite = SmallDocumentTest;

TEST_F(QdfWrite, TellsEachKindOfLossOnce) {
  EXPECT_EQ(Run("write small.qdf new.qdf"), (Outcome{0, R"(Document:  small.qdf
Written:   new.qdf

No longer held (10)
  What                     In               First of them  Before        After
  Combinations: gone       1 combination    Matte Black    -             -
  Combinations: gone       1 dead end       Matte Black    -             -
  Dithers                  24 combinations  all of them    Fine, Coarse  FINE, COARSE
  Default dither           24 combinations  all of them    Smooth        -
  RIP resolutions          24 combinations  all of them    Fine 300x600  none
  Default margins          2 combinations   Roll           wide          narrow
  Colour modes: Shape      1 colorant       Colour, Cyan   Round         Diamond
  Colour modes: Frequency  1 colorant       Colour, Cyan   60            55
  Colour modes: Angle      1 colorant       Colour, Cyan   0.1           45
  Colour modes: Print      1 colorant       Colour, Gold   0             1
)"}));
  EXPECT_EQ(Run("write ./new.qdf again.qdf").out,
            "Document:  ./new.qdf\nWritten:   again.qdf\n\nNo longer held: none\n");
}

TEST_F(QdfWrite, TellsProgramsWholeLists) {
  EXPECT_EQ(Json("write small.qdf new.qdf")["losses"][2], nlohmann::json::parse(R"({
      "what": "Dithers", "count": 24, "unit": "combinations", "first": "all of them",
      "before": ["Fine", "Coarse"], "after": ["FINE", "COARSE"]})"));
}

TEST_F(QdfWrite, MayReplaceTheDocumentItself) {
  EXPECT_EQ(Run("write ./small.qdf small.qdf").code, 0);
  const std::string written = File("small.qdf");
  EXPECT_NE(written, kSmallDocument);
  EXPECT_EQ(Run("write ./small.qdf small.qdf").code, 0);
  EXPECT_EQ(Run("write ./small.qdf third.qdf").code, 0);
  EXPECT_EQ(File("small.qdf"), File("third.qdf"));
}

TEST_F(QdfWrite, SaysWhyNothingWasWritten) {
  ASSERT_EQ(mkfifo(folder_.Path("pipe").c_str(), 0600), 0);
  ASSERT_EQ(symlink("nowhere", folder_.Path("link").c_str()), 0);
  const std::pair<const char*, const char*> refusals[] = {
      {"no/new.qdf", "its folder isn't there"},    {"./", "it is a folder"},
      {"pipe", "it is no regular file"},           {"link", "the link leads nowhere"},
      {"small.qdf/new", "its folder isn't there"}, {"/dev/null", "it is no regular file"},
  };
  for (const auto& [out, reason] : refusals) {
    EXPECT_EQ(Run(std::string("write small.qdf ") + out),
              Refused(out + std::string(": it can't be saved: ") + reason));
  }
  EXPECT_FALSE(Has("nowhere"));
}

TEST_F(QdfWrite, TakesAnEmptyNameForWrongUsage) {
  EXPECT_EQ(RunWords({"write", "small.qdf", ""}),
            Refused("the name of the file to write is empty", 2));
  for (const char* command : {"resources", "sweep"}) {
    EXPECT_EQ(RunWords({command, ""}), Refused("the name of the folder is empty", 2));
  }
}

TEST_F(QdfWrite, LeavesTheFormerFileWholeWithoutRoomOrRights) {
  folder_.Write("old.qdf", "former content");
  EXPECT_EQ(InChild([&] {
              LimitFileSizes(1024);
              const Outcome full = Refused("old.qdf: it can't be saved: there is no room for it");
              return Run("write small.qdf old.qdf") == full ? 0 : 1;
            }),
            0);
  ASSERT_EQ(chmod(folder_.Path().c_str(), 0755), 0);
  EXPECT_EQ(Run("write small.qdf old.qdf", {.asNobody = true}),
            Refused("old.qdf: it can't be saved: no permission to write it"));
  EXPECT_EQ(File("old.qdf"), "former content");
}

}  // namespace
