#pragma once

// Brings a printer's QDF document up to date when its HP resources have changed.

#include "qdf/support/afilepath.h"
#include "qdf/support/export.h"

extern "C" {

// Derives the document anew from the resources in and below the folder and writes it to the path.
// What resources don't hold (header texts, inks, media sources, sizes, margins, limits) comes from
// the previous document: the one in the folder OutputDrivers with the file name of the path,
// wherever the path leads. Media that it knows keep their ids; its control tree and its colour
// modes don't survive.
//
// There is no result. The file is touched only when a whole document has been derived: without a
// previous document, a resource, a media, a print mode or a known ink layout nothing happens, nor
// when memory or descriptors run out, when the path of a resource folder is longer than the system
// takes, or when somebody moves a folder of resources meanwhile. A file that is read-only is made
// writable for the length of the write; it then has its former attributes and times again, also
// when the write has failed.
APMQDF_EXPORT void PMUpdateQDF(AFilePath documentPath, AFilePath resourceFolder);

}  // extern "C"
