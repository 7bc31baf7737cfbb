#pragma once

// The text form of a resolution: one number, or two with an "X" between them in either case.

#include <string_view>

// Sets both numbers: to the parts on the two sides of the first "X", or both to the whole text's
// number. A part without a number gives 0.
void ReadResolutionValue(std::string_view text, double& x, double& y);
