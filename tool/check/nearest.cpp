#include "tool/check/nearest.h"

#include <algorithm>
#include <cstdlib>

#include "qdf/support/text.h"
#include "tool/check/findings.h"
#include "tool/suggest.h"

namespace check {

namespace {

bool BeginsWith(std::string_view text, std::string_view start) {
  return EqualNoCase(text.substr(0, start.size()), start);
}

// The shortest that goes on where the name ends, or the other way round.
std::string_view Continued(std::string_view name, const std::vector<std::string_view>& known) {
  constexpr std::size_t kLeast = 4;
  std::string_view found;
  for (const std::string_view each : known) {
    if (std::min(each.size(), name.size()) < kLeast) continue;
    if (!BeginsWith(each, name) && !BeginsWith(name, each)) continue;
    if (found.empty() || each.size() < found.size()) found = each;
  }
  return found;
}

}  // namespace

std::string DidYouMean(std::string_view name, const std::vector<std::string_view>& known) {
  std::string_view nearest;
  // A third of the letters may be wrong, at least one.
  int distance = std::max(1, static_cast<int>(name.size()) / 3) + 1;
  for (const std::string_view each : known) {
    const auto longer = static_cast<int>(name.size()) - static_cast<int>(each.size());
    if (std::abs(longer) >= distance) continue;
    const int wrong = DistanceTo(each, name).second;
    if (wrong >= distance) continue;
    distance = wrong;
    nearest = each;
  }
  if (nearest.empty()) nearest = Continued(name, known);
  return nearest.empty() ? std::string() : "did you mean " + Quote(nearest) + '?';
}

}  // namespace check
