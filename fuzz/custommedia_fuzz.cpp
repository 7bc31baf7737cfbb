// Any bytes as a custom media file, and changes to what was loaded: what is set is answered, and
// what was loaded and saved stays the same when it is loaded and saved again. What stands behind
// the first record separator (0x1E) of an input is no file but choices of changes.

#include "fuzz/fuzzing.h"
#include "qdf/localise/custommedia.h"

namespace {

void Change(CCustomMediaInfoInter& media, Choices choose) {
  while (!choose.AtEnd()) {
    const unsigned int kind = choose.Below(3);
    const AString medium(choose.Text(4).c_str());
    const AString text(choose.Text(8).c_str());
    if (kind == 0) {
      media.AddIccprofile(text);
      Require(media.HasIccprofile(text) != 0, "an added profile is known");
      continue;
    }
    AString answer;
    kind == 1 ? media.SetDisplayNameForMedia(medium, text)
              : media.SetIccprofileForMedia(medium, text);
    const int found = kind == 1 ? media.GetDisplayNameForMedia(medium, answer)
                                : media.GetIccprofileForMedia(medium, answer);
    Require((found != 0) == (text.GetLength() > 0), "an empty text removes an entry");
    Require(answer == text, "what was set is answered");
  }
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view input = TextOf(data, size);
  const std::size_t end = std::min(input.find('\x1E'), size);
  MemoryFile file(input.substr(0, end));
  std::string former;
  // A change may bring in what no line of a file holds: the second load settles that.
  for (int round = 0; round < 3; ++round) {
    {
      CCustomMediaInfoInter media(file.Path());
      Require(media.LoadCustomMediaFile() != 0, "a file loads");
      if (round == 0) Change(media, Choices(input.substr(end)));
    }
    if (round == 2) RequireEqual(former, file.Bytes(), "a saved file loads as it was saved");
    former = file.Bytes();
  }
  return 0;
}
