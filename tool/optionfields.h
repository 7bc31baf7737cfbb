#pragma once

// The fields of a colour option, each by itself.

#include <span>
#include <vector>

#include "qdf/definition/anewcoloropt.h"
#include "tool/report.h"

struct OptionField {
  const char* key;
  const char* label;
  bool isSetting;  // which the library keeps without looking at it; no document has it
  Value (*read)(const ANewColorOpt& option);
  void (*copy)(ANewColorOpt& to, const ANewColorOpt& from);
};

// All but the curve.
extern const std::span<const OptionField> kOptionFields;

// Adds the curve to a row, for programs.
void AddCurve(const ANewColorOpt& option, Object& row);

// Every field of the record.
Object MakeOptionRow(int number, const ANewColorOpt& option);

struct OptionDifference {
  const char* key;
  std::string label;
  Value point;  // of the curve
  Value first;
  Value second;
  bool requiresRip;  // by itself; the library decides
};

// Field by field, and point by point of the curve.
std::vector<OptionDifference> CompareOptions(const ANewColorOpt& first, const ANewColorOpt& second);
