#pragma once

// From the words of a command line to a command and its arguments.

#include <span>
#include <string>
#include <vector>

#include "tool/command.h"

struct Invocation {
  std::string text;  // a help page or the version, to be printed and no more
  const Command* command = nullptr;
  Arguments arguments;
  std::vector<std::string> folders;  // to change to, one after the other, before the command runs
};

// Throws a Failure for what can't be understood.
Invocation ParseCommandLine(int count, const char* const* words,
                            std::span<const Command* const> commands);
