#pragma once

// A folder of HP resources is swept of what isn't of a usable version.

#include "qdf/support/afilepath.h"
#include "qdf/support/export.h"

extern "C" {

// Deletes from the disk, without a word or a way back, each media folder in the folder that isn't
// sound, with all that it holds. A media folder is sound when it holds nothing but sound quality
// folders, at least one. A quality folder is sound when it holds a resource file and no folder, and
// every resource file is well-formed XML with a release of at least 2 and below 3.
//
// The folder itself, plain files in it and its subfolder output_icc, in any case, stay untouched.
// Links are deleted like files, and nothing behind them is; a link is no resource file. What can't
// be deleted stays, and so do the folders around it, while everything else goes. A folder that
// can't be examined for lack of memory or descriptors, or because its path is too long, is spared.
APMQDF_EXPORT void PMCheckHPXMLVersion(AFilePath& folder);

}  // extern "C"
