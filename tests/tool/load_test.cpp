// Why a document can't be loaded, in one line.

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "tests/tool/commands.h"
#include "tests/tool/run.h"

namespace {

using Load = QdfTest;

TEST_F(Load, SaysWhatADocumentLacks) {
  const Refusals refusals = {
      {"", ":1:1: there is no root element"},
      {"<Q>\n  <a>\n</Q>", ":3:1: this end tag does not match its start tag"},
      {"<Q><X><Definition/></X></Q>", ": the root element has no Definition"},
      {"<Q><Definition/></Q>",
       ": Definition has no InkList; Definition has no MediaList; Definition has no PrintModeList; "
       "Definition has no ResolutionList; Definition has no ColorModeList"},
      {DocumentText{.MediaList = " - "}.Text(), ": MediaList is empty"},
      {DocumentText{.InkList = "", .ColorModeList = ""}.Text(),
       ": InkList is empty; ColorModeList is empty"},
      {DocumentText{.ColorModeList = "<C/><C><ColorantList/></C>"}.Text(),
       ": no colour mode of ColorModeList has a colorant"},
  };
  for (const auto& [text, reason] : refusals) {
    folder_.Write("OutputDrivers/d.qdf", text);
    EXPECT_EQ(Run("show d.qdf"), Refused("OutputDrivers/d.qdf" + reason));
  }
}

TEST_F(Load, SaysWhyAFileCannotBeRead) {
  ASSERT_EQ(mkfifo(folder_.Path("pipe").c_str(), 0600), 0);
  ASSERT_EQ(symlink("loop", folder_.Path("loop").c_str()), 0);
  ASSERT_EQ(chmod(folder_.Write("secret", "<Q/>").c_str(), 0), 0);
  const Refusals refusals = {
      {"nothing.qdf", "OutputDrivers/nothing.qdf: no such file"},
      {"./nothing.qdf", "./nothing.qdf: no such file"},
      {"secret/file", "secret/file: no such file"},
      {"./", "./: it is a folder"},
      {"pipe", "pipe: it is no regular file"},
      {"./loop", "./loop: the links lead nowhere"},
  };
  // The same for every command, since all load in one way.
  for (const CommandUsage& command : Commands()) {
    // An update writes DOC, and loads another document.
    if (command.arguments.front() != "DOC" || command.name == "update") continue;
    for (const auto& [name, line] : refusals) {
      Words words = {command.name, name};
      words.insert(words.end(), command.arguments.begin() + 1, command.arguments.end());
      EXPECT_EQ(RunWords(words), Refused(line)) << command.name;
    }
  }
  EXPECT_EQ(Run("show ./secret", {.asNobody = true}),
            Refused("./secret: no permission to read it"));
}

}  // namespace
