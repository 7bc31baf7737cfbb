#include "qdf/localise/custommedialine.h"

#include <algorithm>
#include <iterator>

#include "qdf/localise/textlines.h"

namespace {

using Kind = CustomMediaLine::Kind;

struct Key {
  Kind kind;
  std::string_view text;
};

constexpr Key kKeys[] = {
    {Kind::Profile, "key_Iccprofile"},
    {Kind::NameForMedia, "key_DisplayName_ForMedia"},
    {Kind::ProfileForMedia, "key_Iccprofile_ForMedia"},
};

}  // namespace

const char* ReadCustomMediaLine(std::string_view text, CustomMediaLine& line) {
  std::string_view name;
  CustomMediaLine read;
  if (!SplitAtFirst('=', text, name, read.value)) {
    return text.starts_with('=') ? "nothing stands before the \"=\"" : "it has no \"=\"";
  }
  const auto* key = std::find_if(std::begin(kKeys), std::end(kKeys),
                                 [&](const Key& each) { return each.text == name; });
  if (key == std::end(kKeys)) return "the key is unknown";
  read.kind = key->kind;
  if (read.kind != Kind::Profile) {
    const std::string_view pair = read.value;
    if (!SplitAtFirst('/', pair, read.media, read.value)) {
      return pair.starts_with('/') ? "no medium stands before the \"/\"" : "it has no \"/\"";
    }
  }
  line = read;
  return nullptr;
}

std::string MakeCustomMediaLine(const CustomMediaLine& line) {
  const auto* key = std::find_if(std::begin(kKeys), std::end(kKeys),
                                 [&](const Key& each) { return each.kind == line.kind; });
  std::string text(key->text);
  text += '=';
  if (line.kind != Kind::Profile) text.append(line.media).append("/");
  return text.append(line.value).append("\n");
}
