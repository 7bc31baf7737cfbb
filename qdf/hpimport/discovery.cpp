#include "qdf/hpimport/discovery.h"

#include <string>

#include "qdf/hpimport/resourcefile.h"
#include "qdf/hpimport/resourcename.h"
#include "qdf/support/folderwalk.h"
#include "qdf/support/nothrow.h"

bool CollectHPResources(const AString& folder, APtrArray& records,
                        std::vector<PassedOver>& passedOver) {
  FolderWalk walk(OpenFolder(folder), static_cast<const char*>(folder));
  while (walk.Next()) {
    if (walk.IsUnsearched()) passedOver.push_back({walk.Path().c_str(), true, {}});
    if (walk.Entry().kind != EntryKind::File) continue;
    const auto name = FindResourceName(walk.Path());
    if (!name) continue;
    const AXMLFault fault = LoadHPResourceFile(walk.Folder(), records, *name);
    if (fault.Reason.GetLength() > 0) passedOver.push_back({walk.Path().c_str(), false, fault});
  }
  return !walk.HasLostItsWay();
}

void PMGetHPRecursive(AString folder, APtrArray& records) {
  std::vector<PassedOver> passedOver;
  OrOnNoMemory(false, [&] { return CollectHPResources(folder, records, passedOver); });
}
