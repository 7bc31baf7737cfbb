#include <gtest/gtest.h>
#include <sys/stat.h>

#include "tests/children.h"
#include "tests/files.h"
#include "tests/tool/document.h"
#include "tests/tool/run.h"

namespace {

class QdfWrite : public testing::Test {
 protected:
  QdfWrite() { folder_.Write("small.qdf", kSmallDocument); }

  Outcome Run(const Words& words) const { return RunTool(words, {folder_.Path()}); }

  TempFolder folder_;
};

TEST_F(QdfWrite, TellsEachKindOfLossOnce) {
  EXPECT_EQ(Run({"write", "small.qdf", "new.qdf"}), (Outcome{0, R"(Document:  small.qdf
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
  EXPECT_EQ(Run({"write", "./new.qdf", "again.qdf"}).out,
            "Document:  ./new.qdf\nWritten:   again.qdf\n\nNo longer held: none\n");
}

TEST_F(QdfWrite, TellsProgramsWholeLists) {
  const nlohmann::json report = RunJson({"write", "small.qdf", "new.qdf"}, {folder_.Path()});
  EXPECT_EQ(report["document"], "small.qdf");
  EXPECT_EQ(report["written"], "new.qdf");
  EXPECT_EQ(report["losses"][2],
            nlohmann::json::parse(R"({"what": "Dithers", "count": 24, "unit": "combinations",
                "first": "all of them", "before": ["Fine", "Coarse"], "after": ["FINE", "COARSE"]})"));
}

TEST_F(QdfWrite, MayReplaceTheDocumentItself) {
  EXPECT_EQ(Run({"write", "./small.qdf", "small.qdf"}).code, 0);
  const std::string written = ReadFile(folder_.Path("small.qdf"));
  EXPECT_NE(written, kSmallDocument);
  EXPECT_EQ(Run({"write", "./small.qdf", "small.qdf"}).code, 0);
  EXPECT_EQ(Run({"write", "./small.qdf", "third.qdf"}).code, 0);
  EXPECT_EQ(ReadFile(folder_.Path("small.qdf")), ReadFile(folder_.Path("third.qdf")));
}

TEST_F(QdfWrite, SaysWhyNothingWasWritten) {
  ASSERT_EQ(mkfifo(folder_.Path("pipe").c_str(), 0600), 0);
  ASSERT_EQ(symlink("nowhere", folder_.Path("link").c_str()), 0);
  const struct {
    const char* out;
    const char* reason;
  } refusals[] = {
      {"no/new.qdf", "its folder isn't there"},    {"./", "it is a folder"},
      {"pipe", "it is no regular file"},           {"link", "the link leads nowhere"},
      {"small.qdf/new", "its folder isn't there"},
  };
  for (const auto& refusal : refusals) {
    const std::string line =
        "qdf: " + std::string(refusal.out) + ": it can't be saved: " + refusal.reason + '\n';
    EXPECT_EQ(Run({"write", "small.qdf", refusal.out}), (Outcome{1, "", line}));
  }
}

TEST_F(QdfWrite, TakesAnEmptyNameForWrongUsage) {
  EXPECT_EQ(Run({"write", "small.qdf", ""}),
            (Outcome{2, "", "qdf: the name of the file to write is empty\n"}));
  for (const char* command : {"resources", "sweep"}) {
    EXPECT_EQ(Run({command, ""}), (Outcome{2, "", "qdf: the name of the folder is empty\n"}));
  }
}

TEST_F(QdfWrite, LeavesTheFormerFileWholeWithoutRoomOrRights) {
  const std::string old = folder_.Write("old.qdf", "former content");
  const std::string folder = folder_.Path();
  const auto refused = [&](const Setting& setting, const char* reason) {
    const Outcome expected{1, "", std::string("qdf: old.qdf: it can't be saved: ") + reason + '\n'};
    const Outcome outcome = RunTool({"write", "small.qdf", "old.qdf"}, setting);
    return outcome == expected ? 0 : 1;
  };
  EXPECT_EQ(InChild([&] {
              LimitFileSizes(1024);
              return refused({folder}, "there is no room for it");
            }),
            0);
  ASSERT_EQ(chmod(folder.c_str(), 0755), 0);
  EXPECT_EQ(refused({.folder = folder, .asNobody = true}, "no permission to write it"), 0);
  EXPECT_EQ(ReadFile(old), "former content");
}

}  // namespace
