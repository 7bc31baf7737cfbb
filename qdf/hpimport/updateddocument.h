#pragma once

// The document that an update would write, and why there is none.

#include <memory>

#include "qdf/core/apmqdf.h"
#include "qdf/hpimport/discovery.h"
#include "qdf/support/afilepath.h"
#include "qdf/support/ownership.h"

enum class UpdateFault {
  None,
  NoPreviousDocument,
  TreeChanged,  // somebody moved a folder of the tree meanwhile
  NoResource,
  NoReadableResource,  // there are some, but none can be loaded, or a folder can't be searched
  NoInk,               // in the previous document
  NoMedia,             // no resource has a display name, or no number is left for a new media
  NoPrintMode,         // no quality folder's name begins with a known quality
  NoColorMode,         // no resource has a known ink layout
  NoMemory,
};

struct UpdatedDocument {
  std::unique_ptr<APMQDF> document;  // null unless there is no fault
  UpdateFault fault = UpdateFault::None;
  std::unique_ptr<OwnedItems<HPResourceInfo>> resources;
  std::vector<PassedOver> passedOver{};
};

// Derives a document from the resources in and below the folder and from the previous document,
// which may be null and stays as it is. Touches no file. A lack of memory or descriptors, or a path
// that is too long, throws bad_alloc where it isn't the fault.
UpdatedDocument DeriveUpdatedDocument(APMQDF* previous, const AFilePath& resourceFolder);
