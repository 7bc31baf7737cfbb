#pragma once

// FolderWalk goes through all that lies below a folder, whatever its depth: it neither recurses nor
// keeps more than a few folders open. It never leaves the folder, neither through a link nor when
// somebody moves a folder while it is inside.

#include <sys/types.h>

#include <cstddef>
#include <string>
#include <vector>

#include "qdf/support/directorysearch.h"

class FolderWalk {
 public:
  // Begins a walk in an open folder, of which the path is the text that paths of entries begin
  // with. A folder that isn't open or can't be searched holds nothing.
  FolderWalk(Descriptor folder, std::string path);

  // Makes the next entry current, depth first and in the order of a search; a folder comes behind
  // all that it holds. A folder that can't be searched comes like an empty one. False at the end
  // and when the way is lost.
  bool Next();

  // Whether the walk ended before its time: the way back from a folder to its parent is gone,
  // because somebody has moved the folder.
  bool HasLostItsWay() const { return lost_; }

  // Whether the current entry is a folder that can't be searched.
  bool IsUnsearched() const { return unsearched_; }

  // The current entry, its whole path, and the open folder that it lies in.
  const DirectoryEntry& Entry() const;
  const std::string& Path() const { return path_; }
  const Descriptor& Folder() const { return here_; }

 private:
  struct Level {
    dev_t device;
    ino_t inode;
    std::vector<DirectoryEntry> entries;
    std::size_t next;        // the entry behind the current one
    std::size_t pathLength;  // of the folder itself
  };

  bool Enter(Descriptor folder);
  bool Leave();

  Descriptor here_;
  std::string path_;
  std::vector<Level> levels_;
  bool lost_ = false;
  bool unsearched_ = false;
};
