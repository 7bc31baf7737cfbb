#pragma once

// Runs the qdf program as a person's shell would, and keeps all that it says.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <termios.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <nlohmann/json.hpp>
#include <ostream>
#include <sstream>
#include <string>
#include <vector>

#include "tests/children.h"
#include "tests/documents.h"
#include "tests/files.h"

using Words = std::vector<std::string>;

// The code is 128 and more when a signal ended the program.
struct Outcome {
  int code = -1;
  std::string out{};
  std::string err{};

  bool operator==(const Outcome& other) const = default;
};

inline std::ostream& operator<<(std::ostream& stream, const Outcome& outcome) {
  return stream << "code " << outcome.code << "\n--- out\n"
                << outcome.out << "--- err\n"
                << outcome.err;
}

struct Setting {
  std::string folder = QDF_EXAMPLES;
  Words environment{"NO_COLOR=", "TERM=xterm"};
  int in = -1;                  // is read instead of nothing
  int out = -1;                 // takes standard output instead of the outcome
  bool asNobody = false;        // without root's rights to read everything
  unsigned long mostBytes = 0;  // of a file that it writes, unless 0
};

inline std::string ReadBack(int file) {
  std::string bytes = ReadFile("/proc/self/fd/" + std::to_string(file));
  close(file);
  return bytes;
}

// Answers only when it can't.
inline int BecomeTool(int program, Words words, const Setting& setting, int out, int err) {
  constexpr uid_t kNobody = 65534;
  words.insert(words.begin(), "qdf");
  std::vector<char*> arguments;
  for (std::string& word : words) arguments.push_back(word.data());
  arguments.push_back(nullptr);
  for (const std::string& variable : setting.environment) putenv(strdup(variable.c_str()));
  const int in = setting.in >= 0 ? setting.in : open("/dev/null", O_RDONLY | O_CLOEXEC);
  const bool ready = chdir(setting.folder.c_str()) == 0 && dup2(in, STDIN_FILENO) >= 0 &&
                     dup2(out, STDOUT_FILENO) >= 0 && dup2(err, STDERR_FILENO) >= 0 &&
                     (!setting.asNobody || geteuid() != 0 || setuid(kNobody) == 0);
  if (setting.mostBytes != 0) LimitFileSizes(setting.mostBytes);
  if (ready) fexecve(program, arguments.data(), environ);
  return 127;
}

inline Outcome RunTool(const Words& words, const Setting& setting = {}) {
  // Opened with the rights of the tests, since nobody may not even reach it.
  const int program = open(QDF_PROGRAM, O_RDONLY | O_CLOEXEC);
  const int out = memfd_create("out", MFD_CLOEXEC);
  const int err = memfd_create("err", MFD_CLOEXEC);
  const int code = InChild([&] {
    return BecomeTool(program, words, setting, setting.out >= 0 ? setting.out : out, err);
  });
  close(program);
  return {code, ReadBack(out), ReadBack(err)};
}

// What a person at a terminal sees who has typed that blindly, and the exit code behind it.
inline std::string OnTerminal(const Words& words, Setting setting, const std::string& typed = {}) {
  const int master = posix_openpt(O_RDWR | O_NOCTTY);
  if (master < 0 || grantpt(master) != 0 || unlockpt(master) != 0) return "no terminal";
  const int terminal = open(ptsname(master), O_RDWR | O_NOCTTY);
  // What is typed shows at no certain time, so it isn't shown at all.
  termios mode{};
  if (tcgetattr(terminal, &mode) != 0) return "no terminal";
  mode.c_lflag &= ~static_cast<tcflag_t>(ECHO);
  tcsetattr(terminal, TCSANOW, &mode);
  if (write(master, typed.data(), typed.size()) < 0) return "no terminal";
  setting.in = setting.out = terminal;
  const Outcome outcome = RunTool(words, setting);
  // Bytes come in pieces, and once nobody has the terminal reading ends behind the last of them.
  close(terminal);
  std::string shown;
  for (char c = 0; read(master, &c, 1) == 1;) shown += c;
  close(master);
  return shown + outcome.err + "code " + std::to_string(outcome.code);
}

// Of a line without quotation marks, but for '' as an empty word.
inline Words SplitWords(const std::string& line) {
  std::istringstream stream(line);
  Words words(std::istream_iterator<std::string>(stream), {});
  std::replace(words.begin(), words.end(), std::string("''"), std::string());
  return words;
}

// What a refusal says, and nothing else.
inline Outcome Refused(const std::string& line, int code = 1) {
  return {code, "", "qdf: " + line + '\n'};
}

// What it prints from the mark on.
inline std::string From(const std::string& mark, const Outcome& outcome) {
  return outcome.out.substr(std::min(outcome.out.find(mark), outcome.out.size()));
}

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

// The commands, as the program's own help tells them.
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

using Refusals = std::vector<std::pair<std::string, std::string>>;

// A folder of its own that the program is run in. Lines are split at blanks into words.
class QdfTest : public testing::Test {
 protected:
  Outcome RunWords(const Words& words, Setting setting = {}) const {
    setting.folder = folder_.Path();
    return RunTool(words, setting);
  }
  Outcome Run(const std::string& line, const Setting& setting = {}) const {
    return RunWords(SplitWords(line), setting);
  }
  // What the tool says with --json; null, which equals nothing that is looked for, unless it
  // answered with exit code 0 and well-formed JSON.
  nlohmann::json Json(const std::string& line) const {
    const Outcome outcome = Run(line + " --json");
    if (outcome.code != 0 || !outcome.err.empty()) return nullptr;
    return nlohmann::json::parse(outcome.out, nullptr, false);
  }
  // The command with the words of each row says what stands beside them, and nothing else.
  void ExpectRefusals(const std::string& command, const Refusals& rows, int code = 1) const {
    for (const auto& [words, line] : rows) {
      EXPECT_EQ(Run(command + ' ' + words), Refused(line, code)) << words;
    }
  }
  std::string File(const std::string& name) const { return ReadFile(folder_.Path(name)); }
  bool Has(const std::string& name) const { return std::filesystem::exists(folder_.Path(name)); }

  TempFolder folder_;
};
