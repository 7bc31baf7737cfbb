// qdf sweep: which media folders of a resource tree are unsound, and away with them.

#include <cstring>

#include "qdf/hpimport/removefolder.h"
#include "qdf/hpimport/sweepverdict.h"
#include "qdf/support/lackofmeans.h"
#include "tool/command.h"
#include "tool/files.h"
#include "tool/load.h"
#include "tool/printable.h"

namespace {

using Folders = std::vector<MediaFolder>;

struct FaultText {
  FolderFault fault;
  const char* text;
};

constexpr FaultText kFaults[] = {
    {FolderFault::None, ""},
    {FolderFault::Unsearchable, "it can't be searched"},
    {FolderFault::Empty, "nothing lies in it"},
    {FolderFault::FileInMedia, "it is no folder, but lies in a media folder"},
    {FolderFault::FolderInQuality, "it is a folder, but lies in a quality folder"},
    {FolderFault::NoResource, "no resource file lies in it"},
};

std::string Tell(const FolderVerdict& verdict) {
  if (verdict.fault == FolderFault::NotXML) {
    return static_cast<const char*>(verdict.xmlFault.Reason);
  }
  if (verdict.fault == FolderFault::Unexamined) return static_cast<const char*>(verdict.lack);
  if (verdict.fault == FolderFault::WrongRelease) {
    const std::string release(static_cast<const char*>(verdict.release));
    return release.empty() ? "it has no release"
                           : "its release, " + Quoted(release) + ", isn't 2 or more and below 3";
  }
  for (const FaultText& each : kFaults) {
    if (each.fault == verdict.fault) return each.text;
  }
  return "it is unsound";
}

// Of a folder that wasn't examined there is none.
Field VerdictField(const FolderVerdict& verdict) {
  if (!verdict.IsSound() && !verdict.IsUnsound()) {
    return {"sound", "Verdict", {}, "couldn't be examined"};
  }
  const bool isSound = verdict.IsSound();
  return {"sound", "Verdict", isSound, isSound ? "sound" : "unsound"};
}

List Rows(const Folders& folders) {
  List rows;
  for (const MediaFolder& folder : folders) {
    rows.emplace_back(
        Object{{"media", "Media", static_cast<const char*>(folder.name)},
               VerdictField(folder.verdict),
               {"place", "File or folder",
                PlaceOf(static_cast<const char*>(folder.verdict.path), folder.verdict.xmlFault)},
               {"reason", "Why", Tell(folder.verdict)}});
  }
  return rows;
}

Object LeftRow(const MediaFolder& folder, const std::string& entry, const char* reason) {
  return {{"path", "Folder", static_cast<const char*>(folder.path)},
          {"entry", "First that stayed", entry},
          {"reason", "Why", reason}};
}

// A row about what is left, none when the folder is gone.
std::optional<Object> Remove(const MediaFolder& folder) {
  try {
    const Remainder left = RemoveFolderTreeAndTell(folder.path);
    if (left.path.empty()) return std::nullopt;
    return LeftRow(folder, left.path, std::strerror(left.error));
  } catch (const LackOfMeans& lack) {
    return LeftRow(folder, "", lack.what());
  }
}

// Deletes what was found to be unsound, and no more. The code is the answer's when all goes well.
Answer Delete(const Folders& unsound, ExitCode code) {
  int deleted = 0;
  List left;
  for (const MediaFolder& folder : unsound) {
    std::optional<Object> remainder = Remove(folder);
    if (remainder) {
      left.emplace_back(std::move(*remainder));
    } else {
      ++deleted;
    }
  }
  Object report{{"deleted", "Deleted media folders", deleted}};
  const bool isDone = left.empty();
  report.Add({"left", isDone ? nullptr : "Not or not wholly deleted", std::move(left)});
  return {report, isDone ? code : kNoAnswer};
}

std::shared_ptr<const Question> AskToDelete(const std::string& folder, const Folders& unsound,
                                            std::size_t all, ExitCode code) {
  const std::string counts = std::to_string(unsound.size()) + " of " + std::to_string(all);
  return std::make_shared<Question>(
      Question{"Delete for good what is unsound, " + counts + " media folders?",
               [=] { return Delete(unsound, code); }, folder + ": nothing was deleted",
               folder + ": nothing was deleted: nobody is at a terminal to be asked, see --yes"});
}

Answer Sweep(const Arguments& arguments) {
  const bool isDry = arguments.Has("--dry-run");
  const bool isSure = arguments.Has("--yes");
  if (isDry && isSure) throw Failure(kWrongUsage, "--yes and --dry-run don't go together");
  const std::string& folder = arguments.Get("DIR");
  RequireFolder(folder);
  const Folders folders = ExamineMediaFolders(AFilePath(folder.c_str()));
  Folders unsound;
  bool areExamined = true;
  for (const MediaFolder& each : folders) {
    areExamined = areExamined && each.verdict.fault != FolderFault::Unexamined;
    if (each.verdict.IsUnsound()) unsound.push_back(each);
  }
  Answer answer{{{"folder", "Folder", folder},
                 {"unsound", "Unsound", static_cast<int>(unsound.size())},
                 {"media", "Media folders", Rows(folders)}}};
  if (!areExamined) answer.code = kNoAnswer;
  if (isDry) return answer;
  if (isSure || unsound.empty()) {
    Answer deletion = Delete(unsound, answer.code);
    for (Field& field : deletion.report.fields) answer.report.Add(std::move(field));
    answer.code = deletion.code;
  } else {
    answer.question = AskToDelete(folder, unsound, folders.size(), answer.code);
  }
  return answer;
}

constexpr Option kOptions[] = {
    {"DIR", "", "The folder with the media folders", true},
    {"--dry-run", "", "List the verdicts and delete nothing"},
    {"--yes", "", "Delete without asking"},
};

}  // namespace

const Command kSweepCommand = {
    "sweep",
    "Delete the unsound media folders of an HP resource tree",
    "A media folder is sound when it holds quality folders only, at least one, and each of these "
    "a\n"
    "resource file, no folder and no resource file but well-formed ones with a release of 2 and\n"
    "more, but below 3. The folder output_icc, plain files in DIR and what links lead to stay.\n"
    "Unsound folders go for good: the list comes first, and then the question.",
    "qdf sweep resources --dry-run\n"
    "  qdf sweep resources --yes",
    kOptions,
    Sweep,
};
