#include "tool/check/grammar.h"

#include <algorithm>

namespace check {

namespace {

// Children that aren't rows themselves hold only text. Behind "*" a child counts each time that it
// stands there, behind "+" so does every child, whatever its name.
struct Row {
  std::string_view name;
  std::string_view children;
  std::string_view attributes;
};

constexpr Row kRows[] = {
    {"QDF_Info", "Definition Control_Definition MediaSource_Control", ""},

    {"Definition",
     "ProductType TranslationTable CustomMediaFile InkList MediaList PrintModeList ResolutionList "
     "ColorModeList MediaSizeList MarginInfoList MediaSourceList MinAndMaxMediaSize MinMarginSize",
     ""},
    {"InkList", "+InkDef", ""},
    {"InkDef", "ID InternalName DisplayName", ""},
    {"MediaList", "+MediaDef", ""},
    {"MediaDef", "ID IsCustomizableMedia InternalName DisplayName", ""},
    {"PrintModeList", "+PrintModeDef", ""},
    {"PrintModeDef", "ID InternalName DisplayName", ""},
    {"ResolutionList", "+ResolutionDef", ""},
    {"ResolutionDef", "ID DisplayName Value", ""},
    {"ColorModeList", "+ColorModeDef", ""},
    {"ColorModeDef", "ID InternalName DisplayName ColorantList", ""},
    {"ColorantList", "+Color", ""},
    {"Color", "ColorDepth InternalName DisplayName", "IsSpotColor IsPrint Shape Frequency Angle"},
    {"MediaSizeList", "+MediaSizeDef", ""},
    {"MediaSizeDef", "ID PCLid IsRoll InternalName DisplayName Size", ""},
    {"MarginInfoList", "+MarginInfoDef", ""},
    {"MarginInfoDef", "ID InternalName DisplayName Size", ""},
    {"MediaSourceList", "+MediaSourceDef", ""},
    {"MediaSourceDef", "ID InternalName DisplayName", ""},

    {"Control_Definition", "*Ink", "DefaultInk"},
    {"Ink", "*Media", "ID DefaultMedia"},
    {"Media", "*PrintMode", "ID DefaultPrintMode"},
    {"PrintMode", "*Resolution", "ID DefaultResolution"},
    {"Resolution", "*ColorMode", "ID DefaultColorMode"},
    {"ColorMode", "PrinterSpecificSetting *ICCProfile DitherList",
     "ID DefaultICCProfile DefaultDither"},
    // A DefaultDither isn't read there, but that is told by a rule of its own.
    {"DitherList", "*Dither", "SupportAll DefaultDither"},
    {"Dither", "", "Name RipResolution"},

    {"MediaSource_Control", "*MediaSource", "DefaultMediaSourceID"},
    {"MediaSource", "*MediaSize", "ID DefaultMediaSizeID"},
    {"MediaSize", "", "ID MarginIDList DefaultMarginID"},
};

std::vector<std::string_view> Words(std::string_view text) {
  std::vector<std::string_view> words;
  while (!text.empty()) {
    const std::string_view word = text.substr(0, text.find(' '));
    words.push_back(word);
    text.remove_prefix(std::min(text.size(), word.size() + 1));
  }
  return words;
}

}  // namespace

const Form::Child* Form::Find(std::string_view childName) const {
  if (hasEntries) return &children.front();
  for (const Child& child : children) {
    if (child.name == childName) return &child;
  }
  return nullptr;
}

Grammar::Grammar() {
  for (const Row& row : kRows) {
    Form& form = forms_.emplace_back();
    form.name = row.name;
    form.attributes = Words(row.attributes);
  }
  for (std::size_t i = 0; i < forms_.size(); ++i) {
    for (std::string_view name : Words(kRows[i].children)) {
      const bool eachTime = name.front() == '*' || name.front() == '+';
      forms_[i].hasEntries = name.front() == '+';
      if (eachTime) name.remove_prefix(1);
      const auto form = std::find_if(forms_.begin(), forms_.end(),
                                     [&](const Form& each) { return each.name == name; });
      forms_[i].children.push_back({name, eachTime, form != forms_.end() ? &*form : nullptr});
    }
  }
}

std::vector<std::string_view> Grammar::ParentsOf(std::string_view name) const {
  std::vector<std::string_view> parents;
  for (const Form& form : forms_) {
    const auto isIt = [&](const Form::Child& child) { return child.name == name; };
    if (std::any_of(form.children.begin(), form.children.end(), isIt)) parents.push_back(form.name);
  }
  return parents;
}

}  // namespace check
