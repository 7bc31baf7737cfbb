#include "tool/check/values.h"

#include <array>
#include <charconv>
#include <cmath>

#include "qdf/definition/resolutionvalue.h"
#include "qdf/support/numbers.h"
#include "qdf/support/text.h"
#include "tool/enumerate.h"
#include "tool/utf8.h"

namespace check {

namespace {

// Takes the number's own type to tell what it can hold.
template <class Number>
bool IsAll(std::string_view text, Number& number) {
  text = Trimmed(text);
  if (text.size() > 1 && text.front() == '+' && text[1] != '-') text.remove_prefix(1);
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  return error == std::errc() && end == text.data() + text.size();
}

void TellMalformed(const Given& given, const char* isNot, const std::string& readAs,
                   Findings& findings) {
  findings.Add(Code::kNumberMalformed, given.element, given.place,
               given.name + ' ' + Quote(given.text) + ' ' + isNot + " and is read as " + readAs,
               "write the number alone");
}

// The text between separators, as the reader scans it.
std::vector<std::string> Pieces(std::string_view text) {
  std::vector<std::string> pieces(1);
  for (const char c : text) {
    if (c != ',' && !IsSpace(c)) {
      pieces.back() += c;
    } else if (!pieces.back().empty()) {
      pieces.emplace_back();
    }
  }
  if (pieces.back().empty()) pieces.pop_back();
  return pieces;
}

// As in: "9, 9, 0 and 0".
std::string ScannedText(const std::string& text, std::size_t count) {
  std::array<double, 4> numbers{};
  std::array<double*, 4> targets{};
  for (std::size_t i = 0; i < targets.size(); ++i) targets[i] = &numbers[i];
  ScanDoubles(text.c_str(), targets.data(), count);
  std::vector<std::string> words;
  for (std::size_t i = 0; i < count; ++i) words.push_back(NumberText(numbers[i]));
  return Enumerate(words, "and", count);
}

// About so many bytes before the cut, whole characters only.
std::string_view EndBefore(std::string_view text, std::size_t cut) {
  constexpr std::size_t kShown = 20;
  std::size_t end = cut;
  while (end > cut - kShown && ContinuesCharacter(text[end])) --end;
  std::size_t begin = cut - kShown;
  while (begin < end && ContinuesCharacter(text[begin])) ++begin;
  return text.substr(begin, end - begin);
}

}  // namespace

Given GivenText(const Element& element) {
  return {element, element.Name(), element.Text(), element.TextPlace()};
}

Given GivenAttribute(const Element& element, const Attribute& attribute) {
  return {element, attribute.Name(), attribute.Value(), attribute.ValuePlace()};
}

bool IsWholeNumber(std::string_view text) {
  int number = 0;
  return IsAll(text, number);
}

bool IsNumber(std::string_view text) {
  double number = 0.0;
  return IsAll(text, number) && std::isfinite(number);
}

std::string NumberText(double number) {
  AString text;
  return static_cast<const char*>(text.Format("%g", number));
}

void CheckWholeNumber(const Given& given, Findings& findings) {
  if (IsWholeNumber(given.text)) return;
  TellMalformed(given, "isn't a whole number", std::to_string(ReadInt(given.text.c_str())),
                findings);
}

void CheckShortNumber(const Given& given, Findings& findings) {
  float number = 0.0F;
  if (IsAll(given.text, number) && std::isfinite(number)) return;
  const double read = double{NarrowToFloat(ReadDouble(given.text))};
  TellMalformed(given, "isn't a number", NumberText(read), findings);
}

bool CheckNumbers(const Given& given, std::size_t count, Findings& findings) {
  const std::vector<std::string> pieces = Pieces(given.text);
  const std::string wanted = Count(count, "number");
  for (std::size_t i = 0; i < pieces.size() && i < count; ++i) {
    if (IsNumber(pieces[i])) continue;
    findings.Add(Code::kNumberMalformed, given.element, given.place,
                 Quote(pieces[i]) + " in " + given.name + " isn't a plain number: " + given.name +
                     " is read as " + ScannedText(given.text, count),
                 "write " + wanted + " with commas or blanks between them");
    return pieces.size() >= count;
  }
  if (pieces.size() < count) {
    findings.Add(Code::kNumbersMissing, given.element, given.place,
                 given.name + " has " + Count(pieces.size(), "number") + " where " +
                     std::to_string(count) + " are read; the others stay 0",
                 "write " + wanted + " with commas or blanks between them");
    return false;
  }
  if (pieces.size() > count) {
    findings.Add(Code::kNumberMalformed, given.element, given.place,
                 "only the first " + wanted + " of " + given.name + " are read",
                 "take out what stands behind them");
  }
  return true;
}

bool CheckResolution(const Given& given, Findings& findings) {
  double x = 0.0;
  double y = 0.0;
  ReadResolutionValue(given.text, x, y);
  if (!(x > 0.0 && y > 0.0)) return false;
  const std::size_t separator = given.text.find_first_of("xX");
  const std::string_view text = given.text;
  const bool second = separator == std::string::npos || IsNumber(text.substr(separator + 1));
  if (!IsNumber(text.substr(0, separator)) || !second) {
    TellMalformed(given, "isn't one number, nor two with an \"x\" between them,",
                  NumberText(x) + 'x' + NumberText(y), findings);
  }
  return true;
}

void CheckNameFits(const Given& given, std::size_t fieldSize, Findings& findings) {
  if (given.text.size() <= fieldSize) return;
  findings.Add(Code::kNameCut, given.element, given.place,
               given.name + " is longer than " + std::to_string(fieldSize) +
                   " bytes and is cut: it ends in " + Quote(EndBefore(given.text, fieldSize)),
               "use a shorter name");
}

void CheckNameBlanks(const Given& given, Findings& findings) {
  if (Trimmed(given.text).size() == given.text.size() || Trimmed(given.text).empty()) return;
  findings.Add(Code::kNameBlanks, given.element, given.place,
               "the blanks or line breaks around " + Quote(Trimmed(given.text)) +
                   " are part of the " + given.name,
               "write the text without them");
}

}  // namespace check
