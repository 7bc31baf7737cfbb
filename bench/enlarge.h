#pragma once

// Larger documents of the same form, to see how the time of an operation grows.

#include <string>

// The text of the document with each medium that stands alone in its nodes `times` as often: under
// ids and names of its own, with profiles and dithers that nobody else has. Empty when the document
// can't be parsed.
std::string EnlargedDocument(const std::string& path, int times);
