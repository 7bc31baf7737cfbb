#pragma once

// What a sweep finds in a folder of HP resources, and why it would delete a part of it.

#include <vector>

#include "qdf/support/afilepath.h"
#include "qdf/support/astring.h"
#include "qdf/support/axmltree.h"

enum class FolderFault {
  None,
  Unsearchable,  // it is no folder or can't be read
  Empty,         // nothing lies in it
  FileInMedia,   // a media folder holds something that is no folder
  FolderInQuality,
  NoResource,    // a quality folder holds no resource file; a link is none
  NotXML,        // a resource file can't be read or isn't well formed
  WrongRelease,  // its release is missing, below 2, or 3 and more
  Unexamined,    // no fault of the folder: memory or descriptors ran out, or a path is too long
};

// What is wrong with a folder: the first fault, in the order of a search, ends its examination.
struct FolderVerdict {
  FolderFault fault = FolderFault::None;
  AString path;        // of the folder or file that gave the fault, empty without one
  AXMLFault xmlFault;  // of a file that is NotXML
  AString release;     // of a file with the WrongRelease, as it stands there
  AString lack;        // what was missing to examine an Unexamined folder

  // A folder that wasn't examined is neither.
  bool IsSound() const { return fault == FolderFault::None; }
  bool IsUnsound() const { return !IsSound() && fault != FolderFault::Unexamined; }
};

struct MediaFolder {
  AString name;
  AString path;
  FolderVerdict verdict;
};

// The media folders that a sweep of the folder examines, in the order of a search, not yet
// examined. None when the folder can't be searched. A lack of memory or descriptors, or a path that
// is too long, throws bad_alloc.
std::vector<MediaFolder> FindMediaFolders(const AFilePath& folder);

// The same with what a sweep finds in them. Changes nothing.
std::vector<MediaFolder> ExamineMediaFolders(const AFilePath& folder);

// Level 1 means a media folder, and level 2 a quality folder. Where FindMediaFolders throws, the
// folder is Unexamined, as one that lies too deep is: the others have their verdicts all the same.
FolderVerdict ExamineHPFolder(const AString& folder, int level);

// 1 when the folder is unsound, else 0, so that nothing is deleted that nobody could look at.
int CheckHPFolder(AString folder, int level);
