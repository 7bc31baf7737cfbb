#pragma once

// What one document has and another one hasn't, as a report.

#include "tool/compare/comparison.h"
#include "tool/report.h"

// How two documents differ, by rising weight. Ids are no part of what a document means. It is
// unknown when no more is known than that and there are too many combinations to compare.
enum class Difference { kNone, kIDs, kUnknown, kMeaning };

// What people see of what is the same: counts and all media, whose ids hosts keep, or nothing.
enum class Shown { kOverview, kChanges };

// Adds how many entries each list kept, got and lost; these entries by name; the combinations lost
// and won; and what changed for the others. Programs get every entry and every line, people the
// first.
Difference AddChanges(const Comparison& comparison, Shown shown, Object& report);
