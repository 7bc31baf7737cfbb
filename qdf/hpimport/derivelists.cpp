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

using MediaRecords = std::vector<std::unique_ptr<MediaTypeInfo>>;

// Each media once; the record of a key has the key's number.
struct Media {
  KeyIndex<MediaKey> keys;
  MediaRecords records;
};

std::unique_ptr<MediaTypeInfo> MakeMedia(const MediaKey& key, int isCustomizable) {
  auto record = std::make_unique<MediaTypeInfo>();
  SetField(record->InternalName, key.internalName);
  SetField(record->DisplayName, key.unlocalizedName);
  SetField(record->UnlocalizedName, key.unlocalizedName);
  record->IsCustomizableMedia = isCustomizable;
  return record;
}

void CollectMedia(const APtrArray& resources, Media& media) {
  ForEachRecord<HPResourceInfo>(resources, [&](const HPResourceInfo& resource) {
    const std::string_view internalName = FieldPart(resource.MediaName);
    for (int i = 0; i < resource.DisplayNames.GetSize(); ++i) {
      const MediaKey key{internalName, FieldPart(resource.DisplayNames.ElementAt(i))};
      if (!media.keys.FindOrAdd(key).isNew) continue;
      media.records.push_back(MakeMedia(key, resource.IsCustomizableMedia));
    }
  });
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
  std::vector<bool> isKept(media.records.size());
  ForEachRecord<MediaTypeInfo>(oldMedia, [&](const MediaTypeInfo& old) {
    const int found =
        media.keys.Find({FieldText(old.InternalName), FieldText(old.UnlocalizedName)});
    const auto at = static_cast<std::size_t>(found);
    if (found < 0 || isKept[at]) return;  // the first of equal ones counts
    isKept[at] = true;
    media.records[at]->ID = old.ID;
    int& counter = counters.Of(*media.records[at]);
    counter = std::max(counter, old.ID);
  });
}

// False when there is no number above the last one.
bool GiveNewIDs(const MediaRecords& media, MediaCounters& counters) {
  for (const auto& record : media) {
    if (record->ID != 0) continue;
    int& counter = counters.Of(*record);
    if (counter == std::numeric_limits<int>::max()) return false;
    record->ID = ++counter;
  }
  return true;
}

// Each goes ahead of the first record with a greater id.
void InsertByID(MediaRecords media, APtrArray& list) {
  std::vector<std::pair<int, MediaTypeInfo*>> sorted;
  sorted.reserve(static_cast<std::size_t>(list.GetSize()) + media.size());
  for (int i = 0; i < list.GetSize(); ++i) {
    auto* record = static_cast<MediaTypeInfo*>(list.GetAt(i));
    sorted.emplace_back(record->ID, record);
  }
  for (const auto& record : media) sorted.emplace_back(record->ID, record.get());
  std::stable_sort(sorted.begin(), sorted.end(),
                   [](const auto& a, const auto& b) { return a.first < b.first; });
  list.SetSize(static_cast<int>(sorted.size()), -1);
  for (int i = 0; i < list.GetSize(); ++i) list[i] = sorted[static_cast<std::size_t>(i)].second;
  // The list's from here on.
  for (auto& record : media) static_cast<void>(record.release());
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
  if (!GiveNewIDs(media.records, counters)) return 0;
  InsertByID(std::move(media.records), mediaList);
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
