#include "tool/choice.h"

#include <algorithm>
#include <charconv>
#include <functional>
#include <set>

#include "qdf/support/text.h"
#include "tool/printable.h"
#include "tool/suggest.h"

namespace {

using Choices = std::vector<std::reference_wrapper<const Choice>>;
using SameText = std::function<bool(std::string_view, std::string_view)>;

constexpr std::size_t kMostSuggested = 20;

Choices WithID(const std::vector<Choice>& all, const std::string& given) {
  int id = 0;
  const char* end = given.data() + given.size();
  const auto [stop, error] = std::from_chars(given.data(), end, id);
  Choices found;
  if (error != std::errc() || stop != end) return found;
  std::copy_if(all.begin(), all.end(), std::back_inserter(found),
               [&](const Choice& choice) { return choice.id == id; });
  return found;
}

Choices Named(const std::vector<Choice>& all, const std::string& given, const SameText& same) {
  Choices found;
  std::copy_if(all.begin(), all.end(), std::back_inserter(found), [&](const Choice& choice) {
    return same(choice.displayName, given) ||
           (choice.internalName && same(*choice.internalName, given));
  });
  return found;
}

Choices Matches(const std::vector<Choice>& all, const std::string& given) {
  Choices found = WithID(all, given);
  if (found.empty()) found = Named(all, given, std::equal_to<>());
  if (found.empty()) found = Named(all, given, EqualNoCase);
  return found;
}

// Drops what isn't offered, unless that would leave nothing.
void PreferOffered(Choices& found, const std::vector<Choice>& offered) {
  std::set<int> ids;
  for (const Choice& choice : offered) ids.insert(choice.id);
  const auto isOther = [&](const Choice& choice) { return ids.count(choice.id) == 0; };
  if (std::all_of(found.begin(), found.end(), isOther)) return;
  found.erase(std::remove_if(found.begin(), found.end(), isOther), found.end());
}

Distance NearerDistance(const Choice& choice, const std::string& given) {
  const Distance distance = DistanceTo(choice.displayName, given);
  return choice.internalName ? std::min(distance, DistanceTo(*choice.internalName, given))
                             : distance;
}

Choices NearestFirst(const std::vector<Choice>& choices, const std::string& given) {
  std::vector<std::pair<Distance, const Choice*>> ranked;
  ranked.reserve(choices.size());
  for (const Choice& choice : choices) ranked.emplace_back(NearerDistance(choice, given), &choice);
  std::stable_sort(ranked.begin(), ranked.end(),
                   [](const auto& a, const auto& b) { return a.first < b.first; });
  Choices nearest;
  nearest.reserve(choices.size());
  for (const auto& [distance, choice] : ranked) nearest.emplace_back(*choice);
  return nearest;
}

Object Suggestions(const Choices& choices) {
  List rows;
  for (const Choice& choice : choices) {
    if (rows.size() == kMostSuggested) break;
    rows.emplace_back(Object{{"id", "ID", choice.id},
                             {"displayName", "Display name", choice.displayName},
                             {"internalName", "Internal name", OrNull(choice.internalName)}});
  }
  return {{nullptr, choices.size() > rows.size() ? "The nearest choices" : "Choices", rows}};
}

}  // namespace

const Choice& FindChoice(const std::string& what, const std::string& given,
                         const std::vector<Choice>& all, const std::vector<Choice>& offered) {
  Choices found = Matches(all, given);
  if (found.empty()) {
    throw Failure(kWrongUsage, what + ' ' + Quoted(given) + " is unknown",
                  Suggestions(NearestFirst(offered.empty() ? all : offered, given)));
  }
  PreferOffered(found, offered);
  if (found.size() > 1) {
    throw Failure(kWrongUsage, what + ' ' + Quoted(given) + " is ambiguous, give an id",
                  Suggestions(found));
  }
  return found.front();
}

std::string NameChoice(const Choice& choice) {
  const std::string& name =
      choice.displayName.empty() && choice.internalName ? *choice.internalName : choice.displayName;
  return std::to_string(choice.id) + (name.empty() ? "" : ' ' + Quoted(name));
}
