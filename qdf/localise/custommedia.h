#pragma once

// CCustomMediaInfoInter holds what a user has set for an output device: display names and ICC
// profiles of media, and a list of ICC profiles. Their place is a small text file in OutputDrivers,
// which a document names (APMQDF::GetCustomMediaFile).
//
// The file is made of lines, in any order and with white space around each part:
//
//   key_Iccprofile=PROFILE
//   key_DisplayName_ForMedia=MEDIUM/DISPLAY NAME
//   key_Iccprofile_ForMedia=MEDIUM/PROFILE
//
// The first "=" and the first "/" split, so a medium's name can hold neither a "/" nor the end of a
// line. Other lines are ignored. Bytes pass through unchanged. A line of more than 1,023 characters
// is read in pieces, each as a line.
//
// An object is used from one thread at a time. Nothing is thrown: out of memory is a result of 0.

#include "qdf/support/aarrays.h"
#include "qdf/support/afilepath.h"
#include "qdf/support/amapstringtoptr.h"
#include "qdf/support/astring.h"
#include "qdf/support/export.h"

// Hosts call through the table of virtual operations: the order of the virtual members is an
// interface and never changes. Media are told apart with case.
class CCustomMediaInfoInter {
 public:
  // An object without entries; reads nothing.
  explicit CCustomMediaInfoInter(AFilePath& path);
  // Saves first, whether or not anything was changed. A save that fails loses the changes; a host
  // that wants to know calls SaveCustomMediaFile itself.
  virtual ~CCustomMediaInfoInter();
  CCustomMediaInfoInter(const CCustomMediaInfoInter&) = delete;
  CCustomMediaInfoInter& operator=(const CCustomMediaInfoInter&) = delete;

  // 1 and the text set for the medium; 0 and an empty text when there is none.
  virtual int GetDisplayNameForMedia(const AString& media, AString& name);
  virtual int GetIccprofileForMedia(const AString& media, AString& profile);

  // Replaces what the array held with the list of profiles; 1 when that isn't empty, else 0. The
  // array is empty when memory runs out.
  virtual int GetIccprofileList(AStringArray& profiles);

  // Replaces what is set for the medium; an empty text removes it. Answers 1. Without memory 0, and
  // nothing is set for the medium any more.
  virtual int SetDisplayNameForMedia(const AString& media, const AString& name);
  virtual int SetIccprofileForMedia(const AString& media, const AString& profile);

  // Appends the profile to the list unless HasIccprofile finds it. Answers 1 in both cases, 0
  // without memory.
  virtual int AddIccprofile(const AString& profile);
  // 1 when the list has the profile, in whatever case, else 0.
  virtual int HasIccprofile(const AString& profile);

  // Adds the lines of the file to what the object holds: profiles behind those that are there, also
  // those that the list has already; texts for media take the place of former ones. 1, also when no
  // file or a folder stands at the path; 0 when the file can't be read. When memory runs out on the
  // way, 0 as well, and the object then holds no entries: half a file would replace the whole one.
  virtual int LoadCustomMediaFile();

  // Replaces the file by what the object holds: the list in its order, then display names, then
  // profiles of media, each in the order in which they were set. 1 when that is done. 0 when it
  // can't be, and a file whose new content finds no room keeps its former one: the text is made in
  // memory and saved as a whole, not through AStdioFile, whose opening empties the file. An object
  // without entries never touches its file, also when the last one was removed, and answers 1.
  virtual int SaveCustomMediaFile();

  // Frees the AString that each key of the map leads to, and empties the map; the object's own
  // state plays no part.
  virtual void ClearStringMap(AMapStringToPtr& map);

 private:
  // Removes all entries.
  void Clear();

  AFilePath CustomMediaPath;
  // To texts on the heap, never empty ones, that this object owns.
  AMapStringToPtr DisplayNameForMedia;
  AMapStringToPtr IccprofileForMedia;
  AStringArray IccprofileList;
};

extern "C" {

// Makes an object for the file of that name in OutputDrivers under the working folder and loads it;
// the caller owns and deletes it. A file that is missing or can't be read gives an object without
// entries. The slot is null for a null or empty name and when memory runs out. The name is joined
// to the folder as it stands: a host that doesn't trust its documents tests for a bare file name.
APMQDF_EXPORT void PMGetCCustomMediaInfoInterFromName(const char* name,
                                                      CCustomMediaInfoInter** media);

}  // extern "C"
