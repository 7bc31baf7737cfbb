#include "qdf/support/directorysearch.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <memory>

#include "qdf/support/lackofmeans.h"
#include "qdf/support/text.h"

namespace {

constexpr int kFolderFlags = O_RDONLY | O_DIRECTORY | O_CLOEXEC;

struct CloseSearch {
  void operator()(DIR* search) const { closedir(search); }
};
using Search = std::unique_ptr<DIR, CloseSearch>;

Descriptor OpenAt(int parent, const char* path, int flags) {
  int number = 0;
  do {
    number = openat(parent, path, flags);
  } while (number < 0 && errno == EINTR);
  if (number < 0) ThrowIfWithoutMeans();
  return Descriptor(number);
}

// A search of its own: the folder's descriptor stays as it is.
Search OpenSearch(const Descriptor& folder) {
  Descriptor own = OpenAt(folder.Number(), ".", kFolderFlags);
  if (!own.IsOpen()) return nullptr;
  Search search(fdopendir(own.Number()));
  if (search == nullptr) ThrowIfWithoutMeans();
  if (search != nullptr) own.Release();
  return search;
}

bool IsDots(const char* name) {
  return std::strcmp(name, ".") == 0 || std::strcmp(name, "..") == 0;
}

EntryKind KindOf(const Descriptor& folder, const dirent& entry) {
  if (entry.d_type == DT_DIR) return EntryKind::Folder;
  if (entry.d_type == DT_REG) return EntryKind::File;
  if (entry.d_type != DT_UNKNOWN) return EntryKind::Other;
  struct stat status {};
  if (fstatat(folder.Number(), entry.d_name, &status, AT_SYMLINK_NOFOLLOW) != 0) {
    ThrowIfWithoutMeans();
    return EntryKind::Other;
  }
  if (S_ISDIR(status.st_mode)) return EntryKind::Folder;
  return S_ISREG(status.st_mode) ? EntryKind::File : EntryKind::Other;
}

}  // namespace

bool ComesBefore(std::string_view a, std::string_view b) {
  const auto less = [](char x, char y) {
    return static_cast<unsigned char>(UpperChar(x)) < static_cast<unsigned char>(UpperChar(y));
  };
  if (std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(), less)) return true;
  return EqualNoCase(a, b) && a < b;
}

Descriptor OpenFolder(const char* path) { return OpenAt(AT_FDCWD, path, kFolderFlags); }

Descriptor OpenSubfolder(const Descriptor& parent, const char* name) {
  return OpenAt(parent.Number(), name, kFolderFlags | O_NOFOLLOW);
}

bool SearchFolder(const Descriptor& folder, std::vector<DirectoryEntry>& entries) {
  entries.clear();
  const Search search = OpenSearch(folder);
  if (search == nullptr) return false;
  errno = 0;
  while (const dirent* entry = readdir(search.get())) {
    if (!IsDots(entry->d_name)) entries.push_back({entry->d_name, KindOf(folder, *entry)});
    errno = 0;
  }
  if (errno != 0) {
    ThrowIfWithoutMeans();
    entries.clear();
    return false;
  }
  std::sort(entries.begin(), entries.end(), [](const DirectoryEntry& a, const DirectoryEntry& b) {
    return ComesBefore(a.name, b.name);
  });
  return true;
}

bool SearchFolder(const char* path, std::vector<DirectoryEntry>& entries) {
  const Descriptor folder = OpenFolder(path);
  return folder.IsOpen() && SearchFolder(folder, entries);
}

bool RemoveEntry(const Descriptor& parent, const char* name, EntryKind kind) {
  return unlinkat(parent.Number(), name, kind == EntryKind::Folder ? AT_REMOVEDIR : 0) == 0;
}
