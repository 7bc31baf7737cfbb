#include "qdf/localise/translationtable.h"

#include <string>
#include <string_view>

#include "qdf/localise/textlines.h"
#include "qdf/support/text.h"

namespace {

// Before the marks around it are taken off.
constexpr std::size_t kShortest = 2;

int HexDigit(char digit) {
  const char upper = UpperChar(digit);
  if (upper >= '0' && upper <= '9') return upper - '0';
  if (upper >= 'A' && upper <= 'F') return upper - 'A' + 10;
  return 0;
}

// Appends what the run that begins at `at` stands for, and answers where the text goes on.
std::size_t DecodeRun(std::string_view text, std::size_t at, std::string& decoded) {
  while (at < text.size()) {
    if (text[at] == ' ') {
      decoded += ' ';
      ++at;
    } else if (text[at] == '>' || at + 1 == text.size()) {
      return at + 1;
    } else {
      decoded += static_cast<char>(HexDigit(text[at]) * 16 + HexDigit(text[at + 1]));
      at += 2;
    }
  }
  return at;
}

}  // namespace

int ReadTranslationTable(AFilePath& path, const std::function<void(const TableLine& line)>& take) {
  return ForEachLine(path, [&](const TextLine& text) {
    TableLine line{text, nullptr, {}};
    line.Fault = ReadTableLine(text.Text, line.Pair);
    take(line);
  });
}

const char* ReadTableLine(const char* line, TranslationPair& pair) {
  std::string_view key;
  std::string_view value;
  if (!SplitAtFirst('=', line, key, value)) {
    return *line == '=' ? "nothing stands before the \"=\"" : "it has no \"=\"";
  }
  if (key.size() < kShortest) return "the key has fewer than two characters";
  if (value.size() < kShortest) return "the value has fewer than two characters";
  if (key.front() == '*') key.remove_prefix(1);
  if (value.front() == '/') value.remove_prefix(1);
  if (value.back() == ':') value.remove_suffix(1);
  AString translation(std::string(value).c_str());
  DecodeHexRuns(translation);
  if (translation.GetLength() == 0) return "nothing is left of the value";
  pair.Key = std::string(key).c_str();
  pair.Translation = translation;
  return nullptr;
}

void DecodeHexRuns(AString& text) {
  const std::string_view given(static_cast<const char*>(text));
  std::string decoded;
  std::size_t at = 0;
  while (at < given.size()) {
    if (given[at] == '<') {
      at = DecodeRun(given, at + 1, decoded);
    } else {
      decoded += given[at++];
    }
  }
  text = decoded.c_str();
}
