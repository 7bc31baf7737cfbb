#pragma once

// Characters of UTF-8 by their bytes.

#include <cstddef>
#include <string>
#include <string_view>

// Whether the byte stands within a character and doesn't begin one.
bool ContinuesCharacter(char byte);

// The bytes of the character that the text, which isn't empty, begins with; 0 when there is none.
std::size_t CharacterSize(std::string_view text);

// The text, or its first characters and "..." when it has more than so many bytes.
std::string Shortened(std::string_view text, std::size_t most);
