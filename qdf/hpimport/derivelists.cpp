#include "qdf/hpimport/derivelists.h"

#include <algorithm>
#include <array>
#include <limits>
#include <memory>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "qdf/hpimport/hpresource.h"
#include "qdf/hpimport/records.h"
#include "qdf/support/foreach.h"
#include "qdf/support/ownership.h"
#include "qdf/support/text.h"

namespace {

using Media = std::vector<std::unique_ptr<MediaTypeInfo>>;
using PrintModes = std::vector<std::unique_ptr<PrintModeInfo>>;

constexpr std::array<std::string_view, 6> kQualities = {"PREMIUM", "SUPERBEST", "BEST",
                                                        "NORMAL",  "FAST",      "DRAFT"};

int HoldsAny(const APtrArray& list) { return list.GetSize() > 0 ? 1 : 0; }

Media CollectMedia(const APtrArray& resources) {
  Media media;
  std::unordered_set<std::string> known;
  ForEachRecord<HPResourceInfo>(resources, [&](const HPResourceInfo& resource) {
    const std::string_view internalName = FieldPart(resource.MediaName);
    for (int i = 0; i < resource.DisplayNames.GetSize(); ++i) {
      const std::string_view name = FieldPart(resource.DisplayNames.ElementAt(i));
      if (!known.insert(MediaKey(internalName, name)).second) continue;
      auto record = std::make_unique<MediaTypeInfo>();
      SetField(record->InternalName, internalName);
      SetField(record->DisplayName, name);
      SetField(record->UnlocalizedName, name);
      record->IsCustomizableMedia = resource.IsCustomizableMedia;
      media.push_back(std::move(record));
    }
  });
  return media;
}

std::string KeyOf(const MediaTypeInfo& media) {
  return MediaKey(FieldText(media.InternalName), FieldText(media.UnlocalizedName));
}

// The last id that each kind of media has.
class MediaCounters {
 public:
  int& Of(const MediaTypeInfo& media) {
    return media.IsCustomizableMedia != 0 ? customizable_ : plain_;
  }

 private:
  int plain_ = 0;
  int customizable_ = 10000;
};

void KeepOldIDs(const Media& media, const APtrArray& oldMedia, MediaCounters& counters) {
  std::unordered_map<std::string, int> oldIDs;
  ForEachRecord<MediaTypeInfo>(oldMedia, [&](const MediaTypeInfo& old) {
    oldIDs.try_emplace(KeyOf(old), old.ID);  // the first one stays
  });
  for (const auto& record : media) {
    const auto old = oldIDs.find(KeyOf(*record));
    if (old == oldIDs.end()) continue;
    record->ID = old->second;
    int& counter = counters.Of(*record);
    counter = std::max(counter, record->ID);
  }
}

// False when there is no number above the last one.
bool GiveNewIDs(const Media& media, MediaCounters& counters) {
  for (const auto& record : media) {
    if (record->ID != 0) continue;
    int& counter = counters.Of(*record);
    if (counter == std::numeric_limits<int>::max()) return false;
    record->ID = ++counter;
  }
  return true;
}

// Each goes ahead of the first record with a greater id.
void InsertByID(Media media, APtrArray& list) {
  std::vector<MediaTypeInfo*> sorted;
  sorted.reserve(static_cast<std::size_t>(list.GetSize()) + media.size());
  for (int i = 0; i < list.GetSize(); ++i) {
    sorted.push_back(static_cast<MediaTypeInfo*>(list.GetAt(i)));
  }
  for (const auto& record : media) sorted.push_back(record.get());
  std::stable_sort(sorted.begin(), sorted.end(),
                   [](const auto* a, const auto* b) { return a->ID < b->ID; });
  list.SetSize(static_cast<int>(sorted.size()), -1);
  for (int i = 0; i < list.GetSize(); ++i) list[i] = sorted[static_cast<std::size_t>(i)];
  for (auto& record : media) static_cast<void>(record.release());  // the list's from here on
}

PrintModes CollectPrintModes(const APtrArray& resources) {
  PrintModes printModes;
  std::unordered_set<std::string> known;
  ForEachRecord<HPResourceInfo>(resources, [&](const HPResourceInfo& resource) {
    const std::string_view quality = FieldPart(resource.QualityName);
    const std::string_view name = FieldPart(resource.PrintQuality);
    if (!known.insert(PrintModeKey(quality, name)).second) return;
    auto record = std::make_unique<PrintModeInfo>();
    SetField(record->InternalName, quality);
    SetField(record->DisplayName, name);
    SetField(record->UnlocalizedName, name);
    printModes.push_back(std::move(record));
  });
  return printModes;
}

bool IsOfQuality(const PrintModeInfo& printMode, std::string_view quality) {
  return EqualNoCase(FieldText(printMode.InternalName).substr(0, quality.size()), quality);
}

}  // namespace

int DeriveMediaList(APtrArray& resources, APtrArray& mediaList, APtrArray& oldMedia) {
  if (resources.GetSize() == 0) return 0;
  Media media = CollectMedia(resources);
  MediaCounters counters;
  KeepOldIDs(media, oldMedia, counters);
  if (!GiveNewIDs(media, counters)) return 0;
  InsertByID(std::move(media), mediaList);
  return HoldsAny(mediaList);
}

int DerivePrintModeList(APtrArray& resources, APtrArray& printModeList) {
  if (resources.GetSize() == 0) return 0;
  PrintModes printModes = CollectPrintModes(resources);
  int id = 1;
  for (const std::string_view quality : kQualities) {
    for (auto& record : printModes) {
      if (record == nullptr || !IsOfQuality(*record, quality)) continue;
      record->ID = id++;
      AddOwned(printModeList, std::move(record));
    }
  }
  return HoldsAny(printModeList);
}

int DeriveResolutionList(APtrArray& resources, APtrArray& resolutionList) {
  if (resources.GetSize() == 0) return 0;
  std::unordered_set<std::string> known;
  ForEachRecord<ResolutionInfo>(resolutionList, [&](const ResolutionInfo& record) {
    known.insert(
        ResolutionKey(FieldText(record.DisplayName), record.XResolution, record.YResolution));
  });
  int id = 1;
  ForEachRecord<HPResourceInfo>(resources, [&](const HPResourceInfo& resource) {
    const std::string_view name = FieldPart(resource.DisplayResolution);
    const std::string key = ResolutionKey(name, resource.InputHRes, resource.InputVRes);
    if (!key.empty() && !known.insert(key).second) return;
    auto record = std::make_unique<ResolutionInfo>();
    record->ID = id++;
    SetField(record->DisplayName, name);
    record->XResolution = resource.InputHRes;
    record->YResolution = resource.InputVRes;
    AddOwned(resolutionList, std::move(record));
  });
  return HoldsAny(resolutionList);
}
