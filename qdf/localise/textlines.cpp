#include "qdf/localise/textlines.h"

#include <array>

#include "qdf/support/afile.h"
#include "qdf/support/text.h"

int ForEachLine(AFilePath& path,
                const std::function<void(std::size_t number, const char* text)>& take) {
  constexpr unsigned int kCapacity = 1024;
  AStdioFile file;
  if (file.Open(path, AFile::kRead, nullptr, AFile::kAnyFile) == 0) return 0;
  std::array<char, kCapacity> line{};
  while (file.ReadString(line.data(), kCapacity) != nullptr) {
    take(file.GetLineNumber(), line.data());
  }
  file.Close();
  return 1;
}

bool SplitAtFirst(char mark, std::string_view text, std::string_view& before,
                  std::string_view& after) {
  const std::size_t at = text.find(mark);
  if (at == std::string_view::npos || at == 0) return false;
  before = Trimmed(text.substr(0, at));
  after = Trimmed(text.substr(at + 1));
  return true;
}
