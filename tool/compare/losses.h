#pragma once

// What the written form of a document no longer holds.

#include "tool/compare/comparison.h"
#include "tool/report.h"

// A row for each kind of difference between a document and what was written of it: what it is, how
// often there is one, and the first. Empty when the written form holds all.
List LossRows(const Comparison& comparison);
