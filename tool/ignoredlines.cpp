#include "tool/ignoredlines.h"

#include "qdf/support/text.h"

std::string ReasonIn(const TextLine& line, std::string_view reason) {
  if (line.Piece == 0) return std::string(reason);
  return "a line of more than 1,023 characters, piece " + std::to_string(line.Piece) + ": " +
         std::string(reason);
}

void AddIgnored(const TextLine& line, const char* fault, std::vector<IgnoredLine>& ignored) {
  const auto add = [&](const char* reason, std::string_view text) {
    const std::string_view shown = Trimmed(text);
    if (shown.empty()) return;
    ignored.push_back({line.Number, ReasonIn(line, reason), std::string(shown)});
  };
  const std::string_view whole(line.Text, line.Length);
  const std::string_view read(line.Text);
  if (fault != nullptr) add(fault, read);
  if (read.size() < whole.size()) {
    add("what stands behind a NUL isn't read", whole.substr(read.size() + 1));
  }
}

Field IgnoredField(const char* label, const std::vector<IgnoredLine>& ignored) {
  List rows;
  for (const IgnoredLine& line : ignored) {
    rows.emplace_back(Object{{"line", "Line", static_cast<int>(line.number)},
                             {"reason", "Why", line.reason},
                             {"text", "Text", line.text}});
  }
  return {"ignored", label, std::move(rows)};
}
