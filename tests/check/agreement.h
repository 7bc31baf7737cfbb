#pragma once

// Whether the examination of a document and the library say the same of it.

#include <string>

#include "tool/check/examine.h"

// Empty when they agree about the document in the file, else what they disagree about:
// - a document has an error exactly when it is refused;
// - each node of the object has an element of its own, with the same ids;
// - without a warning the object holds all that stands in the file;
// - when moreover a write is said to lose nothing, the written document means the same. It is
//   written to `scratch`, where there is nothing before and nothing afterwards.
std::string Disagreement(const std::string& path, const std::string& scratch);

// Whether there is a finding of that severity.
bool Finds(const check::Examination& examination, check::Severity severity);
