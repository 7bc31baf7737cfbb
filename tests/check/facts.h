#pragma once

// A document as a heap of short texts, of which one may be missing in another heap.

#include <string>
#include <vector>

#include "qdf/core/apmqdf.h"

using Facts = std::vector<std::string>;

// Both are sorted. What stands in a well-formed file, told by the depth and the names of its
// elements: what nobody reads gives a fact as well.
Facts FactsOfFile(const std::string& path);

// All that the object holds, in the same words.
Facts FactsOf(APMQDF& document);

// A text of nothing but numbers in one form, however they are spelled; any other as it is.
std::string Shown(const std::string& text);
