#pragma once

// The commands of the program, as its own help tells them.

#include <string>
#include <vector>

#include "tests/tool/run.h"

struct CommandUsage {
  std::string name;
  Words arguments;  // "DOC" and the like, those that may be left out in brackets
};

inline CommandUsage UsageOf(const std::string& name) {
  const std::string help = RunTool({name, "--help"}).out;
  const std::string start = "\nUsage: qdf " + name + " [OPTIONS] ";
  const std::size_t at = help.find(start);
  if (at == std::string::npos) return {name, {}};
  const std::size_t begin = at + start.size();
  return {name, SplitWords(help.substr(begin, help.find('\n', begin) - begin))};
}

inline std::vector<CommandUsage> Commands() {
  const std::string help = RunTool({"--help"}).out;
  const std::string title = "\nCommands:\n";
  const std::size_t at = help.find(title);
  std::vector<CommandUsage> commands;
  std::istringstream lines(at == std::string::npos ? "" : help.substr(at + title.size()));
  for (std::string line; std::getline(lines, line) && line.starts_with("  ");) {
    commands.push_back(UsageOf(SplitWords(line).front()));
  }
  return commands;
}
