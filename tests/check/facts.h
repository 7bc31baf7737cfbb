#pragma once

// Whether a document holds all that stands in its file.

#include <string>

// Something that stands in the file and isn't among what the tool shows of the document; empty when
// there is nothing. What nobody reads counts as well.
std::string LostOf(const std::string& path);
