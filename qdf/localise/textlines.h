#pragma once

// What translation tables and custom media files have in common: small text files in the folder
// OutputDrivers, made of lines that a mark splits in two.

#include <cstddef>
#include <functional>
#include <string_view>

#include "qdf/support/afilepath.h"

// Hands out each line with its number, from 1. Of a line of more than 1,023 characters each piece
// of 1,023 counts as a line, under one number. 0 when the file can't be opened.
int ForEachLine(AFilePath& path,
                const std::function<void(std::size_t number, const char* text)>& take);

// Splits at the first mark and trims both sides. False, and the sides left alone, when there is no
// mark or nothing before it.
bool SplitAtFirst(char mark, std::string_view text, std::string_view& before,
                  std::string_view& after);
