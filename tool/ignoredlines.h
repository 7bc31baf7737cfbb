#pragma once

// Lines of a translation table or custom media file that don't count.

#include <string>
#include <string_view>
#include <vector>

#include "qdf/localise/textlines.h"
#include "tool/report.h"

struct IgnoredLine {
  std::size_t number;
  std::string reason;
  std::string text;
};

// The reason, behind what part of a line it is when that is read in pieces.
std::string ReasonIn(const TextLine& line, std::string_view reason);

// Adds the line when it has a fault and isn't blank, and what stands behind a NUL in it.
void AddIgnored(const TextLine& line, const char* fault, std::vector<IgnoredLine>& ignored);

// The field "ignored" of a report.
Field IgnoredField(const char* label, const std::vector<IgnoredLine>& ignored);
