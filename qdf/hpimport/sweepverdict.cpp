#include "qdf/hpimport/sweepverdict.h"

#include <string_view>

#include "qdf/hpimport/resourcefile.h"
#include "qdf/hpimport/resourcename.h"
#include "qdf/support/directorysearch.h"
#include "qdf/support/lackofmeans.h"
#include "qdf/support/nothrow.h"
#include "qdf/support/numbers.h"
#include "qdf/support/text.h"

namespace {

constexpr int kMediaLevel = 1;

// Profiles of the whole tree; no media.
constexpr std::string_view kProfileFolder = "output_icc";

AString PathIn(const AString& folder, const DirectoryEntry& entry) {
  AFilePath path(folder);
  path += entry.name.c_str();
  return path.GetFullPath();
}

FolderVerdict Fault(FolderFault fault, const AString& path) {
  FolderVerdict verdict;
  verdict.fault = fault;
  verdict.path = path;
  return verdict;
}

FolderVerdict ExamineResource(const AString& file) {
  AFilePath path(file);
  AXMLTree tree("RootElement");
  if (!LoadResourceTree(tree, path)) {
    FolderVerdict verdict = Fault(FolderFault::NotXML, file);
    verdict.xmlFault = tree.loadFault();
    return verdict;
  }
  AXMLTreeNode root;
  tree.getRootNode(root);
  const char* text = tree.attributeText(root, "release");
  const double release = ReadDouble(text);
  if (release >= 2.0 && release < 3.0) return {};
  FolderVerdict verdict = Fault(FolderFault::WrongRelease, file);
  verdict.release = text;
  return verdict;
}

bool IsResource(const DirectoryEntry& entry, const AString& path) {
  if (entry.kind != EntryKind::File || !FindResourceName(View(path))) return false;
  const bool exists = AFilePath(path).exists() != 0;
  if (!exists) ThrowIfWithoutMeans();
  return exists;
}

FolderVerdict ExamineFolder(const AString& folder, int level);

FolderVerdict ExamineEntry(const DirectoryEntry& entry, const AString& path, int level,
                           bool& hasResource) {
  const bool isFolder = entry.kind == EntryKind::Folder;
  if (level == kMediaLevel) {
    return isFolder ? ExamineFolder(path, level + 1) : Fault(FolderFault::FileInMedia, path);
  }
  if (isFolder) return Fault(FolderFault::FolderInQuality, path);
  if (!IsResource(entry, path)) return {};
  hasResource = true;
  return ExamineResource(path);
}

FolderVerdict ExamineFolder(const AString& folder, int level) {
  std::vector<DirectoryEntry> entries;
  if (!SearchFolder(folder, entries)) return Fault(FolderFault::Unsearchable, folder);
  if (entries.empty()) return Fault(FolderFault::Empty, folder);
  bool hasResource = false;
  for (const DirectoryEntry& entry : entries) {
    FolderVerdict verdict = ExamineEntry(entry, PathIn(folder, entry), level, hasResource);
    if (!verdict.IsSound()) return verdict;
  }
  const bool lacksResource = level != kMediaLevel && !hasResource;
  return lacksResource ? Fault(FolderFault::NoResource, folder) : FolderVerdict();
}

FolderVerdict Unexamined(const AString& folder, const char* lack) {
  FolderVerdict verdict = Fault(FolderFault::Unexamined, folder);
  verdict.lack = lack;
  return verdict;
}

}  // namespace

FolderVerdict ExamineHPFolder(const AString& folder, int level) {
  try {
    return ExamineFolder(folder, level);
  } catch (const LackOfMeans& lack) {
    return Unexamined(folder, lack.what());
  } catch (const std::bad_alloc&) {
    return Unexamined(folder, "out of memory");
  }
}

std::vector<MediaFolder> FindMediaFolders(const AFilePath& folder) {
  std::vector<MediaFolder> media;
  std::vector<DirectoryEntry> entries;
  SearchFolder(folder, entries);
  for (const DirectoryEntry& entry : entries) {
    if (entry.kind != EntryKind::Folder || EqualNoCase(entry.name, kProfileFolder)) continue;
    media.push_back({entry.name.c_str(), PathIn(folder.GetFullPath(), entry), {}});
  }
  return media;
}

std::vector<MediaFolder> ExamineMediaFolders(const AFilePath& folder) {
  std::vector<MediaFolder> media = FindMediaFolders(folder);
  for (MediaFolder& each : media) each.verdict = ExamineHPFolder(each.path, kMediaLevel);
  return media;
}

int CheckHPFolder(AString folder, int level) {
  return OrOnNoMemory(0, [&] { return ExamineHPFolder(folder, level).IsUnsound() ? 1 : 0; });
}
