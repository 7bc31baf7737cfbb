#pragma once

// The order of a document's media.

#include "qdf/support/aarrays.h"

// Sorts MediaTypeInfo records by the bytes of their UnlocalizedName. Customizable media keep their
// positions, and the others are sorted in the positions around them. Media of one name end up in
// the order that an exchange sort leaves, which compares each record with all behind it and
// exchanges the two when the first is greater: that order is part of the answer.
void SortMedia(APtrArray& mediaList);
