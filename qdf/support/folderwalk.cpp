#include "qdf/support/folderwalk.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <utility>

FolderWalk::FolderWalk(Descriptor folder, std::string path) : path_(std::move(path)) {
  Enter(std::move(folder));
}

bool FolderWalk::Enter(Descriptor folder) {
  struct stat status {};
  if (!folder.IsOpen() || fstat(folder.Number(), &status) != 0) return false;
  // Without the right to pass through a folder there is no way back, and nothing in it is in reach.
  struct stat parent {};
  if (!levels_.empty() &&
      (fstatat(folder.Number(), "..", &parent, 0) != 0 || parent.st_dev != levels_.back().device ||
       parent.st_ino != levels_.back().inode)) {
    return false;
  }
  Level level{status.st_dev, status.st_ino, {}, 0, path_.size()};
  if (!SearchFolder(folder, level.entries)) return false;
  levels_.push_back(std::move(level));
  here_ = std::move(folder);
  return true;
}

bool FolderWalk::Leave() {
  levels_.pop_back();
  if (levels_.empty()) return false;
  here_ = OpenSubfolder(here_, "..");
  struct stat status {};
  const Level& level = levels_.back();
  const bool back = here_.IsOpen() && fstat(here_.Number(), &status) == 0 &&
                    status.st_dev == level.device && status.st_ino == level.inode;
  if (!back) {
    lost_ = true;
    levels_.clear();
  }
  return back;
}

bool FolderWalk::Next() {
  unsearched_ = false;
  while (!levels_.empty()) {
    Level& level = levels_.back();
    path_.resize(level.pathLength);
    const bool done = level.next == level.entries.size();
    if (done && !Leave()) return false;
    if (done) return true;  // the folder that was left is its parent's current entry
    const DirectoryEntry& entry = level.entries[level.next++];
    if (!path_.empty() && path_.back() != '/') path_ += '/';
    path_ += entry.name;
    if (entry.kind != EntryKind::Folder) return true;
    unsearched_ = !Enter(OpenSubfolder(here_, entry.name.c_str()));
    if (unsearched_) return true;
  }
  return false;
}

const DirectoryEntry& FolderWalk::Entry() const {
  const Level& level = levels_.back();
  return level.entries[level.next - 1];
}
