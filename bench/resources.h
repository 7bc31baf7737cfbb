#pragma once

// HP resources of printers that don't exist, as many as wanted, as records and as files.

#include <memory>
#include <string>

#include "qdf/hpimport/hpresource.h"
#include "qdf/support/ownership.h"

// How media, qualities and folders share out the resources.
enum class ResourceShape {
  Square,       // a hundred qualities for each media
  OwnMedia,     // each resource is the only one of its media
  OneMedia,     // all are qualities of one media, with resolutions and profiles of their own
  OneFolder,    // all lie in one folder, with names that differ in case
  ManyFolders,  // as in a square, each media six folders deeper down
};

using Resources = OwnedItems<HPResourceInfo>;

// The resource with that number, 0 to 16,383, as it is read from its file.
std::unique_ptr<HPResourceInfo> MakeResource(ResourceShape shape, int number);

// The first `count` resources.
void MakeResources(ResourceShape shape, int count, Resources& resources);

// Their files below the folder.
void WriteResources(ResourceShape shape, int count, const std::string& folder);
