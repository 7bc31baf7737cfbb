// Any bytes as a custom media file, and changes to what was loaded, against a plain model. What
// stands behind the first record separator (0x1E) of an input is no file but choices of changes.

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

// Cuts what stands before the mark off the text and trims both; false without a mark or with the
// mark in first place.
bool Cut(char mark, std::string& before, std::string& text) {
  const std::size_t at = text.find(mark);
  if (at == std::string::npos || at == 0) return false;
  before = Trimmed(text.substr(0, at));
  text = std::string(Trimmed(text.substr(at + 1)));
  return true;
}

struct Model {
  void Add(const std::string& profile) {
    const auto same = [&](const std::string& each) { return EqualNoCase(each, profile); };
    if (std::none_of(profiles.begin(), profiles.end(), same)) profiles.push_back(profile);
  }

  void LoadLine(std::string line) {
    std::string key;
    std::string media;
    if (!Cut('=', key, line)) return;
    if (key == "key_Iccprofile") profiles.push_back(line);
    const bool isName = key == "key_DisplayName_ForMedia";
    if (!isName && key != "key_Iccprofile_ForMedia") return;
    if (Cut('/', media, line)) Set(isName ? names : mediaProfiles, media, line);
  }

  std::string Saved() const {
    std::string bytes;
    for (const std::string& each : profiles) bytes += "key_Iccprofile=" + each + "\n";
    for (const auto& [media, text] : names)
      bytes += "key_DisplayName_ForMedia=" + media + "/" + text + "\n";
    for (const auto& [media, text] : mediaProfiles)
      bytes += "key_Iccprofile_ForMedia=" + media + "/" + text + "\n";
    return bytes;
  }

  std::vector<std::string> profiles;
  Texts names;
  Texts mediaProfiles;
};

void CheckAnswers(CCustomMediaInfoInter& media, const Model& model) {
  AStringArray profiles;
  Require((media.GetIccprofileList(profiles) != 0) == !model.profiles.empty(),
          "whether there are profiles");
  Require(profiles.GetSize() == static_cast<int>(model.profiles.size()), "the number of profiles");
  for (int i = 0; i < profiles.GetSize(); ++i) {
    RequireEqual(model.profiles[static_cast<std::size_t>(i)], std::string(profiles[i]),
                 "a profile");
  }
  AString answer;
  for (const auto& [medium, text] : model.names) {
    Require(media.GetDisplayNameForMedia(medium.c_str(), answer) != 0, "a name is there");
    RequireEqual(text, std::string(answer), "a name");
  }
  for (const auto& [medium, text] : model.mediaProfiles) {
    Require(media.GetIccprofileForMedia(medium.c_str(), answer) != 0,
            "a medium's profile is there");
    RequireEqual(text, std::string(answer), "a medium's profile");
  }
}

void Change(CCustomMediaInfoInter& media, Model& model, Choices choose) {
  while (!choose.AtEnd()) {
    const unsigned int kind = choose.Below(3);
    const std::string medium = choose.Text(4);
    const std::string text = choose.Text(8);
    if (kind == 0) {
      media.AddIccprofile(text.c_str());
      model.Add(text);
    } else if (kind == 1) {
      media.SetDisplayNameForMedia(medium.c_str(), text.c_str());
      Set(model.names, medium, text);
    } else {
      media.SetIccprofileForMedia(medium.c_str(), text.c_str());
      Set(model.mediaProfiles, medium, text);
    }
  }
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view input = TextOf(data, size);
  const std::size_t end = std::min(input.find('\x1E'), size);
  MemoryFile file(input.substr(0, end));
  // Twice: what the first object saves is what the second loads.
  for (const std::string_view choices : {input.substr(end), std::string_view()}) {
    Model model;
    std::string bytes = file.Bytes();
    std::string_view rest = bytes;
    while (!rest.empty()) model.LoadLine(TakeLine(rest));
    {
      CCustomMediaInfoInter media(file.Path());
      Require(media.LoadCustomMediaFile() != 0, "a file loads");
      CheckAnswers(media, model);
      Change(media, model, Choices(choices));
      CheckAnswers(media, model);
    }
    const std::string saved = model.Saved();
    RequireEqual(saved.empty() ? bytes : saved, file.Bytes(), "the saved file");
  }
  return 0;
}
