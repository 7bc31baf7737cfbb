#include "qdf/support/xmldeclaration.h"

#include <algorithm>
#include <optional>

#include "qdf/support/text.h"

namespace {

bool IsXMLSpace(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }
bool IsDigit(char c) { return c >= '0' && c <= '9'; }
bool IsLetter(char c) { return UpperChar(c) >= 'A' && UpperChar(c) <= 'Z'; }

void SkipSpace(std::string_view& rest) {
  while (!rest.empty() && IsXMLSpace(rest.front())) rest.remove_prefix(1);
}

// Takes ` name="value"` off the front; nothing, and the rest left alone, when it doesn't stand
// there.
std::optional<std::string_view> TakeValue(std::string_view& rest, std::string_view name) {
  std::string_view after = rest;
  SkipSpace(after);
  if (after.size() == rest.size() || !after.starts_with(name)) return std::nullopt;
  after.remove_prefix(name.size());
  SkipSpace(after);
  if (!after.starts_with('=')) return std::nullopt;
  after.remove_prefix(1);
  SkipSpace(after);
  if (!after.starts_with('"') && !after.starts_with('\'')) return std::nullopt;
  const std::size_t end = after.find(after.front(), 1);
  if (end == std::string_view::npos) return std::nullopt;
  const std::string_view value = after.substr(1, end - 1);
  rest = after.substr(end + 1);
  return value;
}

bool IsVersion(std::string_view text) {
  return text.size() > 2 && text.starts_with("1.") &&
         std::all_of(text.begin() + 2, text.end(), IsDigit);
}

bool IsEncoding(std::string_view text) {
  const auto goesOn = [](char c) {
    return IsLetter(c) || IsDigit(c) || c == '.' || c == '_' || c == '-';
  };
  return !text.empty() && IsLetter(text.front()) && std::all_of(text.begin(), text.end(), goesOn);
}

}  // namespace

bool IsXMLDeclaration(std::string_view content) {
  const auto version = TakeValue(content, "version");
  if (!version.has_value() || !IsVersion(*version)) return false;
  const auto encoding = TakeValue(content, "encoding");
  if (encoding.has_value() && !IsEncoding(*encoding)) return false;
  const auto alone = TakeValue(content, "standalone");
  if (alone.has_value() && *alone != "yes" && *alone != "no") return false;
  SkipSpace(content);
  return content.empty();
}
