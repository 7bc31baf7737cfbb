#pragma once

// The values of a report within a line of text.

#include <string>

#include "tool/report.h"

inline const Object* AsObject(const Value& value) { return std::get_if<Object>(&value.data); }
inline const List* AsList(const Value& value) { return std::get_if<List>(&value.data); }

// What people see of a value: all of a text, whatever bytes it holds, the first entries of a list.
std::string LineText(const Value& value);
