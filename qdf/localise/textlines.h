#pragma once

// What translation tables and custom media files have in common: small text files in the folder
// OutputDrivers, made of lines that a mark splits in two.

#include <cstddef>
#include <functional>
#include <string_view>

#include "qdf/support/afilepath.h"

// The longest that a line may be, without its end, to be read as one.
inline constexpr std::size_t kLongestLine = 1023;

struct TextLine {
  std::size_t Number;  // from 1
  std::size_t Piece;   // from 1, of a line that is too long; 0 when the line is whole
  const char* Text;    // with its line end, but it ends at a NUL
  std::size_t Length;  // also of what stands behind a NUL, as in the file
};

// Hands out each line of the file. Of one that is too long each piece of kLongestLine characters
// counts as a line, under one number. 0 when the file can't be opened.
int ForEachLine(AFilePath& path, const std::function<void(const TextLine& line)>& take);

// Splits at the first mark and trims both sides. False, and the sides left alone, when there is no
// mark or nothing before it.
bool SplitAtFirst(char mark, std::string_view text, std::string_view& before,
                  std::string_view& after);
