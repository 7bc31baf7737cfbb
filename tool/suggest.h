#pragma once

// What somebody may have meant by a word that isn't known.

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tool/failure.h"

// How far a text is from a name: the numbers of characters to put in, take out, replace or swap
// with the next, ignoring case, until it is some part of the name, and until it is the whole of it.
// The first counts most, so that a word is near to every name that holds it.
using Distance = std::pair<int, int>;

Distance DistanceTo(std::string_view name, std::string_view text);

// Says that there is no such thing of that kind, and which there are, the nearest first.
Failure UnknownWord(const std::string& kind, const std::string& given,
                    std::vector<std::string> known);
