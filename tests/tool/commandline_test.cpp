// What the program makes of its words, whatever the command.

#include <gtest/gtest.h>

#include "tests/tool/commands.h"
#include "tests/tool/run.h"

namespace {

namespace fs = std::filesystem;

using CommandLine = QdfTest;

TEST_F(CommandLine, RefusesWrongUsageInOneLine) {
  const Refusals refusals = {
      {"", "a command is missing; try 'qdf --help'"},
      {"--json", "there is no option \"--json\"; choose from --help, --version, -C"},
      {"-C", "-C: 1 required DIR missing; try 'qdf --help'"},
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
  };
  ExpectRefusals("", refusals, 2);
  const std::pair<Words, const char*> empty[] = {
      {{"show", ""}, "the name of the document is empty"},
      {{"write", "d.qdf", ""}, "the name of the file to write is empty"},
      {{"resources", ""}, "the name of the folder is empty"},
      {{"sweep", ""}, "the name of the folder is empty"},
  };
  fs::copy(QDF_EXAMPLES "/OutputDrivers/plot36.qdf", folder_.Path("d.qdf"));
  for (const auto& [words, line] : empty) EXPECT_EQ(RunWords(words), Refused(line, 2));
}

TEST_F(CommandLine, SuggestsCommandsTheNearestFirst) {
  const Outcome outcome = RunWords({"sow\x1b[1m\n", "plot36.qdf"});
  EXPECT_EQ(outcome.code, 2);
  EXPECT_TRUE(
      outcome.err.starts_with("qdf: there is no command \"sow\\x1B[1m\\x0A\"; choose from show, "))
      << outcome;
  for (const CommandUsage& command : Commands()) {
    EXPECT_NE(outcome.err.find(' ' + command.name), std::string::npos) << command.name;
  }
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
  const std::pair<Words, std::string> found[] = {
      {{"show", "both.qdf"}, "OutputDrivers/both.qdf"},
      {{"show", "tree"}, "tree"},
      {{"show", "--", "--json"}, "--json"},
      {{"show", "./tree"}, "./tree"},
      {{"-C", "sub", "show", "d.qdf"}, "OutputDrivers/d.qdf"},
      {{"-C", "", "show", "tree"}, "tree"},
      {{"-C", "sub", "-C", "..", "show", "tree"}, "tree"},
  };
  for (const auto& [words, path] : found) {
    const Outcome outcome = RunWords(words);
    EXPECT_TRUE(outcome.out.starts_with("Document:           " + path + '\n')) << outcome;
  }
  EXPECT_EQ(Run("show ./both.qdf").code, 1);
}

}  // namespace
