#pragma once

// Values as a document spells them, and whether they are what the reader makes of them.

#include <cstddef>
#include <string>
#include <string_view>

#include "tool/check/findings.h"

namespace check {

// The text of an element or attribute that is there.
struct Given {
  Element element;  // that holds or is it
  std::string name;
  std::string text;
  Place place;
};

Given GivenText(const Element& element);
Given GivenAttribute(const Element& element, const Attribute& attribute);

// White space around a number does no harm.
bool IsWholeNumber(std::string_view text);
bool IsNumber(std::string_view text);

// The shortest form of a number.
std::string NumberText(double number);

// Each tells when the text isn't the number that is read from it: a whole one, one that goes into a
// 32-bit field.
void CheckWholeNumber(const Given& given, Findings& findings);
void CheckShortNumber(const Given& given, Findings& findings);

// The same for so many numbers, four at most, between blanks or commas; tells as well when some are
// missing, and answers whether so many are there, numbers or not.
bool CheckNumbers(const Given& given, std::size_t count, Findings& findings);

// The same for "600" and "300x600". False when one of the numbers isn't positive: that is for the
// caller to tell.
bool CheckResolution(const Given& given, Findings& findings);

// Tells when a name is longer than its field or has blanks around it.
void CheckNameFits(const Given& given, std::size_t fieldSize, Findings& findings);
void CheckNameBlanks(const Given& given, Findings& findings);

}  // namespace check
