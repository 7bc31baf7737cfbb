#pragma once

// HP resources out of short texts, as records and as files, and what is derived from them as short
// texts to compare with a literal.

#include <string>
#include <vector>

#include "qdf/hpimport/hpresource.h"
#include "qdf/support/ownership.h"
#include "tests/documents.h"
#include "tests/files.h"

// A resource that makes a media, a print mode, a resolution and two colour modes; each member may
// be replaced.
struct Resource {
  std::string media = "Glossy";
  std::string quality = "best";
  std::vector<std::string> displayNames = {"Gloss"};
  int customizable = 0;
  std::string printQuality = "Best";
  std::string resolution = "600";
  double x = 600;
  double y = 600;
  std::string format = "KCMY";
  int black = 1;  // depths
  int color = 2;
  std::string profile = "p.icc";
  int algorithm = 1;
  std::string file = "f.xml";
  std::string release = "2.0";
};

using Resources = OwnedItems<HPResourceInfo>;

inline void AddTo(Resources& resources, const Resource& resource) {
  auto record = std::make_unique<HPResourceInfo>();
  record->MediaName = resource.media.c_str();
  for (const std::string& name : resource.displayNames) record->DisplayNames.Add(name.c_str());
  record->IsCustomizableMedia = resource.customizable;
  record->QualityName = resource.quality.c_str();
  record->PrintQuality = resource.printQuality.c_str();
  record->DisplayResolution = resource.resolution.c_str();
  record->InputHRes = resource.x;
  record->InputVRes = resource.y;
  record->InputFormat = resource.format.c_str();
  record->KColorDepth = resource.black;
  record->CColorDepth = resource.color;
  record->OutputICC = resource.profile.c_str();
  record->Algorithm = resource.algorithm;
  record->FileName = resource.file.c_str();
  AddOwned(resources, std::move(record));
}

// The file at its place under the folder; `file` plays no part.
inline std::string WriteResource(const TempFolder& folder, const std::string& top,
                                 const Resource& resource) {
  std::ostringstream xml;
  xml << "<r release='" << resource.release << "' displayResolution='" << resource.resolution
      << "' printQuality='" << resource.printQuality << "' isCustomizableMedia='"
      << resource.customizable << "'>";
  for (const std::string& name : resource.displayNames) {
    xml << "<displayName>" << name << "</displayName>";
  }
  xml << "<fileNames><outputICC>" << resource.profile << "</outputICC></fileNames>"
      << "<halftoningParms algorithm='" << resource.algorithm << "' inputFormat='"
      << resource.format << "' inputHRes='" << resource.x << "' inputVRes='" << resource.y
      << "' KHiFipeLevels='" << (1 << resource.black) << "' CHiFipeLevels='"
      << (1 << resource.color) << "'/></r>";
  const std::string name = Join({resource.media, "_", resource.quality, ".xml"}, "");
  return folder.Write(Join({top, resource.media, resource.quality, name}, "/"), xml.str());
}
