// qdf write tells what a document loses, and no command leaves a file half-written.

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "tests/hpimport/resources.h"
#include "tests/tool/document.h"

namespace {

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
  const std::string entries = "key_DisplayName_ForMedia=pl/Everyday\n";
  const std::pair<const char*, std::string> files[] = {
      {"old.qdf", "former content"},
      {"OutputDrivers/small.qdf", kSmallDocument},
      {"OutputDrivers/small.qdf.bak", "older"},
      {"OutputDrivers/small.txt", "Glossy=Brillant\n"},
      {"OutputDrivers/small_custom.txt",
       entries + "key_Iccprofile=" + std::string(900, 'p') + '\n' + entries},
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
}

}  // namespace
