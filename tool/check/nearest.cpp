#include "tool/check/nearest.h"

#include <algorithm>
#include <cstdlib>

#include "tool/check/findings.h"
#include "tool/suggest.h"

namespace check {

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
  return nearest.empty() ? std::string() : "did you mean " + Quote(nearest) + '?';
}

}  // namespace check
