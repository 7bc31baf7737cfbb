#include "tests/hpimport/resources.h"

#include <gtest/gtest.h>

#include "tests/tool/run.h"

namespace {

using QdfResources = QdfTest;

TEST_F(QdfResources, ListsEachFileWithEachField) {
  WriteResource(folder_, "tree/sub",
                {.media = "Matte",
                 .quality = "draft",
                 .displayNames = {"Matt", "Mat"},
                 .customizable = 1,
                 .x = 300,
                 .y = 600.5,
                 .black = 3,
                 .algorithm = 2});
  WriteResource(folder_, "tree", {});
  folder_.Write("tree/Glossy/best/other.xml", "<r/>");
  folder_.Write("tree/Bad/best/Bad_best.xml", "<r>");
  EXPECT_EQ(From("Resources without", Run("resources tree")), R"(Resources without effect (1)
  File or folder                  Why
  tree/Bad/best/Bad_best.xml:1:1  this element is not closed
)");
  EXPECT_EQ(Json("resources tree")["resources"][1], nlohmann::json::parse(R"({
      "media": "Matte", "displayNames": ["Matt", "Mat"], "isCustomizableMedia": 1,
      "quality": "draft", "printQuality": "Best", "displayResolution": "600", "inputHRes": 300,
      "inputVRes": 600.5, "inputFormat": "KCMY", "blackDepth": 3, "colorDepth": 2, "algorithm": 2,
      "profile": "p.icc", "file": "Matte_draft.xml"})"));
}

TEST_F(QdfResources, NeedsAFolder) {
  folder_.Write("file", "");
  for (const char* command : {"resources", "sweep"}) {
    ExpectRefusals(command, {{"none", "none: no such folder"}, {"file", "file: it is no folder"}});
  }
  EXPECT_EQ(Run("resources .").out, "Folder:  .\n\nResources: none\n");
}

}  // namespace
