#include "qdf/localise/custommedia.h"

#include <memory>
#include <string>
#include <string_view>

#include "qdf/localise/custommedialine.h"
#include "qdf/localise/textlines.h"
#include "qdf/support/nothrow.h"
#include "qdf/support/outputdrivers.h"
#include "qdf/support/savebytes.h"
#include "qdf/support/text.h"

namespace {

using Kind = CustomMediaLine::Kind;

AString ToAString(std::string_view text) { return AString(std::string(text).c_str()); }

int GetFromMap(const AMapStringToPtr& map, const AString& media, AString& text) {
  void* value = nullptr;
  const bool found = map.Lookup(media, value) != 0;
  return OrOnNoMemory(0, [&] {
    text.Empty();
    if (!found) return 0;
    text = *static_cast<const AString*>(value);
    return 1;
  });
}

int SetInMap(AMapStringToPtr& map, const AString& media, const AString& text) {
  void* former = nullptr;
  while (map.Lookup(media, former) != 0) {
    map.RemoveKey(media);
    delete static_cast<AString*>(former);
  }
  if (text.GetLength() == 0) return 1;
  return OrOnNoMemory(0, [&] {
    auto copy = std::make_unique<AString>(text);
    map.SetAt(media, copy.get());
    copy.release();  // NOLINT(bugprone-unused-return-value): the map leads to it from here on
    return 1;
  });
}

void AppendLines(std::string& file, Kind kind, const AMapStringToPtr& map) {
  AString media;
  void* value = nullptr;
  void* position = map.GetStartPosition();
  while (position != nullptr) {
    map.GetNextAssoc(position, media, value);
    file += MakeCustomMediaLine({kind, View(media), View(*static_cast<const AString*>(value))});
  }
}

}  // namespace

CCustomMediaInfoInter::CCustomMediaInfoInter(AFilePath& path)
    : CustomMediaPath(path), DisplayNameForMedia(10), IccprofileForMedia(10) {}

// Called by name: what a derived class makes of these operations is gone by now.
CCustomMediaInfoInter::~CCustomMediaInfoInter() {
  CCustomMediaInfoInter::SaveCustomMediaFile();
  Clear();
}

void CCustomMediaInfoInter::Clear() {
  CCustomMediaInfoInter::ClearStringMap(DisplayNameForMedia);
  CCustomMediaInfoInter::ClearStringMap(IccprofileForMedia);
  IccprofileList.RemoveAll();
}

int CCustomMediaInfoInter::GetDisplayNameForMedia(const AString& media, AString& name) {
  return GetFromMap(DisplayNameForMedia, media, name);
}

int CCustomMediaInfoInter::GetIccprofileForMedia(const AString& media, AString& profile) {
  return GetFromMap(IccprofileForMedia, media, profile);
}

int CCustomMediaInfoInter::GetIccprofileList(AStringArray& profiles) {
  profiles.RemoveAll();
  const bool whole = OrOnNoMemory(false, [&] {
    profiles.Append(IccprofileList);
    return true;
  });
  if (!whole) profiles.RemoveAll();
  return profiles.GetSize() > 0 ? 1 : 0;
}

int CCustomMediaInfoInter::SetDisplayNameForMedia(const AString& media, const AString& name) {
  return SetInMap(DisplayNameForMedia, media, name);
}

int CCustomMediaInfoInter::SetIccprofileForMedia(const AString& media, const AString& profile) {
  return SetInMap(IccprofileForMedia, media, profile);
}

int CCustomMediaInfoInter::AddIccprofile(const AString& profile) {
  if (HasIccprofile(profile) != 0) return 1;
  return OrOnNoMemory(0, [&] {
    IccprofileList.Add(profile);
    return 1;
  });
}

int CCustomMediaInfoInter::HasIccprofile(const AString& profile) {
  for (int i = 0; i < IccprofileList.GetSize(); ++i) {
    if (IccprofileList.ElementAt(i).CompareNoCase(profile) == 0) return 1;
  }
  return 0;
}

int CCustomMediaInfoInter::LoadCustomMediaFile() {
  if (CustomMediaPath.exists() == 0 || CustomMediaPath.isDirectory() != 0) return 1;
  bool whole = true;
  const auto take = [&](const TextLine& each) {
    CustomMediaLine line;
    if (ReadCustomMediaLine(each.Text, line) != nullptr) return;
    const AString media = ToAString(line.media);
    const AString value = ToAString(line.value);
    switch (line.kind) {
      case Kind::Profile:
        IccprofileList.Add(value);
        break;
      case Kind::NameForMedia:
        whole = SetDisplayNameForMedia(media, value) != 0 && whole;
        break;
      case Kind::ProfileForMedia:
        whole = SetIccprofileForMedia(media, value) != 0 && whole;
        break;
    }
  };
  constexpr int kNoMemory = -1;
  const int read = OrOnNoMemory(kNoMemory, [&] { return ForEachLine(CustomMediaPath, take); });
  if (read != kNoMemory && whole) return read;
  // Half a file must not replace the whole one at the next save.
  Clear();
  return 0;
}

int CCustomMediaInfoInter::SaveCustomMediaFile() {
  const int entries =
      IccprofileList.GetSize() + DisplayNameForMedia.GetCount() + IccprofileForMedia.GetCount();
  if (entries == 0) return 1;
  return OrOnNoMemory(0, [&] {
    std::string file;
    for (int i = 0; i < IccprofileList.GetSize(); ++i) {
      file += MakeCustomMediaLine({Kind::Profile, {}, View(IccprofileList.ElementAt(i))});
    }
    AppendLines(file, Kind::NameForMedia, DisplayNameForMedia);
    AppendLines(file, Kind::ProfileForMedia, IccprofileForMedia);
    return SaveFileBytes(CustomMediaPath, file) != 0 ? 1 : 0;
  });
}

void CCustomMediaInfoInter::ClearStringMap(AMapStringToPtr& map) {
  AString media;
  void* position = map.GetStartPosition();
  while (position != nullptr) {
    void* value = nullptr;
    // The value comes also when there is no memory for the key.
    OrOnNoMemory(0, [&] {
      map.GetNextAssoc(position, media, value);
      return 1;
    });
    delete static_cast<AString*>(value);
  }
  map.RemoveAll();
}

void PMGetCCustomMediaInfoInterFromName(const char* name, CCustomMediaInfoInter** media) {
  *media = nullptr;
  if (name == nullptr || *name == '\0') return;
  *media = OrOnNoMemory<CCustomMediaInfoInter*>(nullptr, [&] {
    AFilePath path = InOutputDrivers(name);
    return std::make_unique<CCustomMediaInfoInter>(path).release();
  });
  if (*media != nullptr) (*media)->LoadCustomMediaFile();
}
