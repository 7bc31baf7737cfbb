#include "qdf/hpimport/sweep.h"

#include <string>
#include <string_view>
#include <utility>

#include "qdf/hpimport/sweepsteps.h"
#include "qdf/support/folderwalk.h"
#include "qdf/support/nothrow.h"

namespace {

// The parent and the name of a path without trailing separators.
std::pair<std::string, std::string> Split(std::string_view path) {
  while (path.size() > 1 && path.back() == '/') path.remove_suffix(1);
  const std::size_t slash = path.rfind('/');
  if (slash == std::string_view::npos) return {".", std::string(path)};
  return {std::string(path.substr(0, slash + 1)), std::string(path.substr(slash + 1))};
}

}  // namespace

void RemoveFolderTree(const char* folder) {
  OrOnNoMemory(0, [&] {
    const auto [parentPath, name] = Split(folder);
    const Descriptor parent = OpenFolder(parentPath.c_str());
    Descriptor top = OpenSubfolder(parent, name.c_str());
    if (!top.IsOpen()) return 0;
    FolderWalk walk(std::move(top), folder);
    while (walk.Next()) RemoveEntry(walk.Folder(), walk.Entry().name.c_str(), walk.Entry().kind);
    RemoveEntry(parent, name.c_str(), EntryKind::Folder);
    return 1;
  });
}

void PMCheckHPXMLVersion(AFilePath& folder) {
  OrOnNoMemory(0, [&] {
    // One by one, so that a folder that can't be examined for lack of means spares only itself.
    for (const MediaFolder& media : FindMediaFolders(folder)) {
      if (CheckHPFolder(media.path, 1) != 0) RemoveFolderTree(media.path);
    }
    return 1;
  });
}
