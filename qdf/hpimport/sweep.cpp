#include "qdf/hpimport/sweep.h"

#include <string>

#include "qdf/hpimport/sweepsteps.h"
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

void PMCheckHPXMLVersion(AFilePath& folder) {
  OrOnNoMemory(0, [&] {
    // One by one, so that a folder that can't be examined for lack of means spares only itself.
    for (const MediaFolder& media : FindMediaFolders(folder)) {
      if (CheckHPFolder(media.path, 1) != 0) RemoveFolderTree(media.path);
    }
    return 1;
  });
}
