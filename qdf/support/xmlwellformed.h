#pragma once

// The rules of well-formed XML that the parser doesn't test: one root and no text beside it, legal
// names, no attribute twice, no stray "<", "&", "--" or "]]>", no raw control characters. What the
// parser tests by itself, such as end tags that match, is not looked at here.

#include <cstddef>
#include <string_view>

struct XMLFindings {
  const char* fault = nullptr;  // what is wrong, null when nothing is
  std::size_t offset = 0;       // of the byte at which it shows

  // Whether comments, CDATA sections or instructions stand inside elements, where they may split a
  // text in pieces.
  bool splitsText = false;
};

// A NUL must stand behind the text.
XMLFindings ExamineXML(std::string_view text);
