#pragma once

// The rules, in families. Each looks at one kind of thing in a document that is well formed and
// adds what it finds. Those behind the lists need what the lists keep.

#include <string>

#include "tool/check/facts.h"
#include "tool/check/findings.h"

namespace check {

// Elements, attributes and texts that nobody reads.
void CheckStructure(const XMLView& document, Findings& findings);

// All that the reader keeps, and what it drops on the way: the next three in turn. The sections
// behind the lists aren't looked at when the lists are refused.
Kept CheckKept(const XMLView& document, Findings& findings);

// The entries of Definition's lists and its other values. Answers what the reader keeps of them.
Lists CheckLists(const XMLView& document, Findings& findings);

// Each examines one of the two sections and answers the root of the nodes that the reader makes.
//
// Control_Definition down to the colour modes.
ElementNode CheckControl(const XMLView& document, const Lists& lists, Findings& findings);

ElementNode CheckMediaSources(const XMLView& document, const Lists& lists, Findings& findings);

// What stands under the colour modes.
void CheckColorModes(const ElementNode& control, Findings& findings);

// Which elements of Control_Definition a search can reach and which options are listed.
void CheckReach(const ElementNode& control, const Lists& lists, Findings& findings);

// Entries that no element of the two sections uses.
void CheckUse(const Kept& kept, Findings& findings);

// What is lost when the library writes the document.
void CheckWriteLoss(const XMLView& document, const Kept& kept, Findings& findings);

// The files that the document names, which lie in the folder of the document.
void CheckHostFiles(const XMLView& document, const std::string& documentPath, Findings& findings);

}  // namespace check
