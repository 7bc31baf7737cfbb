#pragma once

// Texts out of documents and arguments, made fit for a terminal.

#include <string>
#include <string_view>

struct Printable {
  std::string text;
  int columns = 0;  // that the text takes on a terminal
};

// What can't be shown is written as \xNN, byte by byte: control characters, bytes that are no
// UTF-8, and characters that turn the direction of writing.
Printable MakePrintable(std::string_view text);

// The text in quotation marks, for messages, cut behind about 100 bytes. It isn't made printable:
// messages are as a whole.
std::string Quoted(std::string_view text);
