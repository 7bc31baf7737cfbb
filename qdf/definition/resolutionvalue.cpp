#include "qdf/definition/resolutionvalue.h"

#include <cstring>

#include "qdf/support/numbers.h"

void ReadResolutionValue(const char* text, double& x, double& y) {
  const char* separator = std::strpbrk(text, "xX");
  if (separator == nullptr) {
    x = y = ReadDouble(text);
    return;
  }
  // The first part is cut off: a number must not be read beyond the separator, as "0x10" would be.
  const AString first = AString(text).Left(static_cast<int>(separator - text));
  x = ReadDouble(first);
  y = ReadDouble(separator + 1);
}
