#include "qdf/hpimport/removefolder.h"

#include <cerrno>
#include <string>

#include "qdf/support/folderwalk.h"
#include "qdf/support/nothrow.h"
#include "qdf/support/splitpath.h"

Remainder RemoveFolderTreeAndTell(const char* folder) {
  Remainder left;
  const auto remove = [&](const Descriptor& parent, const char* name, EntryKind kind,
                          const std::string& path) {
    if (!RemoveEntry(parent, name, kind) && left.path.empty()) left = {path, errno};
  };
  const SplitPath path = SplitLast(folder);
  const std::string name(path.last);
  const Descriptor parent =
      OpenFolder(path.parent.empty() ? "." : std::string(path.parent).c_str());
  Descriptor top = OpenSubfolder(parent, name.c_str());
  if (!top.IsOpen()) {
    const int error = errno;
    if (error != ENOENT) left = {folder, error};
    return left;
  }
  FolderWalk walk(std::move(top), folder);
  while (walk.Next()) {
    remove(walk.Folder(), walk.Entry().name.c_str(), walk.Entry().kind, walk.Path());
  }
  remove(parent, name.c_str(), EntryKind::Folder, folder);
  return left;
}

void RemoveFolderTree(const char* folder) {
  OrOnNoMemory(false, [&] { return RemoveFolderTreeAndTell(folder).path.empty(); });
}
