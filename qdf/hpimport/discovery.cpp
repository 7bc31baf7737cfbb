#include <string>
#include <utility>

#include "qdf/hpimport/hpresource.h"
#include "qdf/hpimport/resourcefile.h"
#include "qdf/hpimport/resourcename.h"
#include "qdf/support/folderwalk.h"
#include "qdf/support/nothrow.h"

namespace {

AString Text(std::string_view text) { return AString(std::string(text).c_str()); }

void LoadIfResource(const std::string& path, APtrArray& records) {
  const auto name = FindResourceName(path);
  if (!name) return;
  AFilePath file(path.c_str());
  LoadHPResourceFile(file, records, Text(name->media), Text(name->quality), Text(name->file));
}

}  // namespace

void CollectHPResources(const AString& folder, APtrArray& records) {
  FolderWalk walk(OpenFolder(folder), static_cast<const char*>(folder));
  while (walk.Next()) {
    if (walk.Entry().kind == EntryKind::File) LoadIfResource(walk.Path(), records);
  }
}

void PMGetHPRecursive(AString folder, APtrArray& records) {
  OrOnNoMemory(0, [&] {
    CollectHPResources(folder, records);
    return 1;
  });
}
