// Any bytes as a document: what its examination says of it, against what the reader and the writer
// make of it.

#include "fuzz/fuzzing.h"
#include "tests/check/agreement.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  MemoryFile document(TextOf(data, size));
  MemoryFile scratch;
  const std::string disagreement = Disagreement(static_cast<const char*>(document.Path()),
                                                static_cast<const char*>(scratch.Path()));
  RequireEqual("", disagreement, "the examination and the library disagree");
  return 0;
}
