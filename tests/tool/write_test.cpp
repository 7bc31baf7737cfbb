// What qdf write and qdf update write, tell of it and leave alone.

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "tests/hpimport/resources.h"
#include "tests/tool/document.h"

namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

using QdfWrite = SmallDocumentTest;

TEST_F(QdfWrite, TellsEachKindOfLossOnce) {
  const std::string told = Run("write small.qdf new.qdf").out;
  EXPECT_THAT(told, HasSubstr(R"(
No longer held (10)
  What                     In               First of them  Before        After
  Combinations: gone       1 combination    Matte Black    -             -
  Combinations: gone       1 dead end       Matte Black    -             -
  Dithers                  24 combinations  all of them    Fine, Coarse  FINE, COARSE
)"));
  EXPECT_THAT(told, HasSubstr("\n  Default margins          2 combinations   Roll "));
  EXPECT_THAT(told, HasSubstr("\n  Colour modes: Print      1 colorant       Colour, Gold   0 "));
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
  const std::string why = ": it can't be saved: ";
  ExpectRefusals("write small.qdf",
                 {{"no/new.qdf", "no/new.qdf" + why + "its folder isn't there"},
                  {"./", "./" + why + "it is a folder"},
                  {"pipe", "pipe" + why + "it is no regular file"},
                  {"link", "link" + why + "the link leads nowhere"},
                  {"small.qdf/new", "small.qdf/new" + why + "its folder isn't there"},
                  {"/dev/null", "/dev/null" + why + "it is no regular file"}});
  EXPECT_FALSE(Has("nowhere"));
}

TEST_F(QdfWrite, LeavesTheFormerFileWholeWithoutRoomOrRights) {
  const std::pair<const char*, std::string> files[] = {
      {"old.qdf", "former content"},
      {"OutputDrivers/small.qdf", kSmallDocument},
      {"OutputDrivers/small.qdf.bak", "older"},
      {"OutputDrivers/small.txt", "Glossy=Brillant\n"},
      {"OutputDrivers/small_custom.txt", "key_Iccprofile=" + std::string(900, 'p') + '\n'},
  };
  for (const auto& [name, content] : files) folder_.Write(name, content);
  WriteResource(folder_, "res", {});
  ASSERT_EQ(chmod(folder_.Path().c_str(), 0755), 0);
  // Nothing but the backup of an update may be written, and is then taken back.
  ASSERT_EQ(chmod(folder_.Path(files[2].first).c_str(), 0666), 0);
  for (const auto& [command, file] :
       {std::pair("write small.qdf old.qdf", files[0].first),
        std::pair("localise small.qdf -o old.qdf", files[0].first),
        std::pair("update small.qdf res", files[1].first),
        std::pair("media small.qdf --set-name gl=x", files[4].first)}) {
    const std::string line = file + std::string(": it can't be saved: ");
    EXPECT_EQ(Run(command, {.mostBytes = 900}), Refused(line + "there is no room for it"));
    EXPECT_EQ(Run(command, {.asNobody = true}), Refused(line + "no permission to write it"));
  }
  for (const auto& [name, content] : files) EXPECT_EQ(File(name), content) << name;
  // A backup that wasn't there before goes again.
  fs::remove(folder_.Path(files[2].first));
  ASSERT_EQ(chmod(folder_.Path("OutputDrivers").c_str(), 0777), 0);
  EXPECT_EQ(Run("update small.qdf res", {.asNobody = true}).code, 1);
  EXPECT_FALSE(Has(files[2].first));
}

constexpr const char* kPath = "OutputDrivers/small.qdf";

class QdfUpdate : public QdfTest {
 protected:
  QdfUpdate() {
    folder_.Write(kPath, kSmallDocument);
    for (const char* media : {"Matte", "Silk", "Film"}) Add(media, "best");
    WriteResource(folder_, "res",
                  {.media = "pl", .displayNames = {"Plain"}, .printQuality = "best"});
  }

  void Add(const std::string& name, const std::string& quality) const {
    WriteResource(
        folder_, "res",
        {.media = name, .quality = quality, .displayNames = {name}, .printQuality = quality});
  }
};

TEST_F(QdfUpdate, TellsWhatChangesByName) {
  const Outcome dry = Run("update small.qdf res --dry-run");
  EXPECT_EQ(File(kPath), kSmallDocument);
  EXPECT_FALSE(Has("OutputDrivers/small.qdf.bak"));
  const Outcome real = Run("update small.qdf res");
  EXPECT_EQ(File("OutputDrivers/small.qdf.bak"), kSmallDocument);
  EXPECT_EQ(From("Lists (8)", dry), From("Lists (8)", real));
  EXPECT_THAT(dry.out, HasSubstr("State:              would be written\n"));
  EXPECT_THAT(real.out, HasSubstr("State:              written\n"
                                  "Former file:        OutputDrivers/small.qdf.bak\n"));
  const std::string written = File(kPath);
  EXPECT_EQ(Json("update small.qdf res")["state"], "up to date");
  EXPECT_EQ(File(kPath), written);
  fs::remove_all(folder_.Path("res/Film"));
  Add("Matte", "premium");
  Add("Gloss", "best");
  EXPECT_THAT(Run("update small.qdf res --no-backup").out, HasSubstr(R"(Media (5)
  Change  ID  Formerly  Display name  Internal name  What changed
  new     14            Gloss         Gloss
  kept    12            Matte         Matte
  kept    10            Plain         pl
  kept    13            Silk          Silk
  gone    11            Film          Film

Print modes (2)
  Change      ID  Formerly  Display name  Internal name  What changed
  new          1            premium       premium
  renumbered   2  1         best          best
)"));
  EXPECT_EQ(File("OutputDrivers/small.qdf.bak"), kSmallDocument);
}

TEST_F(QdfUpdate, BacksUpWithTheDocumentsRightsAndThroughNoLink) {
  folder_.Write("foreign", "kept");
  ASSERT_EQ(chmod(folder_.Path(kPath).c_str(), 0640), 0);
  const std::string backup = folder_.Path("OutputDrivers/small.qdf.bak");
  fs::create_symlink("../foreign", backup);
  EXPECT_EQ(Run("update small.qdf res"),
            Refused("OutputDrivers/small.qdf.bak: it is no regular file; see --no-backup"));
  EXPECT_EQ(File(kPath), kSmallDocument);
  EXPECT_EQ(File("foreign"), "kept");
  fs::remove(backup);
  EXPECT_EQ(Run("update small.qdf res").code, 0);
  EXPECT_EQ(fs::status(backup).permissions(), fs::perms{0640});
}

TEST_F(QdfUpdate, WritesElsewhereWhatFollowsThePreviousDocument) {
  folder_.Write("new/small.qdf", "no document");
  EXPECT_EQ(Run("update new/small.qdf res").code, 0);
  EXPECT_EQ(File("new/small.qdf.bak"), "no document");
  EXPECT_EQ(File(kPath), kSmallDocument);
  EXPECT_EQ(Run("update small.qdf res").code, 0);
  EXPECT_EQ(File(kPath), File("new/small.qdf"));
}

TEST_F(QdfUpdate, TellsResourcesWithoutEffect) {
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
  const Outcome outcome = Run("update small.qdf res --dry-run", {.asNobody = true});
  EXPECT_THAT(outcome.out, HasSubstr(R"(
Resources without effect (5)
  File or folder                       Why
  res/Broken/best/Broken_best.xml:1:1  this element is not closed
  res/Closed                           it can't be searched
  Anon/best/Anon_best.xml              it has no display name
  Odd/great/Odd_great.xml              its quality folder's name begins with no known quality
  Red/best/Red_best.xml                its ink layout, "RGB", isn't known

Lists)"));
  folder_.Write("broken/M/best/M_best.xml", "<r>");
  EXPECT_EQ(Run("update small.qdf broken"),
            Refused(R"(broken: nothing can be derived: all that may be resources is unreadable
Resources without effect (1)
  File or folder                Why
  broken/M/best/M_best.xml:1:1  this element is not closed)"));
}

// A customisable media may have kept the id that the next plain one would get.
TEST_F(QdfUpdate, TellsMediaThatFallOutWithTheHolderOfTheirId) {
  WriteResource(folder_, "res", {.media = "gl", .displayNames = {"Glossy"}, .customizable = 1});
  EXPECT_EQ(Json("update small.qdf res --dry-run")["fallenOut"],
            nlohmann::json::parse(R"json([{"id": 11, "displayName": "Glossy",
                "internalName": "gl", "reason": "the id is held by Film (Film)"}])json"));
}

TEST_F(QdfUpdate, SaysWhyNothingCanBeDerived) {
  folder_.Write("OutputDrivers/bad.qdf", "<Q>");
  WriteResource(folder_, "nameless", {.displayNames = {}});
  WriteResource(folder_, "unknown", {.quality = "great"});
  WriteResource(folder_, "inkless", {.format = "RGB"});
  const std::string why = ": nothing can be derived: ";
  const Refusals refusals = {
      {"bad.qdf nameless",
       "no previous document: OutputDrivers/bad.qdf:1:1: this element is not closed"},
      {"new/other.qdf nameless",
       "new/other.qdf: no previous document: OutputDrivers/other.qdf: no such file; it is looked "
       "up in OutputDrivers of the working folder, see -C"},
      {"small.qdf none", "none: no such folder"},
      {"small.qdf nameless",
       "nameless" + why +
           "no resource has a display name, or no id is left, so there would be no media"},
      {"small.qdf unknown", "unknown" + why +
                                "no quality folder's name begins with premium, superbest, best, "
                                "normal, fast or draft, so "
                                "there would be no print mode"},
      {"small.qdf inkless",
       "inkless" + why + "no resource has a known ink layout, so there would be no colour mode"},
  };
  ExpectRefusals("update", refusals);
  EXPECT_EQ(File(kPath), kSmallDocument);
}

}  // namespace
