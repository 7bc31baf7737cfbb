// What the folders of a resource tree hold, and away with those that are unsound.

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "tests/hpimport/resources.h"
#include "tests/tool/run.h"

namespace {

namespace fs = std::filesystem;

using QdfResources = QdfTest;

TEST_F(QdfResources, ListsEachFileWithEachField) {
  WriteResource(folder_, "tree/sub",
                {.media = "Matte",
                 .displayNames = {"Matt", "Mat"},
                 .customizable = 4,
                 .y = 600.5,
                 .black = 3});
  WriteResource(folder_, "tree", {});
  folder_.Write("tree/Glossy/best/other.xml", "<r/>");
  folder_.Write("tree/Bad/best/Bad_best.xml", "<r>");
  const nlohmann::json report = Json("resources tree");
  EXPECT_EQ(report["withoutEffect"][0]["place"], "tree/Bad/best/Bad_best.xml:1:1");
  EXPECT_EQ(report["resources"].size(), 2U);
  EXPECT_EQ(report["resources"][1], nlohmann::json::parse(R"({
      "media": "Matte", "displayNames": ["Matt", "Mat"], "isCustomizableMedia": 4,
      "quality": "best", "printQuality": "Best", "displayResolution": "600", "inputHRes": 600,
      "inputVRes": 600.5, "inputFormat": "KCMY", "blackDepth": 3, "colorDepth": 2, "algorithm": 1,
      "profile": "p.icc", "file": "Matte_best.xml"})"));
  for (const char* command : {"resources", "sweep"}) {
    ExpectRefusals(command,
                   {{"none", "none: no such folder"},
                    {"tree/Bad/best/Bad_best.xml", "tree/Bad/best/Bad_best.xml: it is no folder"}});
  }
}

class QdfSweep : public QdfTest {
 protected:
  QdfSweep() {
    folder_.Write("tree/Good/best/Good_best.xml", "<r release='2.5'/>");
    folder_.Write("tree/Old/best/Old_best.xml", "<r release='1.5'/>");
    folder_.Write("tree/output_icc/p.icc", "");
  }

  bool Has(const std::string& name) const { return QdfTest::Has("tree/" + name); }
};

TEST_F(QdfSweep, TellsEveryReason) {
  folder_.Write("tree/Bad/best/Bad_best.xml", "<r release='2.5'>\n  <x></r>");
  folder_.Write("tree/Deep/best/sub/file", "");
  fs::create_directory(folder_.Path("tree/Empty"));
  folder_.Write("tree/File/file", "");
  folder_.Write("tree/None/best/file", "");
  folder_.Write("tree/Mute/best/Mute_best.xml", "<r/>");
  EXPECT_EQ(Run("sweep tree --dry-run"), (Outcome{0, R"(Folder:   tree
Unsound:  7

Media folders (8)
  Media  Verdict  File or folder                  Why
  Bad    unsound  tree/Bad/best/Bad_best.xml:2:6  this end tag does not match its start tag
  Deep   unsound  tree/Deep/best/sub              it is a folder, but lies in a quality folder
  Empty  unsound  tree/Empty                      nothing lies in it
  File   unsound  tree/File/file                  it is no folder, but lies in a media folder
  Good   sound
  Mute   unsound  tree/Mute/best/Mute_best.xml    it has no release
  None   unsound  tree/None/best                  no resource file lies in it
  Old    unsound  tree/Old/best/Old_best.xml      its release, "1.5", isn't 2 or more and below 3
)"}));
  EXPECT_TRUE(Has("Old"));
  const nlohmann::json report = Json("sweep tree --yes");
  EXPECT_EQ(report["unsound"], 7);
  EXPECT_EQ(report["media"][3]["sound"], false);
  EXPECT_EQ(report["deleted"], 7);
  EXPECT_EQ(report["left"], nlohmann::json::array());
  EXPECT_TRUE(Has("Good/best/Good_best.xml") && Has("output_icc/p.icc"));
  EXPECT_FALSE(Has("Old") || Has("Empty"));
}

TEST_F(QdfSweep, DeletesAfterAYesOnTheTerminalAlone) {
  const std::string nobody =
      "qdf: tree: nothing was deleted: nobody is at a terminal to be asked, see --yes\n";
  EXPECT_EQ(Run("sweep tree").err, nobody);
  EXPECT_EQ(Run("sweep tree").code, 1);
  EXPECT_EQ(Run("sweep tree --json").err, nobody);
  const Setting plain{.folder = folder_.Path(), .environment = {"NO_COLOR=1"}};
  for (const std::string typed : {"n\n", "\n", "yesterday\n", "\x04"}) {
    const std::string seen = OnTerminal({"sweep", "tree"}, plain, typed);
    EXPECT_TRUE(seen.ends_with("qdf: tree: nothing was deleted\ncode 1")) << seen;
  }
  EXPECT_TRUE(OnTerminal({"sweep", "tree", "--json"}, plain, "y\n").ends_with(nobody + "code 1"));
  EXPECT_TRUE(Has("Old"));
  const std::string seen = OnTerminal({"sweep", "tree"}, plain, "Yes\n");
  EXPECT_TRUE(
      seen.ends_with(" isn't 2 or more and below 3\r\n"
                     "\r\nDelete for good what is unsound, 1 of 2 media folders? [y/N] "
                     "Deleted media folders:  1\r\ncode 0"))
      << seen;
  EXPECT_TRUE(Has("Good") && !Has("Old"));
  EXPECT_EQ(Run("sweep tree").code, 0);
}

TEST_F(QdfSweep, SparesAloneWhatCannotBeExamined) {
  const std::string name(200, 'L');
  folder_.Write("tree/" + name + "/best/file", "");
  std::string tree = "tree";
  while (tree.size() < 3900) tree += "/.";  // leaves no room for the long name
  const Outcome swept = Run("sweep " + tree + " --yes --json");
  EXPECT_EQ(swept.code, 1) << swept;
  const nlohmann::json report = nlohmann::json::parse(swept.out, nullptr, false);
  EXPECT_EQ(report["unsound"], 1);
  EXPECT_EQ(report["deleted"], 1);
  EXPECT_EQ(report["media"][1]["media"], name);
  EXPECT_EQ(report["media"][1]["sound"], nullptr);
  EXPECT_EQ(report["media"][1]["reason"], "the path is too long");
  EXPECT_TRUE(Has(name) && Has("Good") && !Has("Old"));
}

TEST_F(QdfSweep, TellsWhatCannotBeDeleted) {
  folder_.Write("tree/Loose/file", "");
  for (const char* name : {"", "tree", "tree/Loose", "tree/Old"}) {
    ASSERT_EQ(chmod(folder_.Path(name).c_str(), 0777), 0);
  }
  const Outcome swept = Run("sweep tree --yes", {.asNobody = true});
  EXPECT_EQ(swept.code, 1);
  EXPECT_EQ(From("Deleted", swept),
            "Deleted media folders:  1\n\nNot or not wholly deleted (1)\n"
            "  Folder    First that stayed           Why\n"
            "  tree/Old  tree/Old/best/Old_best.xml  Permission denied\n");
  EXPECT_TRUE(Has("Old/best/Old_best.xml") && !Has("Loose"));
}

}  // namespace
