#include "tool/enumerate.h"

std::string Enumerate(const std::vector<std::string>& words, const std::string& joint,
                      std::size_t most) {
  std::string text;
  for (std::size_t i = 0; i < words.size() && i < most; ++i) {
    const bool isLast = i + 1 == words.size();
    text += (i == 0 ? "" : isLast ? ' ' + joint + ' ' : ", ") + words[i];
  }
  if (words.size() <= most) return text;
  return text + ' ' + joint + ' ' + std::to_string(words.size() - most) + " more";
}
