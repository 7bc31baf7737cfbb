#include "tool/check/findings.h"

#include <algorithm>
#include <utility>

#include "tool/utf8.h"

namespace check {

std::string Brief(std::string_view text) { return Shortened(text, 60); }

std::string Quote(std::string_view text) { return '"' + Brief(text) + '"'; }

std::string Count(std::size_t number, const std::string& noun) {
  return std::to_string(number) + ' ' + noun + (number == 1 ? "" : "s");
}

void Findings::Add(Code code, const Element& element, Place place, std::string message,
                   std::string hint) {
  AddAt(code, place, std::move(message), std::move(hint));
  findings_.back().path = paths_.Of(element);
}

void Findings::AddAt(Code code, Place place, std::string message, std::string hint) {
  findings_.push_back({&RuleOf(code),
                       true,
                       place,
                       source_.PositionOf(place.begin),
                       {},
                       std::move(message),
                       std::move(hint)});
}

void Findings::AddUnplaced(Code code, std::string message, std::string hint) {
  findings_.push_back({&RuleOf(code), false, {}, {}, {}, std::move(message), std::move(hint)});
}

std::string Findings::LineOf(const Element& element) const {
  return "line " + std::to_string(source_.PositionOf(element.NamePlace().begin).line);
}

std::vector<Finding> Findings::Take() {
  std::stable_sort(findings_.begin(), findings_.end(), [](const Finding& a, const Finding& b) {
    return a.place.begin < b.place.begin;
  });
  return std::exchange(findings_, {});
}

}  // namespace check
