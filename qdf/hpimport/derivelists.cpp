#include "qdf/hpimport/derivelists.h"

#include <algorithm>
#include <array>
#include <limits>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

#include "qdf/definition/records.h"
#include "qdf/hpimport/hpresource.h"
#include "qdf/hpimport/recordkeys.h"
#include "qdf/support/foreach.h"
#include "qdf/support/ownership.h"
#include "qdf/support/text.h"

namespace {

constexpr std::array<std::string_view, 6> kQualities = {"PREMIUM", "SUPERBEST", "BEST",
                                                        "NORMAL",  "FAST",      "DRAFT"};

int HoldsAny(const APtrArray& list) { return list.GetSize() > 0 ? 1 : 0; }

struct MediaEntry {
  int isCustomizable;
  int id = 0;
};

// Each media once; the entry of a key has the key's number. The records are made when all is known:
// they are so large that each walk over them takes time.
struct Media {
  KeyIndex<MediaKey> keys;
  std::vector<MediaEntry> entries;
};

void CollectMedia(const APtrArray& resources, Media& media) {
  ForEachRecord<HPResourceInfo>(resources, [&](const HPResourceInfo& resource) {
    const std::string_view internalName = FieldPart(resource.MediaName);
    for (int i = 0; i < resource.DisplayNames.GetSize(); ++i) {
      const MediaKey key{internalName, FieldPart(resource.DisplayNames.ElementAt(i))};
      if (!media.keys.FindOrAdd(key).isNew) continue;
      media.entries.push_back({resource.IsCustomizableMedia});
    }
  });
}

// The last id that each kind of media has.
class MediaCounters {
 public:
  int& Of(const MediaEntry& entry) { return entry.isCustomizable != 0 ? customizable_ : plain_; }

 private:
  int plain_ = 0;
  int customizable_ = 10000;
};

void KeepOldIDs(Media& media, const APtrArray& oldMedia, MediaCounters& counters) {
  std::vector<bool> isKept(media.entries.size());
  ForEachRecord<MediaTypeInfo>(oldMedia, [&](const MediaTypeInfo& old) {
    const int found =
        media.keys.Find({FieldText(old.InternalName), FieldText(old.UnlocalizedName)});
    const auto at = static_cast<std::size_t>(found);
    if (found < 0 || isKept[at]) return;  // the first of equal ones counts
    isKept[at] = true;
    media.entries[at].id = old.ID;
    int& counter = counters.Of(media.entries[at]);
    counter = std::max(counter, old.ID);
  });
}

// False when there is no number above the last one.
bool GiveNewIDs(Media& media, MediaCounters& counters) {
  for (MediaEntry& entry : media.entries) {
    if (entry.id != 0) continue;
    int& counter = counters.Of(entry);
    if (counter == std::numeric_limits<int>::max()) return false;
    entry.id = ++counter;
  }
  return true;
}

std::unique_ptr<MediaTypeInfo> MakeRecord(const MediaKey& key, const MediaEntry& entry) {
  auto record = std::make_unique<MediaTypeInfo>();
  record->ID = entry.id;
  SetField(record->InternalName, key.internalName);
  SetField(record->DisplayName, key.unlocalizedName);
  SetField(record->UnlocalizedName, key.unlocalizedName);
  record->IsCustomizableMedia = entry.isCustomizable;
  return record;
}

// Each goes ahead of the first record with a greater id.
void InsertByID(const Media& media, APtrArray& list) {
  std::vector<std::unique_ptr<MediaTypeInfo>> added;
  std::vector<std::pair<int, MediaTypeInfo*>> sorted;
  added.reserve(media.entries.size());
  sorted.reserve(static_cast<std::size_t>(list.GetSize()) + media.entries.size());
  for (int i = 0; i < list.GetSize(); ++i) {
    auto* record = static_cast<MediaTypeInfo*>(list.GetAt(i));
    sorted.emplace_back(record->ID, record);
  }
  for (std::size_t i = 0; i < media.entries.size(); ++i) {
    added.push_back(MakeRecord(media.keys[i], media.entries[i]));
    sorted.emplace_back(media.entries[i].id, added.back().get());
  }
  std::stable_sort(sorted.begin(), sorted.end(),
                   [](const auto& a, const auto& b) { return a.first < b.first; });
  list.SetSize(static_cast<int>(sorted.size()), -1);
  for (int i = 0; i < list.GetSize(); ++i) list[i] = sorted[static_cast<std::size_t>(i)].second;
  // The list's from here on.
  for (auto& record : added) static_cast<void>(record.release());
}

// The position of a quality folder's quality among them, -1 when its name begins with none.
int QualityOf(std::string_view folder) {
  for (std::size_t i = 0; i < kQualities.size(); ++i) {
    if (EqualNoCase(folder.substr(0, kQualities[i].size()), kQualities[i])) {
      return static_cast<int>(i);
    }
  }
  return -1;
}

// Those of each quality, in the order of their first appearance.
using PrintModes = std::array<std::vector<std::unique_ptr<PrintModeInfo>>, kQualities.size()>;

PrintModes CollectPrintModes(const APtrArray& resources) {
  PrintModes printModes;
  KeyIndex<PrintModeKey> known;
  ForEachRecord<HPResourceInfo>(resources, [&](const HPResourceInfo& resource) {
    const std::string_view folder = FieldPart(resource.QualityName);
    const std::string_view name = FieldPart(resource.PrintQuality);
    const int quality = QualityOf(folder);
    if (quality < 0 || !known.FindOrAdd({folder, name}).isNew) return;
    auto record = std::make_unique<PrintModeInfo>();
    SetField(record->InternalName, folder);
    SetField(record->DisplayName, name);
    SetField(record->UnlocalizedName, name);
    printModes[static_cast<std::size_t>(quality)].push_back(std::move(record));
  });
  return printModes;
}

}  // namespace

