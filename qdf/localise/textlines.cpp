#include "qdf/localise/textlines.h"

#include <array>

#include "qdf/support/afile.h"
#include "qdf/support/text.h"

int ForEachLine(AFilePath& path, const std::function<void(const TextLine& line)>& take) {
  constexpr unsigned int kCapacity = kLongestLine + 1;
  AStdioFile file;
  if (file.Open(path, AFile::kRead, nullptr, AFile::kAnyFile) == 0) return 0;
  std::array<char, kCapacity> line{};
  std::size_t piece = 0;
  while (file.ReadString(line.data(), kCapacity) != nullptr) {
    const bool goesOn = file.LineGoesOn();
    if (goesOn || piece > 0) ++piece;
    take({file.GetLineNumber(), piece, line.data(), file.GetLength()});
    if (!goesOn) piece = 0;
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
