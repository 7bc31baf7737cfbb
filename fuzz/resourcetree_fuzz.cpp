// HP resource trees made from choices, with files and links that are no resources: what is derived
// from one is a document like any other, and a sweep of it deletes the media folders that are found
// unsound, those only, and nothing outside the tree.

#include <filesystem>

#include "fuzz/documentproperties.h"
#include "qdf/hpimport/sweep.h"
#include "qdf/hpimport/sweepverdict.h"
#include "qdf/hpimport/update.h"

namespace fs = std::filesystem;

namespace {

constexpr const char* kMedia[] = {"Gloss", "GLOSS", "m", "output_icc", "HP Proofing Gloss"};
constexpr const char* kQualities[] = {"best", "SuperBest", "fast", "Photo"};
constexpr const char* kPieces[] = {
    "<r release='2.0' printQuality='q' displayResolution='600'>",
    "<r release='2.5'>",
    "<r release='3'>",
    "<r>",
    "</r>",
    "<displayName>d</displayName>",
    "<displayName>&#10;D</displayName>",
    "<fileNames><outputICC>p</outputICC></fileNames>",
    "<halftoningParms inputFormat='KCMY' CHiFipeLevels='4' inputHRes='600' algorithm='7'/>",
    "<halftoningParms inputFormat='KCcMmY' KHiFipeLevels='2147483647'/>",
    "<x"};

std::string Content(Choices& choose) {
  std::string content = choose.OneOf(kPieces);
  for (unsigned int i = choose.Below(6); i > 0; --i) content += choose.OneOf(kPieces);
  if (!choose.Chance(4)) content += "</r>";
  return content + choose.Text(4);
}

void AddEntry(Choices& choose, const TempFolder& folder) {
  const std::string media = choose.OneOf(kMedia);
  const std::string quality = choose.OneOf(kQualities);
  const std::string below = std::string("tree/") + media + "/" + quality + "/";
  std::error_code ignored;  // what stands there already may be no folder
  switch (choose.Below(8)) {
    case 0:
      fs::create_directories(folder.Path(below + "sub"), ignored);
      break;
    case 1:
      fs::create_symlink(folder.Path("outside"), folder.Path("tree/" + media), ignored);
      break;
    case 2:
      fs::create_directory_symlink(folder.Path(), folder.Path(below + "link"), ignored);
      break;
    case 3:
      folder.Write("tree/file" + quality, "");
      break;
    default:
      if (fs::is_symlink(folder.Path("tree/" + media))) break;
      const std::string ending = choose.OneOf({".xml", ".XML", ".txt", ".xml", ".xml"});
      folder.Write(below + media + "_" + quality + ending, Content(choose));
  }
}

// Every path in and below the folder, but for those below the ones that `isGone` tells.
template <class IsGone>
std::string Listed(const std::string& folder, IsGone isGone) {
  std::vector<std::string> paths;
  for (auto at = fs::recursive_directory_iterator(folder); at != fs::recursive_directory_iterator();
       ++at) {
    const bool gone = at->is_directory() && !at->is_symlink() && isGone(at->path());
    if (gone) at.disable_recursion_pending();
    if (!gone) paths.push_back(at->path().string());
  }
  std::sort(paths.begin(), paths.end());
  return Join(paths, "\n");
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const std::string previous =
      DocumentText{.MediaList = Entries("7=d/Gloss;10009=d/m")}.Text();
  Choices choose(TextOf(data, size));
  const TempFolder folder;
  const WorkingFolder in(folder.Path());
  folder.Write("outside/best/outside_best.xml", "<r release='1'/>");
  folder.Write("OutputDrivers/d.qdf", previous);
  for (unsigned int i = choose.Below(12) + 1; i > 0; --i) AddEntry(choose, folder);

  AFilePath tree("tree");
  PMUpdateQDF(AFilePath("d.qdf"), tree);
  if (fs::exists("d.qdf")) {
    Require(LoadFile("d.qdf") != nullptr, "an updated document loads");
    CheckDocument(ReadFile("d.qdf"));
  }
  const std::string top = fs::path(folder.Path("tree")).string();
  const std::string expected = Listed(folder.Path(), [&](const fs::path& path) {
    return path.parent_path() == top && path.filename() != "output_icc" &&
           CheckHPFolder(path.c_str(), 1) != 0;
  });
  PMCheckHPXMLVersion(tree);
  RequireEqual(expected, Listed(folder.Path(), [](const fs::path&) { return false; }),
               "what a sweep leaves");
  return 0;
}
