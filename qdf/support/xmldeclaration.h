#pragma once

// The form of the line with which most XML documents begin.

#include <string_view>

// Whether this may stand between "<?xml" and "?>": a version, then perhaps an encoding, then
// perhaps whether the document stands alone. What they say isn't looked at.
bool IsXMLDeclaration(std::string_view content);
