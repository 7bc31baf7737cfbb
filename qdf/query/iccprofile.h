#pragma once

// Whether a list of profiles allows a profile.

#include <vector>

#include "qdf/support/astring.h"
#include "qdf/support/export.h"

// 1 when the list is empty, names the profile or names "ALL", all ignoring case; else 0.
extern "C" APMQDF_EXPORT int PMIccProfileIsInList(const AString& profile,
                                                  std::vector<AString>& list);
