// The page and the completion say what the program's own help says.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdio>

#include "tests/tool/run.h"

namespace {

constexpr const char* kSources = QDF_EXAMPLES "/..";

// "--json" and the like.
Words LongOptions(const CommandUsage& command) {
  Words options;
  for (const std::string& line : LinesBehind("\nOptions:\n", "  -", command.help)) {
    const std::string option = '-' + line;
    options.push_back(SplitWords(option.substr(option.find("--"))).front());
  }
  return options;
}

// What bash offers for the last of the words.
Words Complete(const std::string& folder, const std::string& words) {
  const TempFolder temporary;
  const std::string script = temporary.Write(
      "complete", "source '" + std::string(kSources) + "/tool/completion/qdf.bash'\ncd '" + folder +
                      "'\nCOMP_WORDS=(" + words +
                      ")\nCOMP_CWORD=$((${#COMP_WORDS[@]} - 1))\n_qdf\n"
                      "printf '%s\\n' \"${COMPREPLY[@]}\"\n");
  FILE* bash = popen(("bash " + script).c_str(), "r");
  std::string out;
  for (int c = 0; (c = std::fgetc(bash)) != EOF;) out += static_cast<char>(c);
  return pclose(bash) == 0 ? SplitWords(out) : Words{"bash failed"};
}

using testing::UnorderedElementsAre;
using testing::UnorderedElementsAreArray;

TEST(Manual, TellsOfEachCommandAndOptionAsTheCompletionDoes) {
  const std::string page = ReadFile(std::string(kSources) + "/docs/qdf.1");
  const std::string start = "\n.It Nm Cm ";
  Words names;
  for (const CommandUsage& command : Commands()) {
    names.push_back(command.name);
    const Words options = LongOptions(command);
    EXPECT_THAT(Complete("/", "qdf " + command.name + " --"), UnorderedElementsAreArray(options));
    const std::size_t begin = page.find(start + command.name + ' ');
    ASSERT_NE(begin, std::string::npos) << command.name;
    const std::string text =
        page.substr(0, page.find(start)) + page.substr(begin, page.find(start, begin + 1) - begin);
    for (const std::string& option : options) {
      EXPECT_THAT(text, testing::HasSubstr(' ' + option.substr(1))) << command.name;
    }
  }
  EXPECT_THAT(Complete("/", "qdf ''"), UnorderedElementsAreArray(names));
  for (const std::string& list : Complete("/", "qdf show --list = ''")) {
    EXPECT_EQ(RunTool({"show", "plot36.qdf", "--list", list}).code, 0) << list;
  }
}

TEST(Completion, FindsDocumentsFilesAndFolders) {
  const TempFolder folder;
  folder.Write("OutputDrivers/plot.qdf", "");
  folder.Write("OutputDrivers/plot.txt", "");
  folder.Write("resources/plot/file", "");
  const std::string top = folder.Path();
  EXPECT_THAT(Complete(top, "qdf show p"), UnorderedElementsAre("plot.qdf"));
  EXPECT_THAT(Complete("/", "qdf -C " + top + " tree p"), UnorderedElementsAre("plot.qdf"));
  EXPECT_THAT(Complete(top, "qdf show OutputDrivers/"),
              UnorderedElementsAre("OutputDrivers/plot.qdf", "OutputDrivers/plot.txt"));
  EXPECT_THAT(Complete(top, "qdf update --dry-run plot.qdf r"), UnorderedElementsAre("resources"));
  EXPECT_THAT(Complete(top, "qdf localise -o resources/"), UnorderedElementsAre("resources/plot"));
  EXPECT_THAT(Complete(top, "qdf narrow --ink ''"), testing::IsEmpty());
  EXPECT_THAT(Complete(top, "qdf show plot.qdf ''"), testing::IsEmpty());
}

}  // namespace
