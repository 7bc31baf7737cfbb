#include "qdf/support/numbers.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <string>

#include "qdf/support/plainlocale.h"
#include "qdf/support/text.h"

namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// Whole numbers of up to 15 digits, by far the most of what documents hold, are exact without
// strtod.
constexpr std::size_t kExactDigits = 15;

}  // namespace

int ReadInt(const char* text) {
  while (IsSpace(*text)) ++text;
  const bool negative = *text == '-';
  if (negative || *text == '+') ++text;
  constexpr std::int64_t kBeyond = std::int64_t{std::numeric_limits<int>::max()} + 1;
  std::int64_t value = 0;
  for (; IsDigit(*text); ++text) {
    value = value * 10 + (*text - '0');
    if (value > kBeyond) value = kBeyond;
  }
  if (negative) return static_cast<int>(-value);
  return static_cast<int>(value < kBeyond ? value : kBeyond - 1);
}

double ReadDouble(std::string_view text) {
  const bool plain = !text.empty() && text.size() <= kExactDigits &&
                     std::all_of(text.begin(), text.end(), IsDigit);
  if (!plain) return strtod_l(std::string(text).c_str(), nullptr, PlainLocale());
  std::int64_t value = 0;
  for (const char digit : text) value = value * 10 + (digit - '0');
  return static_cast<double>(value);
}

void ScanDoubles(AString text, double* const* targets, std::size_t count) {
  for (int i = 0; i < text.GetLength(); ++i) {
    if (text[i] == ',') text.SetAt(i, ' ');
  }
  const CLocale plain;
  const char* rest = text;
  for (std::size_t i = 0; i < count; ++i) {
    int used = 0;
    // sscanf, not strtod: it takes no number from a broken exponent, such as "1e".
    if (std::sscanf(rest, "%lf%n", targets[i], &used) != 1) return;  // NOLINT(cert-err34-c)
    rest += used;
  }
}

int TruncateToInt(double value) {
  if (std::isnan(value)) return 0;
  if (value >= std::numeric_limits<int>::max()) return std::numeric_limits<int>::max();
  if (value <= std::numeric_limits<int>::min()) return std::numeric_limits<int>::min();
  return static_cast<int>(value);
}

float NarrowToFloat(double value) {
  constexpr float kLargest = std::numeric_limits<float>::max();
  if (std::isfinite(value) && std::fabs(value) > double{kLargest}) {
    return value > 0 ? kLargest : -kLargest;
  }
  return static_cast<float>(value);
}
