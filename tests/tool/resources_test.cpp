#include "tests/hpimport/resources.h"

#include <gtest/gtest.h>

#include "tests/tool/run.h"

namespace {

TEST(QdfResources, ListsEachFileWithEachField) {
  const TempFolder folder;
  WriteResource(folder, "tree/sub",
                {.media = "Matte",
                 .quality = "draft",
                 .displayNames = {"Matt", "Mat"},
                 .customizable = 1,
                 .x = 300,
                 .y = 600.5,
                 .black = 3,
                 .algorithm = 2});
  WriteResource(folder, "tree", {});
  folder.Write("tree/Glossy/best/other.xml", "<r/>");
  folder.Write("tree/Bad/best/Bad_best.xml", "<r>");
  EXPECT_EQ(RunTool({"resources", "tree"}, {folder.Path()}), (Outcome{0, R"(Folder:  tree

Resources (2)
  Media   Display names  Customizable  Quality  Print quality  Resolution    X      Y  Inks  Black  Colour  Algorithm  Profile  File
  Glossy  Gloss                     0  best     Best           600         600    600  KCMY      1       2          1  p.icc    Glossy_best.xml
  Matte   Matt, Mat                 1  draft    Best           600         300  600.5  KCMY      3       2          2  p.icc    Matte_draft.xml

Resources without effect (1)
  File or folder                  Why
  tree/Bad/best/Bad_best.xml:1:1  this element is not closed
)"}));
  const nlohmann::json report = RunJson({"resources", "tree"}, {folder.Path()});
  EXPECT_EQ(report["resources"][1]["displayNames"], nlohmann::json({"Matt", "Mat"}));
  EXPECT_EQ(report["resources"][1]["inputVRes"], 600.5);
}

TEST(QdfResources, KnowsTheNamesOfFoldersThatThePathLeavesOut) {
  const TempFolder folder;
  WriteResource(folder, "tree", {});
  folder.Write("tree/Glossy/Glossy/Glossy_Glossy.xml", "<r>");
  const nlohmann::json report = RunJson({"resources", "."}, {folder.Path("tree/Glossy")});
  EXPECT_EQ(report["resources"][0]["media"], "Glossy");
  EXPECT_EQ(report["withoutEffect"][0]["place"], "./Glossy/Glossy_Glossy.xml:1:1");
  EXPECT_EQ(RunJson({"resources", "best"}, {folder.Path("tree/Glossy")})["resources"].size(), 1U);
}

TEST(QdfResources, NeedsAFolder) {
  const TempFolder folder;
  folder.Write("file", "");
  for (const char* command : {"resources", "sweep"}) {
    EXPECT_EQ(RunTool({command, "none"}, {folder.Path()}),
              (Outcome{1, "", "qdf: none: no such folder\n"}));
    EXPECT_EQ(RunTool({command, "file"}, {folder.Path()}),
              (Outcome{1, "", "qdf: file: it is no folder\n"}));
  }
  EXPECT_EQ(RunTool({"resources", "."}, {folder.Path()}).out, "Folder:  .\n\nResources: none\n");
}

}  // namespace
