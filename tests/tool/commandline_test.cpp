// What the program makes of its words and of the documents that they name, whatever the command.

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "tests/tool/run.h"

namespace {

namespace fs = std::filesystem;
using testing::StartsWith;

using CommandLine = QdfTest;

TEST_F(CommandLine, RefusesWrongUsageInOneLineWithTheNearestFirst) {
  const Refusals refusals = {
      {"", "a command is missing; try 'qdf --help'"},
      {"--json", "there is no option \"--json\"; choose from --help, --version, -C"},
      {"-C nowhere show x", "can't work in \"nowhere\": No such file or directory"},
      {"show", "DOC is required; try 'qdf show --help'"},
      {"show d.qdf more", "nothing is known to do with \"more\"; try 'qdf show --help'"},
      {"show d.qdf --lst=inks",
       "there is no option \"--lst=inks\"; choose from --list, --json, --help"},
      {"show d.qdf --list", "--list: 1 required NAME missing; try 'qdf show --help'"},
      {"show d.qdf --list medium",
       "there is no list \"medium\"; choose from media, media-sizes, media-sources, print-modes, "
       "color-modes, margins, inks, resolutions"},
      {"tree d.qdf --depth -1", "--depth takes a number from 0 on, not \"-1\""},
      {"tree d.qdf --depth 2x", "--depth takes a number from 0 on, not \"2x\""},
      {"narrow d.qdf --ink 1 --ink 2",
       "--ink: At Most 1 required but received 2; try 'qdf narrow --help'"},
      {"narrow d.qdf --media Plain", "--media needs --ink as well, or --defaults"},
      {"narrow d.qdf --size A4", "--size needs --source as well, or --defaults"},
      {"localise d.qdf -o x --untranslated", "--output and --untranslated don't go together"},
      {"sweep . --yes --dry-run", "--yes and --dry-run don't go together"},
      {"show ''", "the name of the document is empty"},
      {"write d.qdf ''", "the name of the file to write is empty"},
      {"resources ''", "the name of the folder is empty"},
      {"sweep ''", "the name of the folder is empty"},
  };
  fs::copy(QDF_EXAMPLES "/OutputDrivers/plot36.qdf", folder_.Path("d.qdf"));
  ExpectRefusals("", refusals, 2);
  EXPECT_THAT(RunWords({"sow\x1b[1m\n", "d.qdf"}).err,
              StartsWith("qdf: there is no command \"sow\\x1B[1m\\x0A\"; choose from show, "));
}

TEST_F(CommandLine, HelpOfEachCommandHasExamplesThatWork) {
  const std::vector<CommandUsage> commands = Commands();
  EXPECT_GT(commands.size(), 3U);
  for (const CommandUsage& command : commands) {
    EXPECT_FALSE(command.arguments.empty()) << command.help;
    const TempFolder folder;
    fs::copy(QDF_EXAMPLES, folder.Path(), fs::copy_options::recursive);
    fs::copy(folder.Path("OutputDrivers"), folder.Path("old"));
    fs::rename(folder.Path("options/before.bin"), folder.Path("colours.opt"));
    fs::rename(folder.Path("options/after.bin"), folder.Path("changed.opt"));
    const Words examples = LinesBehind("Example:", "  qdf ", command.help);
    EXPECT_FALSE(examples.empty()) << command.help;
    for (const std::string& example : examples) {
      const Outcome outcome = RunTool(SplitWords(example), {folder.Path()});
      EXPECT_EQ(outcome.code, 0) << example << '\n' << outcome;
      EXPECT_NE(outcome.out, "") << example;
    }
  }
}

TEST_F(CommandLine, FindsDocumentsByPathAndByName) {
  const std::string dyesub = ReadFile(QDF_EXAMPLES "/OutputDrivers/dyesub6.qdf");
  for (const char* name : {"OutputDrivers/both.qdf", "tree", "--json", "sub/OutputDrivers/d.qdf"}) {
    folder_.Write(name, dyesub);
  }
  folder_.Write("both.qdf", "no document");
  const std::pair<const char*, const char*> found[] = {
      {"show both.qdf", "OutputDrivers/both.qdf"},
      {"show tree", "tree"},
      {"show -- --json", "--json"},
      {"show ./tree", "./tree"},
      {"-C sub show d.qdf", "OutputDrivers/d.qdf"},
      {"-C '' show tree", "tree"},
      {"-C sub -C .. show tree", "tree"},
  };
  for (const auto& [line, path] : found) {
    EXPECT_THAT(Run(line).out, StartsWith(Join({"Document:           ", path, "\n"}, "")));
  }
  EXPECT_EQ(Run("show ./both.qdf").code, 1);
}

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
      Words words = command.arguments;
      words.front() = command.name + ' ' + name;
      EXPECT_EQ(Run(Join(words, " ")), Refused(line)) << command.name;
    }
  }
  EXPECT_EQ(Run("show ./secret", {.asNobody = true}),
            Refused("./secret: no permission to read it"));
}

}  // namespace
