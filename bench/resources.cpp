#include "bench/resources.h"

#include <array>
#include <filesystem>
#include <fstream>

namespace {

constexpr int kQualities = 100;

struct Place {
  std::string above;  // the folders above the media folder, each with "/"
  std::string media;
  std::string quality;
  std::string file;
};

std::string Title(const Place& place) { return place.media + "_" + place.quality; }

// A name of 14 letters for each number.
std::string InCaseOf(int number, std::string name) {
  for (std::size_t i = 0; i < name.size(); ++i) {
    if ((number >> i & 1) != 0) name[i] = static_cast<char>(name[i] - 'a' + 'A');
  }
  return name;
}

Place PlaceOf(ResourceShape shape, int number) {
  const std::string all = std::to_string(number);
  Place place{"", "media" + std::to_string(number / kQualities),
              "best" + std::to_string(number % kQualities), ""};
  if (shape == ResourceShape::OwnMedia) {
    place.media = "media" + all;
    place.quality = "best";
  } else if (shape == ResourceShape::OneMedia) {
    place.media = "media";
    place.quality = "best" + all;
  } else if (shape == ResourceShape::OneFolder) {
    place.media = "paperandcanvas";
    place.quality = "best";
    place.file = InCaseOf(number, place.media) + "_" + place.quality + ".xml";
  } else if (shape == ResourceShape::ManyFolders) {
    place.above = "a/b/" + place.media + "/c/d/e/";
  }
  if (place.file.empty()) place.file = Title(place) + ".xml";
  return place;
}

std::string Attribute(const char* name, const std::string& value) {
  return std::string(" ") + name + "=\"" + value + "\"";
}

std::string Element(const char* name, const std::string& value) {
  return std::string("<") + name + ">" + value + "</" + name + ">";
}

std::string TextOf(const HPResourceInfo& resource) {
  const auto text = [](const AString& value) { return std::string(value); };
  const auto levels = [](int depth) { return std::to_string(1 << depth); };
  std::string names;
  for (int i = 0; i < resource.DisplayNames.GetSize(); ++i) {
    names += Element("displayName", text(resource.DisplayNames.ElementAt(i)));
  }
  return "<resource" + Attribute("release", "2.0") +
         Attribute("displayResolution", text(resource.DisplayResolution)) +
         Attribute("printQuality", text(resource.PrintQuality)) + ">" + names +
         Element("fileNames", Element("outputICC", text(resource.OutputICC))) + "<halftoningParms" +
         Attribute("algorithm", std::to_string(resource.Algorithm)) +
         Attribute("inputFormat", text(resource.InputFormat)) +
         Attribute("inputHRes", std::to_string(resource.InputHRes)) +
         Attribute("inputVRes", std::to_string(resource.InputVRes)) +
         Attribute("KHiFipeLevels", levels(resource.KColorDepth)) +
         Attribute("CHiFipeLevels", levels(resource.CColorDepth)) + "/></resource>";
}

}  // namespace

std::unique_ptr<HPResourceInfo> MakeResource(ResourceShape shape, int number) {
  constexpr std::array<int, 3> kResolutions = {300, 600, 1200};
  const bool ownResolution = shape == ResourceShape::OneMedia;
  const Place place = PlaceOf(shape, number);
  const auto kind = static_cast<std::size_t>(number) % kResolutions.size();
  const int resolution = ownResolution ? number + 1 : kResolutions[kind];
  auto resource = std::make_unique<HPResourceInfo>();
  resource->MediaName = place.media.c_str();
  for (const char* name : {"Paper ", "Canvas "}) {
    resource->DisplayNames.Add((name + place.media).c_str());
  }
  resource->QualityName = place.quality.c_str();
  resource->PrintQuality = ("Quality " + place.quality).c_str();
  resource->DisplayResolution = (std::to_string(resolution) + " dpi").c_str();
  resource->InputHRes = resolution;
  resource->InputVRes = resolution;
  resource->InputFormat = number % 2 == 0 ? "KCMY" : "KCcMmY";
  resource->KColorDepth = 1;
  resource->CColorDepth = static_cast<int>(kind) + 1;
  resource->OutputICC = (Title(place) + std::to_string(number) + ".icc").c_str();
  resource->Algorithm = number % 50;
  resource->FileName = place.file.c_str();
  return resource;
}

void MakeResources(ResourceShape shape, int count, Resources& resources) {
  for (int i = 0; i < count; ++i) AddOwned(resources, MakeResource(shape, i));
}

void WriteResources(ResourceShape shape, int count, const std::string& folder) {
  for (int i = 0; i < count; ++i) {
    const Place place = PlaceOf(shape, i);
    const std::string inside = folder + "/" + place.above + place.media + "/" + place.quality;
    std::filesystem::create_directories(inside);
    std::ofstream(inside + "/" + place.file) << TextOf(*MakeResource(shape, i));
  }
}
