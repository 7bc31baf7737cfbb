#pragma once

// What a command is made of. Each has a file of its own, which defines one Command, and a place in
// the table of main.cpp. A command answers with a report; it neither reads arguments from anywhere
// else nor prints.

#include <functional>
#include <map>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "tool/failure.h"
#include "tool/report.h"

// How often an option may be given.
enum class Times { kOnce, kMany };

struct Option {
  const char* name;   // "--list", "-o,--output" or, for an argument without a dash, "DOC"
  const char* value;  // what the help calls its value; empty for a flag
  const char* help;
  bool required = false;
  Times times = Times::kOnce;
};

// What was given for each option, by the last of its names. Every command has the option "--json"
// as well, which is for whoever prints its answer.
class Arguments {
 public:
  void Set(const std::string& name, std::vector<std::string> values) {
    values_[name] = std::move(values);
  }

  bool Has(std::string_view name) const { return values_.find(name) != values_.end(); }

  // Null when the option wasn't given.
  const std::string* Find(std::string_view name) const {
    const auto found = values_.find(name);
    return found != values_.end() ? &found->second.front() : nullptr;
  }

  // For an option that is required.
  const std::string& Get(std::string_view name) const { return values_.find(name)->second.front(); }

  std::vector<std::string> All(std::string_view name) const {
    const auto found = values_.find(name);
    return found != values_.end() ? found->second : std::vector<std::string>();
  }

 private:
  std::map<std::string, std::vector<std::string>, std::less<>> values_;
};

struct Question;

struct Answer {
  Object report;
  ExitCode code = kAnswered;
  // What the person is asked once the report is shown; none when all is done.
  std::shared_ptr<const Question> question{};
  // Lays the answer out for people; without it the report's own shape decides. A command that has
  // this may leave the report empty unless "--json" is given.
  std::function<std::string(bool onTerminal)> text{};
};

// Whether to do what can't be undone.
struct Question {
  std::string text;  // one line, which "yes" answers
  std::function<Answer()> onYes;
  std::string onNo;     // a line
  std::string unasked;  // a line for when nobody is at a terminal to answer
};

struct Command {
  const char* name;
  const char* summary;  // one line
  const char* help;     // what the options alone don't tell; may be empty
  const char* example;  // a whole command line
  std::span<const Option> options;
  Answer (*run)(const Arguments& arguments);
  ExitCode noAnswer = kNoAnswer;  // what failures without an answer exit with
};

extern const Command kShowCommand;
extern const Command kNarrowCommand;
extern const Command kTreeCommand;
extern const Command kDiffCommand;
extern const Command kLocaliseCommand;
extern const Command kMediaCommand;
extern const Command kOptionsCommand;
extern const Command kWriteCommand;
extern const Command kResourcesCommand;
extern const Command kUpdateCommand;
extern const Command kSweepCommand;
extern const Command kCheckCommand;
