#pragma once

// The commands of the program, as its own help tells them.

#include <string>
#include <vector>

#include "tests/documents.h"
#include "tests/tool/run.h"

// The lines behind the mark that begin so, without their beginning.
inline Words LinesBehind(const std::string& mark, const std::string& beginning,
                         const std::string& text) {
  std::istringstream lines(text.substr(std::min(text.find(mark), text.size())));
  Words found;
  for (std::string line; std::getline(lines, line);) {
    if (line.starts_with(beginning)) found.push_back(line.substr(beginning.size()));
  }
  return found;
}

struct CommandUsage {
  std::string name, help;
  Words arguments;  // "DOC" and the like, those that may be left out in brackets
};

inline std::vector<CommandUsage> Commands() {
  std::vector<CommandUsage> commands;
  for (const std::string& line : LinesBehind("\nCommands:\n", "  ", RunTool({"--help"}).out)) {
    const std::string name = SplitWords(line).front();
    const std::string help = RunTool({name, "--help"}).out;
    const Words usage = LinesBehind("", "Usage: qdf " + name + " [OPTIONS] ", help);
    commands.push_back({name, help, SplitWords(Join(usage, " "))});
  }
  return commands;
}
