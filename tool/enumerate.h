#pragma once

// Several words in a sentence.

#include <string>
#include <vector>

// The first of the words, as in: a, b and c; or, when there are more than `most`: a, b and 3 more.
// `joint` is the last word between them.
std::string Enumerate(const std::vector<std::string>& words, const std::string& joint,
                      std::size_t most);
