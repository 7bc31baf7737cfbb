#pragma once

// Translates what people read of a document: its display names.

#include "qdf/core/apmqdf.h"
#include "qdf/support/export.h"

extern "C" {

// Replaces each display name for which the document's translation table, a file in OutputDrivers
// under the working folder, has an entry. A key equals a display name with case. Inks, media, print
// modes, resolutions, colour modes, colorants, media sources, margins and media sizes have display
// names; all else stays, so also the unlocalised names and the order of the media.
//
// The table is made of lines "KEY=TRANSLATION", each side of two characters or more and with white
// space around it; an asterisk before the key, a slash before the translation and a colon behind it
// don't belong to the texts, and pairs of hexadecimal digits between "<" and ">" stand for bytes.
// Of two lines with one key the later one counts. Other lines are ignored, and so is one for which
// there is no memory.
//
// The change is in memory only. A second call looks up the translated names, and only loading the
// document again brings the former ones back. Nothing is changed and nothing reported for a null
// document, a document without a table, and a table that is missing, can't be read or has no line
// that counts. The table's name is joined to the folder as it stands: a host that doesn't trust its
// documents tests for a bare file name.
APMQDF_EXPORT void PMLocalizeQDFByTranslationTable(APMQDF* document);

}  // extern "C"
