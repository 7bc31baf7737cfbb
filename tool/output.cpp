#include "tool/output.h"

#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>

#include "qdf/support/lackofmeans.h"
#include "qdf/support/text.h"
#include "tool/printable.h"

namespace {

// 0, or the error that stopped it.
int WriteAll(int stream, std::string_view text) {
  while (!text.empty()) {
    const ssize_t written = write(stream, text.data(), text.size());
    if (written >= 0) {
      text.remove_prefix(static_cast<std::size_t>(written));
    } else if (errno != EINTR) {
      return errno;
    }
  }
  return 0;
}

std::string Variable(const char* name) {
  const char* value = std::getenv(name);
  return value != nullptr ? value : "";
}

bool IsTerminal() { return isatty(STDOUT_FILENO) != 0; }

bool WantsBold() {
  return IsTerminal() && Variable("NO_COLOR").empty() && Variable("TERM") != "dumb";
}

std::string Render(const Answer& answer, bool asJson) {
  if (asJson) return RenderJson(answer.report);
  return answer.text ? answer.text(IsTerminal()) : RenderText(answer.report, WantsBold());
}

}  // namespace

void Print(std::string_view text) {
  const int error = WriteAll(STDOUT_FILENO, text);
  if (error == 0 || error == EPIPE) return;
  throw Failure(kNoAnswer, std::string("standard output: ") + std::strerror(error));
}

void PrintAnswer(const Answer& answer, bool asJson) { Print(Render(answer, asJson)); }

void Complain(std::string_view line) {
  // Nobody is left to hear that even this can't be written.
  WriteAll(STDERR_FILENO, "qdf: " + MakePrintable(line).text + '\n');
}

void Complain(const Failure& failure) {
  Complain(failure.what());
  WriteAll(STDERR_FILENO, RenderText(failure.below, false));
}

bool IsAtTerminal() { return isatty(STDIN_FILENO) != 0 && isatty(STDOUT_FILENO) != 0; }

bool Confirm(std::string_view question) {
  Print('\n' + MakePrintable(question).text + " [y/N] ");
  std::string answer;
  char c = 0;
  while (read(STDIN_FILENO, &c, 1) == 1 && c != '\n') answer += c;
  const std::string_view word = Trimmed(answer);
  return EqualNoCase(word, "y") || EqualNoCase(word, "yes");
}

void ComplainOfLack(const std::bad_alloc& lack) {
  const auto* named = dynamic_cast<const LackOfMeans*>(&lack);
  WriteAll(STDERR_FILENO, "qdf: ");
  WriteAll(STDERR_FILENO, named != nullptr ? named->what() : "out of memory");
  WriteAll(STDERR_FILENO, "\n");
}
