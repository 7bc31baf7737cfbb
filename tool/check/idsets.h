#pragma once

// Sets of ids and defaults, as both trees spell them.

#include <string>
#include <vector>

#include "tool/check/facts.h"
#include "tool/check/findings.h"

namespace check {

// Whose ids an attribute names.
struct IDSetUse {
  Element element;
  const char* attribute;
  ListKind kind;
  const KeptList& list;
};

// The ids that the reader takes from the attribute. Tells what is wrong with them unless there are
// none at all: what that means is for the caller to tell.
ADWordArray CheckIDs(const IDSetUse& use, Findings& findings);

// Why there are none: `its ID "9" names no medium of MediaList`.
std::string WhyNoIDs(const IDSetUse& use);

// Tells when the default that the attribute names isn't among the ids of the nodes below.
void CheckDefault(const IDSetUse& use, const std::vector<ElementNode>& below, Findings& findings);

// Tells that the element vanishes with all under it.
void TellNoIDs(const IDSetUse& use, Findings& findings);

// "media", "print modes".
std::string Plural(ListKind kind);

// `medium 3 ("Matte")`.
std::string Describe(ListKind kind, const KeptList& list, int id);

}  // namespace check
