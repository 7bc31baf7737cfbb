// Any bytes as a document.

#include "fuzz/documentproperties.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  CheckDocument(TextOf(data, size));
  return 0;
}
