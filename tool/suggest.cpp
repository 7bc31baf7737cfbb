#include "tool/suggest.h"

#include <algorithm>
#include <numeric>

#include "qdf/support/text.h"
#include "tool/printable.h"

namespace {

enum class Of { kPart, kWhole };

int EditDistance(std::string_view text, std::string_view name, Of of) {
  const auto isSame = [](char a, char b) { return UpperChar(a) == UpperChar(b); };
  // The distances of the beginning of the text that was looked at last to what ends at each place
  // of the name. A part may begin anywhere at no cost, and end anywhere.
  std::vector<int> last(name.size() + 1, 0);
  if (of == Of::kWhole) std::iota(last.begin(), last.end(), 0);
  std::vector<int> beforeLast;
  for (std::size_t i = 0; i < text.size(); ++i) {
    std::vector<int> row(last.size(), static_cast<int>(i) + 1);
    for (std::size_t j = 0; j < name.size(); ++j) {
      const int replaced = last[j] + (isSame(text[i], name[j]) ? 0 : 1);
      row[j + 1] = std::min({replaced, last[j + 1] + 1, row[j] + 1});
      const bool isSwapped =
          i > 0 && j > 0 && isSame(text[i], name[j - 1]) && isSame(text[i - 1], name[j]);
      if (isSwapped) row[j + 1] = std::min(row[j + 1], beforeLast[j - 1] + 1);
    }
    beforeLast = std::exchange(last, std::move(row));
  }
  return of == Of::kWhole ? last.back() : *std::min_element(last.begin(), last.end());
}

}  // namespace

Distance DistanceTo(std::string_view name, std::string_view text) {
  return {EditDistance(text, name, Of::kPart), EditDistance(text, name, Of::kWhole)};
}

Failure UnknownWord(const std::string& kind, const std::string& given,
                    std::vector<std::string> known) {
  std::stable_sort(known.begin(), known.end(), [&](const std::string& a, const std::string& b) {
    return DistanceTo(a, given) < DistanceTo(b, given);
  });
  std::string line = "there is no " + kind + ' ' + Quoted(given) + "; choose from";
  for (std::size_t i = 0; i < known.size(); ++i) line += (i > 0 ? ", " : " ") + known[i];
  return {kWrongUsage, line};
}
