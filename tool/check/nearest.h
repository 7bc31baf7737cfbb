#pragma once

// What somebody may have meant by a name that nobody knows.

#include <string>
#include <string_view>
#include <vector>

namespace check {

// `did you mean "InkList"?`, with the nearest of the known names; empty when none is near.
std::string DidYouMean(std::string_view name, const std::vector<std::string_view>& known);

}  // namespace check
