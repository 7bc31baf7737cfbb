#pragma once

// Numbers out of texts and between types: always in the "C" locale, defined for every text and
// value.

#include <array>
#include <cstddef>
#include <string_view>

#include "qdf/support/astring.h"

// The leading decimal integer of the text after white space and a sign, 0 when there is none. What
// `int` can't hold becomes the nearest value that it can.
int ReadInt(const char* text);

// The leading number of the text as atof reads it: 0 without one; "inf" and "nan" are numbers too.
double ReadDouble(std::string_view text);

// Scans up to N numbers that blanks or commas separate and stores each in its target. The scan
// stops at the first text that is no number, and the targets from there on keep their values.
void ScanDoubles(AString text, double* const* targets, std::size_t count);

template <std::size_t N>
void ScanDoubles(const AString& text, const std::array<double*, N>& targets) {
  ScanDoubles(text, targets.data(), N);
}

// Cut towards zero; beyond the range the nearest value, not a number becomes 0.
int TruncateToInt(double value);

// Rounded; beyond the range the largest finite value of that sign. Infinities and NaN stay.
float NarrowToFloat(double value);
