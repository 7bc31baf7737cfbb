// What the program makes of its words, whatever the command.

#include <gtest/gtest.h>

#include "tests/files.h"
#include "tests/hpimport/resources.h"
#include "tests/tool/colours.h"
#include "tests/tool/commands.h"
#include "tests/tool/run.h"

namespace {

struct Refusal {
  Words words;
  const char* line;
};

TEST(CommandLine, RefusesWrongUsageInOneLine) {
  const Refusal refusals[] = {
      {{}, "a command is missing; try 'qdf --help'"},
      {{"--json"}, "there is no option \"--json\"; choose from --help, --version, -C"},
      {{"-C"}, "-C: 1 required DIR missing; try 'qdf --help'"},
      {{"-C", "nowhere", "show", "x"}, "can't work in \"nowhere\": No such file or directory"},
      {{"show"}, "DOC is required; try 'qdf show --help'"},
      {{"show", ""}, "the name of the document is empty"},
      {{"show", "plot36.qdf", "more"},
       "nothing is known to do with \"more\"; try 'qdf show --help'"},
      {{"show", "plot36.qdf", "--lst=inks"},
       "there is no option \"--lst=inks\"; choose from --list, --json, --help"},
      {{"show", "plot36.qdf", "--list"}, "--list: 1 required NAME missing; try 'qdf show --help'"},
      {{"show", "plot36.qdf", "--list", "medium"},
       "there is no list \"medium\"; choose from media, media-sizes, media-sources, print-modes, "
       "color-modes, margins, inks, resolutions"},
      {{"tree", "plot36.qdf", "--depth", "-1"}, "--depth takes a number from 0 on, not \"-1\""},
      {{"tree", "plot36.qdf", "--depth", "2x"}, "--depth takes a number from 0 on, not \"2x\""},
      {{"narrow", "plot36.qdf", "--ink", "1", "--ink", "2"},
       "--ink: At Most 1 required but received 2; try 'qdf narrow --help'"},
      {{"narrow", "plot36.qdf", "--media", "Plain"}, "--media needs --ink as well, or --defaults"},
      {{"narrow", "plot36.qdf", "--size", "A4"}, "--size needs --source as well, or --defaults"},
  };
  for (const Refusal& refusal : refusals) {
    EXPECT_EQ(RunTool(refusal.words), Refused(refusal.line, 2));
  }
}

TEST(CommandLine, SuggestsCommandsTheNearestFirst) {
  const Outcome outcome = RunTool({"sow\x1b[1m\n", "plot36.qdf"});
  EXPECT_EQ(outcome.code, 2);
  EXPECT_TRUE(
      outcome.err.starts_with("qdf: there is no command \"sow\\x1B[1m\\x0A\"; choose from show, "))
      << outcome;
  for (const CommandUsage& command : Commands()) {
    EXPECT_NE(outcome.err.find(' ' + command.name), std::string::npos) << command.name;
  }
}

// The lines behind "Example:" of a help page.
std::vector<std::string> Examples(const std::string& help) {
  std::vector<std::string> examples;
  std::istringstream lines(help.substr(std::min(help.find("Example:"), help.size())));
  std::string line;
  while (std::getline(lines, line)) {
    if (line.starts_with("  qdf ")) examples.push_back(line.substr(6));
  }
  return examples;
}

// What the examples of the help pages take for granted.
void FillExampleFolder(const TempFolder& folder) {
  std::filesystem::copy(QDF_EXAMPLES "/OutputDrivers", folder.Path("OutputDrivers"));
  std::filesystem::copy(QDF_EXAMPLES "/OutputDrivers", folder.Path("old"));
  WriteResource(folder, "resources", {});
  WriteColours(folder.Path("colours.opt"));
  WriteColours(folder.Path("changed.opt"));
}

TEST(CommandLine, HelpOfEachCommandHasExamplesThatWork) {
  const std::vector<CommandUsage> commands = Commands();
  EXPECT_GT(commands.size(), 3U);
  for (const CommandUsage& command : commands) {
    const TempFolder folder;
    FillExampleFolder(folder);
    const Outcome help = RunTool({command.name, "--help"});
    EXPECT_EQ(help.code, 0);
    EXPECT_FALSE(command.arguments.empty()) << help;
    const std::vector<std::string> examples = Examples(help.out);
    EXPECT_FALSE(examples.empty()) << help;
    for (const std::string& example : examples) {
      const Outcome outcome = RunTool(SplitWords(example), {folder.Path()});
      EXPECT_EQ(outcome.code, 0) << example << '\n' << outcome;
      EXPECT_NE(outcome.out, "") << example;
    }
  }
}

std::string FirstLine(const Outcome& outcome) {
  return outcome.out.substr(0, outcome.out.find('\n'));
}

TEST(CommandLine, FindsDocumentsByPathAndByName) {
  const std::string dyesub = ReadFile(QDF_EXAMPLES "/OutputDrivers/dyesub6.qdf");
  const TempFolder folder;
  folder.Write("OutputDrivers/both.qdf", dyesub);
  folder.Write("both.qdf", "no document");
  folder.Write("tree", dyesub);
  folder.Write("--json", dyesub);
  folder.Write("sub/OutputDrivers/deep.qdf", dyesub);
  const Refusal found[] = {
      {{"show", "both.qdf"}, "Document:           OutputDrivers/both.qdf"},
      {{"show", "tree"}, "Document:           tree"},
      {{"show", "--", "--json"}, "Document:           --json"},
      {{"show", "./tree"}, "Document:           ./tree"},
      {{"-C", "sub", "show", "deep.qdf"}, "Document:           OutputDrivers/deep.qdf"},
      {{"-C", "", "show", "tree"}, "Document:           tree"},
      {{"-C", "sub", "-C", "..", "show", "tree"}, "Document:           tree"},
  };
  for (const Refusal& each : found) {
    const Outcome outcome = RunTool(each.words, {folder.Path()});
    EXPECT_EQ(FirstLine(outcome), each.line) << outcome;
  }
  EXPECT_EQ(RunTool({"show", "./both.qdf"}, {folder.Path()}).code, 1);
  EXPECT_EQ(RunTool({"show", "./deep.qdf"}, {folder.Path()}).code, 1);
}

}  // namespace
