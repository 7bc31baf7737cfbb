#pragma once

// How the derivation finds a record again. Names count with
// their first 256 characters, as many as the fields of a record hold.

#include <string>
#include <string_view>

#include "qdf/definition/records.h"
#include "qdf/support/astring.h"

// As much of a text as a name field holds.
std::string_view FieldPart(const AString& text);

// Keys are equal exactly when the records count as the same one.

std::string MediaKey(std::string_view internalName, std::string_view unlocalizedName);

// The quality's name counts without its case.
std::string PrintModeKey(std::string_view internalName, std::string_view displayName);

// Empty, and never the key of another, when a number isn't one: such a number equals nothing.
std::string ResolutionKey(std::string_view displayName, double x, double y);
