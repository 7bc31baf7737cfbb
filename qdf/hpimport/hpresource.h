#pragma once

// HP resources: what HP ships for a printer is a folder tree with one small XML file for each media
// in each print quality. A resource file stands two levels below its media folder and bears the
// names of both folders: Glossy/best/Glossy_best.xml. Whatever else lies in the tree is no
// resource.

#include "qdf/support/aarrays.h"
#include "qdf/support/astring.h"
#include "qdf/support/export.h"

// One resource file. Behind each field stands where it comes from: a folder, or an attribute or
// element of the file. What the file lacks is empty or 0.
struct HPResourceInfo {
  AString MediaName;            // the folder two levels above, in the case of the disk
  AStringArray DisplayNames;    // displayName, each one in file order
  int IsCustomizableMedia = 0;  // isCustomizableMedia
  AString QualityName;          // the folder directly above, in the case of the disk
  AString PrintQuality;         // printQuality; in a folder "superbest" displayResolution follows
  AString DisplayResolution;    // displayResolution
  double InputHRes = 0;         // halftoningParms: inputHRes
  double InputVRes = 0;         // halftoningParms: inputVRes
  AString InputFormat;          // halftoningParms: inputFormat, the ink layout
  int KColorDepth = 0;          // bits of black, from halftoningParms: KHiFipeLevels
  int CColorDepth = 0;          // bits of each colour ink, from halftoningParms: CHiFipeLevels
  AString OutputICC;            // fileNames: outputICC, the profile
  int Algorithm = 0;            // halftoningParms: algorithm, the way of halftoning
  AString FileName;             // of the file itself, with its extension
};

extern "C" {

// Appends an HPResourceInfo for each resource file in and below the folder, which the caller frees.
// The order is the same on every file system: entries of a folder by their upper-cased names, a
// subfolder with all that it holds at its place. The folder itself may be a link; below it links
// are neither followed nor read. A folder or file that can't be read is passed over. When memory or
// descriptors run out, or somebody moves a folder of the tree meanwhile, the records until then are
// all.
//
// Media and quality are names in the text of the path: of a folder inside a media folder give a
// path in which they stand, since none are found in "." there.
APMQDF_EXPORT void PMGetHPRecursive(AString folder, APtrArray& records);

}  // extern "C"
