// The qdf program: finds the command that the command line names, runs it and tells its answer.

#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <new>

#include "tool/commandline.h"
#include "tool/output.h"
#include "tool/printable.h"

namespace {

const Command* const kCommands[] = {
    &kShowCommand,  &kNarrowCommand,    &kTreeCommand,   &kCheckCommand,
    &kDiffCommand,  &kLocaliseCommand,  &kMediaCommand,  &kOptionsCommand,
    &kWriteCommand, &kResourcesCommand, &kUpdateCommand, &kSweepCommand,
};

// As with git, an empty folder changes nothing.
void ChangeFolder(const std::string& folder) {
  if (folder.empty() || chdir(folder.c_str()) == 0) return;
  throw Failure(kWrongUsage, "can't work in " + Quoted(folder) + ": " + std::strerror(errno));
}

// Programs are never asked.
Answer Ask(const Question& question, bool json) {
  if (json || !IsAtTerminal()) throw Failure(kNoAnswer, question.unasked);
  if (!Confirm(question.text)) throw Failure(kNoAnswer, question.onNo);
  return question.onYes();
}

int Run(const Command& command, const Invocation& invocation) {
  for (const std::string& folder : invocation.folders) ChangeFolder(folder);
  const bool json = invocation.arguments.Has("--json");
  Answer answer = command.run(invocation.arguments);
  PrintAnswer(answer, json);
  while (answer.question != nullptr) {
    answer = Ask(*answer.question, json);
    PrintAnswer(answer, json);
  }
  return answer.code;
}

int RunAndTell(int count, char** words) {
  ExitCode noAnswer = kNoAnswer;
  try {
    const Invocation invocation = ParseCommandLine(count, words, kCommands);
    if (invocation.command == nullptr) {
      Print(invocation.text);
      return kAnswered;
    }
    noAnswer = invocation.command->noAnswer;
    return Run(*invocation.command, invocation);
  } catch (const Failure& failure) {
    Complain(failure);
    return failure.code == kNoAnswer ? noAnswer : failure.code;
  } catch (const std::bad_alloc& lack) {
    ComplainOfLack(lack);
  } catch (const std::exception& fault) {
    Complain(std::string("internal fault: ") + fault.what());
  }
  return noAnswer;
}

}  // namespace

int main(int count, char** words) {
  // A write to a closed pipe or beyond a limit of size is then an error like any other.
  std::signal(SIGPIPE, SIG_IGN);
  std::signal(SIGXFSZ, SIG_IGN);
  try {
    return RunAndTell(count, words);
  } catch (const std::bad_alloc& lack) {
    ComplainOfLack(lack);
  }
  return kNoAnswer;
}
