#pragma once

// The rules of well-formed XML that the parser doesn't test: one root and no text beside it, legal
// names, no attribute twice, no stray "<", "&", "--" or "]]>", no raw control characters. What the
// parser tests by itself, such as end tags that match, is not looked at here.

#include <cstddef>
#include <string_view>

struct XMLFault {
  const char* reason = nullptr;  // null when nothing is wrong
  std::size_t offset = 0;        // of the byte at which it shows
};

XMLFault FindXMLFault(std::string_view text);
