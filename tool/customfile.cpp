#include "tool/customfile.h"

#include <unordered_map>

#include "qdf/localise/textlines.h"
#include "tool/failure.h"
#include "tool/files.h"

namespace {

using Kind = CustomMediaLine::Kind;

// A custom media file as it comes about, line by line.
class Growing {
 public:
  explicit Growing(const std::string& path);

  void Take(const CustomMediaLine& line) {
    const std::string value(line.value);
    if (line.kind == Kind::Profile) {
      file_.profiles.push_back(value);
      return;
    }
    const auto [place, isNew] = places_.emplace(line.media, file_.media.size());
    if (isNew) file_.media.push_back({place->first});
    CustomMedium& medium = file_.media[place->second];
    auto& text = line.kind == Kind::NameForMedia ? medium.displayName : medium.profile;
    text = value.empty() ? std::nullopt : std::optional(value);
  }

  CustomFile Finish() && {
    std::erase_if(file_.media, [](const CustomMedium& medium) { return !medium.IsSet(); });
    return std::move(file_);
  }

 private:
  CustomFile file_;
  std::unordered_map<std::string, std::size_t> places_;  // of the media
};

Growing::Growing(const std::string& path) {
  file_.exists = Exists(path);
  if (!file_.exists) return;
  ReadWhole(path);
  AFilePath place(path.c_str());
  ForEachLine(place, [&](const TextLine& text) {
    CustomMediaLine line;
    const char* fault = ReadCustomMediaLine(text.Text, line);
    AddIgnored(text, fault, file_.ignored);
    file_.lines = text.Number;
    if (fault != nullptr) return;
    ++file_.countingLines;
    Take(line);
  });
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
  Growing file(path);
  for (const CustomChange& change : changes) file.Take({change.kind, change.media, change.value});
  if (std::move(file).Finish().HasEntries()) return;
  throw Failure(kNoAnswer,
                path +
                    ": that would remove the last entry, but the library never writes a "
                    "file without entries, so the old lines would stay; delete the file");
}

// Throws, and the object then saves nothing on its end, since a failed load leaves no entries.
void Load(const std::string& path, CCustomMediaInfoInter& media) {
  if (media.LoadCustomMediaFile() != 0) return;
  ReadWhole(path);
  throw Failure(kNoAnswer, path + ": there isn't enough memory to read it");
}

}  // namespace

CustomFile ReadCustomFile(const std::string& path) { return Growing(path).Finish(); }

CustomFile ChangeCustomFile(const std::string& path, const std::vector<CustomChange>& changes) {
  RefuseEmptying(path, changes);
  AFilePath place(path.c_str());
  CCustomMediaInfoInter media(place);
  Load(path, media);
  for (const CustomChange& change : changes) Apply(change, media);
  if (media.SaveCustomMediaFile() == 0) {
    throw Failure(kNoAnswer, path + ": it can't be saved: " + WhyNotSaved(path));
  }
  return ReadCustomFile(path);
}
