#pragma once

// How a colour option is stored in an archive of the host's and read back. What a host has stored
// stays readable: tags are only ever added. docs/archive.md lists them.

#include "qdf/definition/anewcoloropt.h"
#include "qdf/support/aarchive.h"
#include "qdf/support/export.h"

// Writes the whole record as one group. Throws AArchiveException, and leaves the archive as it was,
// when that is open for reading.
APMQDF_EXPORT AArchive& operator<<(AArchive& archive, const ANewColorOpt& option);

// Reads one group into the record. Whatever it holds goes into the fields, and what it lacks makes
// them 0 or empty, but for the curve: without one in the archive the record keeps its own. Texts
// are cut at the size of their field. An archive that is open for writing stays as it is, and holds
// nothing to read.
APMQDF_EXPORT AArchive& operator>>(AArchive& archive, ANewColorOpt& option);
