#include "tool/customfile.h"

#include <algorithm>

#include "qdf/localise/textlines.h"
#include "qdf/support/text.h"
#include "tool/failure.h"
#include "tool/files.h"

namespace {

using Kind = CustomMediaLine::Kind;

void Take(const CustomMediaLine& line, CustomFile& file) {
  const std::string value(line.value);
  if (line.kind == Kind::Profile) {
    file.profiles.push_back(value);
    return;
  }
  auto found = std::find_if(file.media.begin(), file.media.end(),
                            [&](const CustomMedium& medium) { return medium.name == line.media; });
  if (found == file.media.end()) {
    found = file.media.insert(found, {std::string(line.media)});
  }
  auto& text = line.kind == Kind::NameForMedia ? found->displayName : found->profile;
  text = value.empty() ? std::nullopt : std::optional(value);
}

void DropUnset(CustomFile& file) {
  std::erase_if(file.media, [](const CustomMedium& medium) { return !medium.IsSet(); });
}

void Apply(const CustomChange& change, CCustomMediaInfoInter& media) {
  const AString name(change.media.c_str());
  const AString value(change.value.c_str());
  switch (change.kind) {
    case Kind::Profile:
      media.AddIccprofile(value);
      break;
    case Kind::NameForMedia:
      media.SetDisplayNameForMedia(name, value);
      break;
    case Kind::ProfileForMedia:
      media.SetIccprofileForMedia(name, value);
      break;
  }
}

void RefuseEmptying(const std::string& path, const std::vector<CustomChange>& changes) {
  CustomFile file = ReadCustomFile(path);
  for (const CustomChange& change : changes) {
    Take({change.kind, change.media, change.value}, file);
  }
  DropUnset(file);
  if (file.HasEntries()) return;
  throw Failure(kNoAnswer,
                path +
                    ": that would remove the last entry, but the library never writes a "
                    "file without entries, so the old lines would stay; delete the file");
}

}  // namespace

CustomFile ReadCustomFile(const std::string& path) {
  CustomFile file;
  file.exists = Exists(path);
  if (!file.exists) return file;
  ReadWhole(path);
  AFilePath place(path.c_str());
  ForEachLine(place, [&](const TextLine& text) {
    CustomMediaLine line;
    const char* fault = ReadCustomMediaLine(text.Text, line);
    AddIgnored(text, fault, file.ignored);
    if (fault == nullptr) Take(line, file);
  });
  DropUnset(file);
  return file;
}

CustomFile ChangeCustomFile(const std::string& path, const std::vector<CustomChange>& changes) {
  RefuseEmptying(path, changes);
  AFilePath place(path.c_str());
  CCustomMediaInfoInter media(place);
  bool done = media.LoadCustomMediaFile() != 0;
  for (const CustomChange& change : changes) Apply(change, media);
  done = done && media.SaveCustomMediaFile() != 0;
  if (!done) throw Failure(kNoAnswer, path + ": it can't be saved: " + WhyNotSaved(path));
  return ReadCustomFile(path);
}
