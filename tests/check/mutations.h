#pragma once

// Documents as somebody might have spoiled them.

#include <random>
#include <string>

// The document with a few elements dropped, repeated, renamed or moved, and a few ids, values and
// attributes changed. The same random numbers give the same document.
std::string Mutated(const std::string& document, std::mt19937& random);

// The document with a few bytes dropped or changed and a few marks of XML and id lists put in.
std::string Garbled(const std::string& document, std::mt19937& random);
