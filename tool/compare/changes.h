#pragma once

// What one document has and another one hasn't, as a report.

#include "tool/compare/comparison.h"
#include "tool/report.h"

// Adds how many entries each list kept, got and lost; these entries by name, and all media, since
// hosts keep their ids; the combinations lost and won; and what changed for the others. Programs
// get every entry and every line, people the first.
void AddChanges(const Comparison& comparison, Object& report);
