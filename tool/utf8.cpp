#include "tool/utf8.h"

bool ContinuesCharacter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; }

std::size_t CharacterSize(std::string_view text) {
  const auto byte = [&](std::size_t at) { return static_cast<unsigned char>(text[at]); };
  if (byte(0) < 0x80U) return 1;
  const std::size_t size = byte(0) >= 0xF0U ? 4 : byte(0) >= 0xE0U ? 3 : 2;
  if (byte(0) < 0xC2U || byte(0) > 0xF4U || text.size() < size) return 0;
  for (std::size_t i = 1; i < size; ++i) {
    if (!ContinuesCharacter(text[i])) return 0;
  }
  // Spelled longer than need be, half of a pair, or beyond the last character.
  const unsigned int start = (unsigned{byte(0)} << 8U) | byte(1);
  const bool isWrong = (start >= 0xE080U && start < 0xE0A0U) ||
                       (start >= 0xEDA0U && start < 0xEE00U) ||
                       (start >= 0xF080U && start < 0xF090U) || start >= 0xF490U;
  return isWrong ? 0 : size;
}

std::string Shortened(std::string_view text, std::size_t most) {
  if (text.size() <= most) return std::string(text);
  constexpr std::size_t kLargest = 4;  // bytes of a character
  std::size_t end = most;
  while (end + kLargest > most && end > 0 && ContinuesCharacter(text[end])) --end;
  return std::string(text.substr(0, end)) + "...";
}
