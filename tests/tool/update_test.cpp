#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>

#include "tests/children.h"
#include "tests/hpimport/resources.h"
#include "tests/tool/document.h"
#include "tests/tool/run.h"

namespace {

namespace fs = std::filesystem;

constexpr const char* kPath = "OutputDrivers/small.qdf";

class QdfUpdate : public testing::Test {
 protected:
  QdfUpdate() { folder_.Write(kPath, kSmallDocument); }

  void Add(const std::string& media, const std::string& quality) const {
    WriteResource(folder_, "res",
                  {.media = media,
                   .quality = quality,
                   .displayNames = {media == "pl" ? "Plain" : media},
                   .printQuality = quality,
                   .profile = media + quality + ".icc"});
  }
  void AddAll() const {
    for (const char* media : {"pl", "Matte", "Silk", "Film"}) {
      for (const char* quality : {"best", "normal", "draft"}) Add(media, quality);
    }
  }

  Outcome Run(const std::string& words) const {
    return RunTool(SplitWords("update " + words), {folder_.Path()});
  }
  std::string File(const std::string& name) const { return ReadFile(folder_.Path(name)); }
  bool Has(const std::string& name) const { return fs::exists(folder_.Path(name)); }

  TempFolder folder_;
};

TEST_F(QdfUpdate, TellsWhatChangesByName) {
  AddAll();
  ASSERT_EQ(Run("small.qdf res").code, 0);
  fs::remove_all(folder_.Path("res/Silk/draft"));
  fs::remove_all(folder_.Path("res/Film"));
  Add("Matte", "premium");
  Add("Gloss", "best");
  WriteResource(folder_, "res",
                {.media = "pl",
                 .quality = "best",
                 .displayNames = {"Plain"},
                 .printQuality = "best",
                 .profile = "new.icc"});
  EXPECT_EQ(Run("small.qdf res --no-backup"),
            (Outcome{0, R"(Document:           OutputDrivers/small.qdf
Previous document:  OutputDrivers/small.qdf
Resources:          res
State:              written

Lists (8)
  List           Kept  Renumbered  Changed  New  Gone
  Inks              3           0        0    0     0
  Media             3           0        0    1     1
  Print modes       0           3        0    1     0
  Resolutions       1           0        0    0     0
  Colour modes      2           0        0    0     0
  Media sources     2           0        0    0     0
  Media sizes       2           0        0    0     0
  Margins           2           0        0    0     0

Media (5)
  Change  ID  Formerly  Display name  Internal name  What changed
  new     14            Gloss         Gloss
  kept    12            Matte         Matte
  kept    10            Plain         pl
  kept    13            Silk          Silk
  gone    11            Film          Film

Print modes (4)
  Change      ID  Formerly  Display name  Internal name  What changed
  new          1            premium       premium
  renumbered   2  1         best          best
  renumbered   3  2         normal        normal
  renumbered   4  3         draft         draft

Combinations
  Before:  24
  After:   20
  Kept:    16
  Lost:    8
  Won:     4

Groups of combinations lost (2)
  Media  Print mode  How many
  Silk   draft              2
  Film   every              6

Groups of combinations won (2)
  Media  Print mode  How many
  Gloss  every              2
  Matte  premium            2

Settings of combinations (4)
  Setting             Before      After    For          How many
  Default media       Film        Gloss    all of them         1
  Default print mode  best        premium  Matte               1
  Profiles            plbest.icc  new.icc  Plain; best         2
  Default profile     plbest.icc  new.icc  Plain; best         2
)"}));
}

TEST_F(QdfUpdate, FoldsWhatHoldsForAllButAFew) {
  AddAll();
  ASSERT_EQ(Run("small.qdf res").code, 0);
  for (const char* media : {"pl", "Matte", "Silk"}) {
    fs::remove_all(folder_.Path(std::string("res/") + media + "/draft"));
    fs::remove_all(folder_.Path(std::string("res/") + media + "/normal"));
  }
  const nlohmann::json report =
      RunJson({"update", "small.qdf", "res", "--dry-run"}, {folder_.Path()});
  EXPECT_EQ(report["combinationsLost"],
            nlohmann::json::parse(R"([{"ink": {"every": true}, "media": {"except": ["Film"]},
                "printMode": {"except": ["best"]}, "resolution": {"every": true},
                "colorMode": {"every": true}, "count": 12}])"));
  EXPECT_EQ(report["combinations"], nlohmann::json::parse(R"({"before": 24, "after": 12,
                "kept": 12, "lost": 12, "won": 0})"));
  EXPECT_EQ(report["media"][0], nlohmann::json::parse(R"({"change": "kept", "id": 11,
                "formerId": 11, "displayName": "Film", "internalName": "Film", "fields": []})"));
}

TEST_F(QdfUpdate, TellsTheSameWithoutWriting) {
  AddAll();
  const Outcome dry = Run("small.qdf res --dry-run");
  EXPECT_EQ(File(kPath), kSmallDocument);
  EXPECT_FALSE(Has("OutputDrivers/small.qdf.bak"));
  const Outcome real = Run("small.qdf res");
  EXPECT_EQ(File("OutputDrivers/small.qdf.bak"), kSmallDocument);
  const std::string changes = "\nLists (8)\n";
  EXPECT_EQ(dry.out.substr(dry.out.find(changes)), real.out.substr(real.out.find(changes)));
  EXPECT_NE(dry.out.find("State:              would be written\n"), std::string::npos) << dry;
  EXPECT_NE(real.out.find("State:              written\n"
                          "Former file:        OutputDrivers/small.qdf.bak\n"),
            std::string::npos)
      << real;
  const std::string written = File(kPath);
  const nlohmann::json again = RunJson({"update", "small.qdf", "res"}, {folder_.Path()});
  EXPECT_EQ(again["state"], "up to date");
  EXPECT_EQ(again["combinationsLost"], nlohmann::json::array());
  EXPECT_EQ(again["settings"], nlohmann::json::array());
  EXPECT_EQ(File(kPath), written);
  EXPECT_EQ(File("OutputDrivers/small.qdf.bak"), kSmallDocument);
}

TEST_F(QdfUpdate, BacksUpWithTheDocumentsRightsAndThroughNoLink) {
  AddAll();
  folder_.Write("foreign", "kept");
  ASSERT_EQ(chmod(folder_.Path(kPath).c_str(), 0600), 0);
  const std::string backup = folder_.Path("OutputDrivers/small.qdf.bak");
  fs::create_symlink("../foreign", backup);
  EXPECT_EQ(Run("small.qdf res"),
            (Outcome{1, "",
                     "qdf: OutputDrivers/small.qdf.bak: it is no regular file; see "
                     "--no-backup\n"}));
  EXPECT_EQ(File(kPath), kSmallDocument);
  EXPECT_EQ(File("foreign"), "kept");
  fs::remove(backup);
  EXPECT_EQ(Run("small.qdf res").code, 0);
  EXPECT_EQ(fs::status(backup).permissions(), fs::perms{0600});
}

TEST_F(QdfUpdate, WritesElsewhereWhatFollowsThePreviousDocument) {
  AddAll();
  folder_.Write("new/small.qdf", "no document");
  EXPECT_EQ(Run("new/small.qdf res").code, 0);
  EXPECT_EQ(File("new/small.qdf.bak"), "no document");
  EXPECT_EQ(File(kPath), kSmallDocument);
  EXPECT_EQ(Run("small.qdf res").code, 0);
  EXPECT_EQ(File(kPath), File("new/small.qdf"));
  folder_.Write("new/other.qdf", kSmallDocument);
  EXPECT_EQ(Run("new/other.qdf res"),
            (Outcome{1, "",
                     "qdf: new/other.qdf: no previous document: OutputDrivers/other.qdf: no such "
                     "file; it is looked up in OutputDrivers of the working folder, see -C\n"}));
}

TEST_F(QdfUpdate, TellsResourcesWithoutEffect) {
  AddAll();
  folder_.Write("res/Broken/best/Broken_best.xml", "<r>");
  folder_.Write("res/Closed/best/Closed_best.xml", "<r/>");
  WriteResource(folder_, "res", {.media = "Anon", .displayNames = {}, .printQuality = "best"});
  WriteResource(folder_, "res", {.media = "Odd", .quality = "great", .printQuality = "great"});
  WriteResource(folder_, "res", {.media = "Red", .printQuality = "best", .format = "RGB"});
  // These two have what they lack from others.
  WriteResource(folder_, "res",
                {.media = "Silk", .quality = "fast", .displayNames = {}, .printQuality = "best"});
  WriteResource(folder_, "res", {.media = "Film", .quality = "great", .printQuality = "best"});
  ASSERT_EQ(chmod(folder_.Path().c_str(), 0755), 0);
  ASSERT_EQ(chmod(folder_.Path("res/Closed").c_str(), 0700), 0);
  const Outcome outcome = RunTool({"update", "small.qdf", "res", "--dry-run"},
                                  {.folder = folder_.Path(), .asNobody = true});
  EXPECT_NE(outcome.out.find(R"(
Resources without effect (5)
  File or folder                       Why
  res/Broken/best/Broken_best.xml:1:1  this element is not closed
  res/Closed                           it can't be searched
  Anon/best/Anon_best.xml              it has no display name
  Odd/great/Odd_great.xml              its quality folder's name begins with no known quality
  Red/best/Red_best.xml                its ink layout, "RGB", isn't known
)"),
            std::string::npos)
      << outcome;

  folder_.Write("broken/M/best/M_best.xml", "<r>");
  EXPECT_EQ(Run("small.qdf broken"),
            (Outcome{1, "",
                     R"(qdf: broken: nothing can be derived: all that may be resources is unreadable
Resources without effect (1)
  File or folder                Why
  broken/M/best/M_best.xml:1:1  this element is not closed
)"}));
}

// A customisable media may have kept the id that the next plain one would get.
TEST_F(QdfUpdate, TellsMediaThatFallOutWithTheHolderOfTheirId) {
  Add("pl", "best");
  WriteResource(folder_, "res", {.media = "gl", .displayNames = {"Glossy"}, .customizable = 1});
  Add("New", "best");
  const nlohmann::json report =
      RunJson({"update", "small.qdf", "res", "--dry-run"}, {folder_.Path()});
  EXPECT_EQ(report["fallenOut"], nlohmann::json::parse(R"json([{"id": 11, "displayName": "New",
                "internalName": "New", "reason": "the id is held by Glossy (gl)"}])json"));
}

TEST_F(QdfUpdate, SaysWhyNothingCanBeDerived) {
  folder_.Write("OutputDrivers/bad.qdf", "<Q>");
  fs::create_directory(folder_.Path("empty"));
  WriteResource(folder_, "nameless", {.displayNames = {}});
  WriteResource(folder_, "unknown", {.quality = "great"});
  WriteResource(folder_, "inkless", {.format = "RGB"});
  const struct {
    const char* words;
    const char* line;
  } refusals[] = {
      {"none.qdf empty", "no previous document: OutputDrivers/none.qdf: no such file"},
      {"bad.qdf empty",
       "no previous document: OutputDrivers/bad.qdf:1:1: this element is not closed"},
      {"small.qdf none", "none: no such folder"},
      {"small.qdf empty",
       "empty: nothing can be derived: no resource file, as MEDIA/QUALITY/MEDIA_QUALITY.xml, "
       "stands in the folder"},
      {"small.qdf nameless",
       "nameless: nothing can be derived: no resource has a display name, or no id is left, so "
       "there would be no media"},
      {"small.qdf unknown",
       "unknown: nothing can be derived: no quality folder's name begins with premium, superbest, "
       "best, normal, fast or draft, so there would be no print mode"},
      {"small.qdf inkless",
       "inkless: nothing can be derived: no resource has a known ink layout, so there would be no "
       "colour mode"},
  };
  for (const auto& refusal : refusals) {
    EXPECT_EQ(Run(refusal.words), (Outcome{1, "", std::string("qdf: ") + refusal.line + '\n'}));
  }
  EXPECT_EQ(Run("small.qdf"),
            (Outcome{2, "", "qdf: RESOURCES is required; try 'qdf update --help'\n"}));
  EXPECT_EQ(File(kPath), kSmallDocument);
}

TEST_F(QdfUpdate, LeavesEveryFileAsItWasWhenItCannotBeWritten) {
  AddAll();
  const std::string start = std::string("qdf: ") + kPath;
  const auto runWithin = [&](unsigned long bytes, const std::string& line) {
    return InChild([&] {
      LimitFileSizes(bytes);
      return Run("small.qdf res") == Outcome{1, "", line} ? 0 : 1;
    });
  };
  EXPECT_EQ(runWithin(1024, start + ": it can't be saved: there is no room for it\n"), 0);
  EXPECT_EQ(File(kPath), kSmallDocument);
  EXPECT_FALSE(Has("OutputDrivers/small.qdf.bak"));

  folder_.Write("OutputDrivers/small.qdf.bak", "older");
  ASSERT_EQ(chmod(folder_.Path().c_str(), 0755), 0);
  ASSERT_EQ(chmod(folder_.Path("OutputDrivers/small.qdf.bak").c_str(), 0666), 0);
  EXPECT_EQ(RunTool({"update", "small.qdf", "res"}, {.folder = folder_.Path(), .asNobody = true}),
            (Outcome{1, "", start + ": it can't be saved: no permission to write it\n"}));
  EXPECT_EQ(File(kPath), kSmallDocument);
  EXPECT_EQ(File("OutputDrivers/small.qdf.bak"), "older");
}

}  // namespace