int DeriveMediaList(APtrArray& resources, APtrArray& mediaList, APtrArray& oldMedia) {
  if (resources.GetSize() == 0) return 0;
  Media media;
  CollectMedia(resources, media);
  MediaCounters counters;
  KeepOldIDs(media, oldMedia, counters);
  if (!GiveNewIDs(media, counters)) return 0;
  InsertByID(media, mediaList);
  return HoldsAny(mediaList);
}

bool IsKnownQuality(const AString& folder) { return QualityOf(FieldPart(folder)) >= 0; }

int DerivePrintModeList(APtrArray& resources, APtrArray& printModeList) {
  if (resources.GetSize() == 0) return 0;
  PrintModes printModes = CollectPrintModes(resources);
  int id = 1;
  for (auto& ofQuality : printModes) {
    for (auto& record : ofQuality) {
      record->ID = id++;
      AddOwned(printModeList, std::move(record));
    }
  }
  return HoldsAny(printModeList);
}

int DeriveResolutionList(APtrArray& resources, APtrArray& resolutionList) {
  if (resources.GetSize() == 0) return 0;
  KeyIndex<ResolutionKey> known;
  ForEachRecord<ResolutionInfo>(resolutionList, [&](const ResolutionInfo& record) {
    known.FindOrAdd({FieldText(record.DisplayName), record.XResolution, record.YResolution});
  });
  int id = 1;
  ForEachRecord<HPResourceInfo>(resources, [&](const HPResourceInfo& resource) {
    const std::string_view name = FieldPart(resource.DisplayResolution);
    if (!known.FindOrAdd({name, resource.InputHRes, resource.InputVRes}).isNew) return;
    auto record = std::make_unique<ResolutionInfo>();
    record->ID = id++;
    SetField(record->DisplayName, name);
    record->XResolution = resource.InputHRes;
    record->YResolution = resource.InputVRes;
    AddOwned(resolutionList, std::move(record));
  });
  return HoldsAny(resolutionList);
}
