#pragma once

// The translation table: a text file of lines "key=value", where the key is a display name of a
// document and the value what replaces it. The localiser and whoever explains a table read its
// lines through the same operation.
//
// Keys and values count without the white space around them. A key may be written with an asterisk
// before it, a value with a slash before and a colon behind it; none of these belongs to the text.

#include <functional>

#include "qdf/localise/textlines.h"
#include "qdf/support/afilepath.h"
#include "qdf/support/astring.h"

struct TranslationPair {
  AString Key;
  AString Translation;
};

struct TableLine {
  TextLine Line;
  const char* Fault;     // null when the line counts, otherwise why it doesn't, in a few words
  TranslationPair Pair;  // empty when the line doesn't count
};

// Hands out each line of the file in order. Of two lines with one key the later one counts. 0 when
// the file can't be read.
int ReadTranslationTable(AFilePath& path, const std::function<void(const TableLine& line)>& take);

// Reads one line. Answers null and the pair when the line counts, otherwise why it doesn't, and
// leaves the pair alone.
const char* ReadTableLine(const char* line, TranslationPair& pair);

// Replaces each run between "<" and ">" by the bytes that its pairs of hexadecimal digits stand
// for; blanks in a run stay. What is no digit counts as 0. A run that the text's end cuts off loses
// a single digit at its end, and a byte of 0 ends the text.
void DecodeHexRuns(AString& text);
