#include "qdf/hpimport/removefolder.h"

#include <string>

#include "qdf/support/folderwalk.h"
#include "qdf/support/nothrow.h"
#include "qdf/support/splitpath.h"

void RemoveFolderTree(const char* folder) {
  OrOnNoMemory(0, [&] {
    const SplitPath path = SplitLast(folder);
    const std::string name(path.last);
    const Descriptor parent =
        OpenFolder(path.parent.empty() ? "." : std::string(path.parent).c_str());
    Descriptor top = OpenSubfolder(parent, name.c_str());
    if (!top.IsOpen()) return 0;
    FolderWalk walk(std::move(top), folder);
    while (walk.Next()) RemoveEntry(walk.Folder(), walk.Entry().name.c_str(), walk.Entry().kind);
    RemoveEntry(parent, name.c_str(), EntryKind::Folder);
    return 1;
  });
}
