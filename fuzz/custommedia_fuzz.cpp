// Any bytes as a custom media file, and changes to what was loaded, against a plain model: what is
// set is answered, and what is saved is what was loaded and set. What stands behind the first
// record separator (0x1E) of an input is no file but choices of changes.

#include <utility>
#include <vector>

#include "fuzz/fuzzing.h"
#include "qdf/localise/custommedia.h"
#include "qdf/support/text.h"

namespace {

using Texts = std::vector<std::pair<std::string, std::string>>;  // in the order of their setting

void Set(Texts& texts, const std::string& media, const std::string& text) {
  std::erase_if(texts, [&](const auto& each) { return each.first == media; });
  if (!text.empty()) texts.emplace_back(media, text);
}

struct Model {
  bool Has(const std::string& profile) const {
    const auto same = [&](const std::string& each) { return EqualNoCase(each, profile); };
    return std::any_of(profiles.begin(), profiles.end(), same);
  }

  void LoadLine(std::string text) {
    std::string key;
    std::string media;
    if (!CutAt('=', key, text)) return;
    if (key == "key_Iccprofile") profiles.push_back(text);
    const bool isName = key == "key_DisplayName_ForMedia";
    if (!isName && key != "key_Iccprofile_ForMedia") return;
    if (CutAt('/', media, text)) Set(isName ? names : mediaProfiles, media, text);
  }

  std::string Saved() const {
    std::string bytes;
    for (const std::string& each : profiles) bytes += "key_Iccprofile=" + each + "\n";
    const auto append = [&](const char* key, const Texts& texts) {
      for (const auto& [media, text] : texts)
        bytes.append(key).append("=").append(media).append("/").append(text).append("\n");
    };
    append("key_DisplayName_ForMedia", names);
    append("key_Iccprofile_ForMedia", mediaProfiles);
    return bytes;
  }

  std::vector<std::string> profiles;
  Texts names;
  Texts mediaProfiles;
};

void Change(CCustomMediaInfoInter& media, Model& model, Choices choose) {
  while (!choose.AtEnd()) {
    const unsigned int kind = choose.Below(3);
    const std::string medium = choose.Text(4);
    const std::string text = choose.Text(8);
    if (kind == 0) {
      Require((media.HasIccprofile(text.c_str()) != 0) == model.Has(text), "a profile is known");
      if (!model.Has(text)) model.profiles.push_back(text);
      media.AddIccprofile(text.c_str());
      continue;
    }
    Set(kind == 1 ? model.names : model.mediaProfiles, medium, text);
    AString answer;
    kind == 1 ? media.SetDisplayNameForMedia(medium.c_str(), text.c_str())
              : media.SetIccprofileForMedia(medium.c_str(), text.c_str());
    const int found = kind == 1 ? media.GetDisplayNameForMedia(medium.c_str(), answer)
                                : media.GetIccprofileForMedia(medium.c_str(), answer);
    Require((found != 0) == !text.empty(), "an empty text removes an entry");
    RequireEqual(text, std::string(answer), "what was set is answered");
  }
  AStringArray profiles;
  Require((media.GetIccprofileList(profiles) != 0) == !model.profiles.empty(),
          "whether there are profiles");
  Require(profiles.GetSize() == static_cast<int>(model.profiles.size()), "the number of profiles");
  for (int i = 0; i < profiles.GetSize(); ++i)
    RequireEqual(model.profiles[static_cast<std::size_t>(i)], std::string(profiles[i]),
                 "a profile");
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view input = TextOf(data, size);
  const std::size_t end = std::min(input.find('\x1E'), size);
  MemoryFile file(input.substr(0, end));
  // The second object loads what the first one saved.
  for (const std::string_view choices : {input.substr(end), std::string_view()}) {
    const std::string bytes = file.Bytes();
    Model model;
    std::string_view rest = bytes;
    while (!rest.empty()) model.LoadLine(TakeLine(rest));
    {
      CCustomMediaInfoInter media(file.Path());
      Require(media.LoadCustomMediaFile() != 0, "a file loads");
      Change(media, model, Choices(choices));
    }
    const std::string saved = model.Saved();
    RequireEqual(saved.empty() ? bytes : saved, file.Bytes(), "the saved file");
  }
  return 0;
}
