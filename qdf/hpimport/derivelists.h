#pragma once

// Media, print modes and resolutions of a document, derived from HPResourceInfo records. Each
// operation appends records to a list, which owns them from then on; a display name becomes the
// unlocalised name too. The result is 0 without resources, and else 1 exactly when the list holds a
// record. When memory runs out, bad_alloc passes through, and what was appended stays.

#include "qdf/support/aarrays.h"
#include "qdf/support/astring.h"

// A media for each pair of a media folder and one of its display names; it is customisable when the
// first resource of the pair says so. A media that the old list of MediaTypeInfo knows by both
// names, the unlocalised one, keeps its id. The others are numbered on, plain ones from 1 and
// customisable ones from 10001, but above all ids that media of their kind have kept. The list is
// left in ascending order of id. When the numbers run out, nothing is appended and the result is 0.
int DeriveMediaList(APtrArray& resources, APtrArray& mediaList, APtrArray& oldMedia);

// A print mode for each pair of a quality folder, ignoring case, and a print quality. They are
// numbered from 1, best quality first: folders whose names begin with premium, superbest, best,
// normal, fast, draft, and within one quality by their first appearance. Others are left out.
int DerivePrintModeList(APtrArray& resources, APtrArray& printModeList);

// Whether the name of a quality folder begins with one of those six.
bool IsKnownQuality(const AString& folder);

// A resolution for each display name with its two numbers, which must be equal exactly; numbered
// from 1 by first appearance.
int DeriveResolutionList(APtrArray& resources, APtrArray& resolutionList);
