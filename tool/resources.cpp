// qdf resources: the HP resource files in a folder tree.

#include "qdf/hpimport/discovery.h"
#include "qdf/support/ownership.h"
#include "tool/command.h"
#include "tool/files.h"
#include "tool/resourcefaults.h"

namespace {

Object MakeRow(const HPResourceInfo& resource) {
  List names;
  for (int i = 0; i < resource.DisplayNames.GetSize(); ++i) {
    names.emplace_back(static_cast<const char*>(resource.DisplayNames.ElementAt(i)));
  }
  const auto text = [](const AString& field) { return static_cast<const char*>(field); };
  return {{"media", "Media", text(resource.MediaName)},
          {"displayNames", "Display names", std::move(names)},
          {"isCustomizableMedia", "Customizable", resource.IsCustomizableMedia},
          {"quality", "Quality", text(resource.QualityName)},
          {"printQuality", "Print quality", text(resource.PrintQuality)},
          {"displayResolution", "Resolution", text(resource.DisplayResolution)},
          {"inputHRes", "X", resource.InputHRes},
          {"inputVRes", "Y", resource.InputVRes},
          {"inputFormat", "Inks", text(resource.InputFormat)},
          {"blackDepth", "Black", resource.KColorDepth},
          {"colorDepth", "Colour", resource.CColorDepth},
          {"algorithm", "Algorithm", resource.Algorithm},
          {"profile", "Profile", text(resource.OutputICC)},
          {"file", "File", text(resource.FileName)}};
}

// A path below the resolved folder, as it is below the folder that was given.
AString AsGiven(const AString& path, const std::string& resolved, const std::string& given) {
  return (given + (static_cast<const char*>(path) + resolved.size())).c_str();
}

Answer Resources(const Arguments& arguments) {
  const std::string& folder = arguments.Get("DIR");
  const std::string resolved = ResolveFolder(folder);
  OwnedItems<HPResourceInfo> resources;
  std::vector<PassedOver> passedOver;
  if (!CollectHPResources(resolved.c_str(), resources, passedOver)) {
    throw Failure(kNoAnswer, folder + ": a folder in it was moved while it was searched");
  }
  for (PassedOver& passed : passedOver) passed.path = AsGiven(passed.path, resolved, folder);
  List rows;
  for (int i = 0; i < resources.GetSize(); ++i) {
    rows.emplace_back(MakeRow(*static_cast<const HPResourceInfo*>(resources.GetAt(i))));
  }
  Object report{{"folder", "Folder", folder}, {"resources", "Resources", std::move(rows)}};
  AddResourcesWithoutEffect(resources, passedOver, report);
  return {report};
}

constexpr Option kOptions[] = {
    {"DIR", "", "The folder", true},
};

}  // namespace

const Command kResourcesCommand = {
    "resources",
    "List the HP resource files in a folder tree",
    "A resource file stands at MEDIA/QUALITY/MEDIA_QUALITY.xml. Files and folders that can't be\n"
    "read and resources of which an update has no use are told with the reason. Black and Colour\n"
    "are bits.",
    "qdf resources resources",
    kOptions,
    Resources,
};
