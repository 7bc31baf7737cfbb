#include "qdf/hpimport/discovery.h"

#include <string>

#include "qdf/hpimport/resourcefile.h"
#include "qdf/hpimport/resourcename.h"
#include "qdf/support/folderwalk.h"
#include "qdf/support/nothrow.h"

bool CollectHPResources(const AString& folder, APtrArray& records) {
  FolderWalk walk(OpenFolder(folder), static_cast<const char*>(folder));
  while (walk.Next()) {
    if (walk.Entry().kind != EntryKind::File) continue;
    const auto name = FindResourceName(walk.Path());
    if (name) LoadHPResourceFile(walk.Folder(), records, *name);
  }
  return !walk.HasLostItsWay();
}

void PMGetHPRecursive(AString folder, APtrArray& records) {
  OrOnNoMemory(false, [&] { return CollectHPResources(folder, records); });
}
