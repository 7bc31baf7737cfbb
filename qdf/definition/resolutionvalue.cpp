#include "qdf/definition/resolutionvalue.h"

#include "qdf/support/numbers.h"
#include "qdf/support/text.h"

void ReadResolutionValue(std::string_view text, double& x, double& y) {
  std::size_t separator = 0;
  while (separator < text.size() && UpperChar(text[separator]) != 'X') ++separator;
  x = ReadDouble(text.substr(0, separator));
  y = separator < text.size() ? ReadDouble(text.substr(separator + 1)) : x;
}
