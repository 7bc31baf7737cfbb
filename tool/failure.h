#pragma once

// How a command gives up. Thrown anywhere in the tool, told on standard error by its main function.

#include <stdexcept>
#include <string>

#include "tool/report.h"

// A command that compares says with 1 that there are differences, and with 2 also that it has no
// answer.
enum ExitCode { kAnswered = 0, kNoAnswer = 1, kDifferent = 1, kWrongUsage = 2 };

struct Failure : std::runtime_error {
  // One line of text, which may hold any bytes, and what is shown below it.
  Failure(ExitCode exitCode, const std::string& line, Object shownBelow = {})
      : std::runtime_error(line), code(exitCode), below(std::move(shownBelow)) {}

  ExitCode code;
  Object below;
};
