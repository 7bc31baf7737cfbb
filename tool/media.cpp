// qdf media: the custom media file that a document names.

#include <unordered_map>
#include <unordered_set>

#include "qdf/support/text.h"
#include "tool/command.h"
#include "tool/customfile.h"
#include "tool/driverfile.h"
#include "tool/files.h"
#include "tool/lists.h"
#include "tool/printable.h"
#include "tool/reportline.h"

namespace {

using Kind = CustomMediaLine::Kind;

bool LosesBlanks(const std::string& text) { return Trimmed(text).size() != text.size(); }

// Why the change's line wouldn't read back as what was meant; empty when it would.
std::string WhyNoLine(const CustomChange& change) {
  const bool hasMedium = change.kind != Kind::Profile;
  const std::size_t length =
      MakeCustomMediaLine({change.kind, change.media, change.value}).size() - 1;
  if (hasMedium && change.media.empty()) return "the name of the medium is empty";
  if (change.media.find('/') != std::string::npos) return "the name of a medium can't hold \"/\"";
  if ((change.media + change.value).find('\n') != std::string::npos) {
    return "a line of the file can't hold a line break";
  }
  if (LosesBlanks(change.media) || LosesBlanks(change.value)) {
    return "white space at the ends of a text gets lost";
  }
  if (length <= kLongestLine) return {};
  return "a line of the file has at most 1,023 characters, not " + std::to_string(length);
}

// A change must read back as what was meant.
void RefuseUnreadable(const std::string& option, const CustomChange& change) {
  const std::string reason = WhyNoLine(change);
  if (reason.empty()) return;
  const std::string given = change.value.empty()
                                ? change.media
                                : change.media + (change.media.empty() ? "" : "=") + change.value;
  throw Failure(kWrongUsage, option + ": " + reason + ": " + Quoted(given));
}

CustomChange ParsePair(const std::string& option, Kind kind, const std::string& given) {
  const std::size_t at = given.find('=');
  if (at == std::string::npos || at == 0) {
    throw Failure(kWrongUsage,
                  option + " takes a medium, \"=\" and what to set for it, not " + Quoted(given));
  }
  return {kind, given.substr(0, at), given.substr(at + 1)};
}

std::vector<CustomChange> ParseChanges(const Arguments& arguments) {
  std::vector<CustomChange> changes;
  const auto add = [&](const std::string& option, CustomChange change) {
    RefuseUnreadable(option, change);
    changes.push_back(std::move(change));
  };
  for (const std::string& media : arguments.All("--remove")) {
    add("--remove", {Kind::NameForMedia, media, ""});
    add("--remove", {Kind::ProfileForMedia, media, ""});
  }
  for (const std::string& given : arguments.All("--set-name")) {
    add("--set-name", ParsePair("--set-name", Kind::NameForMedia, given));
  }
  for (const std::string& given : arguments.All("--set-profile")) {
    add("--set-profile", ParsePair("--set-profile", Kind::ProfileForMedia, given));
  }
  for (const std::string& profile : arguments.All("--add-profile")) {
    if (profile.empty()) throw Failure(kWrongUsage, "--add-profile takes the name of a profile");
    add("--add-profile", {Kind::Profile, "", profile});
  }
  return changes;
}

// The library takes any file that the document names, and would replace it.
void RefuseOther(const std::string& path, const Document& document) {
  RefuseDriverFile(path, document.content->GetTranslationTable(), "translation table");
  if (!IsSameFile(path, document.path)) return;
  throw Failure(kNoAnswer, path + ": this is the document itself");
}

void RefuseForeign(const std::string& path, const CustomFile& file) {
  if (file.countingLines > 0 || file.ignored.empty()) return;
  throw Failure(kNoAnswer, path + ": this is no custom media file: none of its " +
                               std::to_string(file.lines) + " lines is an entry");
}

// Somebody who removes what isn't there has mistaken the medium.
void RefuseUnknown(const std::string& path, const CustomFile& file,
                   const std::vector<CustomChange>& changes) {
  std::unordered_set<std::string> known;
  for (const CustomMedium& medium : file.media) known.insert(medium.name);
  for (const CustomChange& change : changes) {
    if (!change.value.empty() || known.count(change.media) != 0) continue;
    throw Failure(kWrongUsage, path + ": nothing is set for medium " + Quoted(change.media));
  }
}

// By each name of the document's media, internal or displayed, the ids of those that bear it.
std::unordered_map<std::string, List> IDsByName(APMQDF& document) {
  std::unordered_map<std::string, List> ids;
  for (const Value& entry : kDocumentLists[kMedia].rows(document)) {
    const Object& row = *AsObject(entry);
    const std::string internal = LineText(*row.Find("internalName"));
    const std::string displayed = LineText(*row.Find("displayName"));
    ids[internal].push_back(*row.Find("id"));
    if (displayed != internal) ids[displayed].push_back(*row.Find("id"));
  }
  return ids;
}

List MediaRows(const CustomFile& file, APMQDF& document) {
  std::unordered_map<std::string, List> ids = IDsByName(document);
  List rows;
  for (const CustomMedium& medium : file.media) {
    rows.emplace_back(Object{{"media", "Medium", medium.name},
                             {"displayName", "Display name", OrNull(medium.displayName)},
                             {"profile", "Profile", OrNull(medium.profile)},
                             {"ids", "IDs in the document", ids[medium.name]}});
  }
  return rows;
}

void AddFile(const CustomFile& file, const std::vector<IgnoredLine>& lines, bool saved,
             APMQDF& document, Object& report) {
  List profiles;
  for (const std::string& name : file.profiles) {
    profiles.emplace_back(Object{{"name", "Name", name}});
  }
  const char* state = saved ? "saved" : file.exists ? "read" : "no such file";
  report.Add({"state", "State", state});
  report.Add({"profiles", "Profiles", std::move(profiles)});
  report.Add({"media", "Media", MediaRows(file, document)});
  const char* label = saved ? "Lines that were dropped" : "Lines that don't count";
  report.Add(IgnoredField(lines.empty() ? nullptr : label, lines));
}

Answer Media(const Arguments& arguments) {
  const std::vector<CustomChange> changes = ParseChanges(arguments);
  const Document document = LoadDocument(arguments.Get("DOC"));
  APMQDF& content = *document.content;
  const std::string path =
      DriverFilePath(document, content.GetCustomMediaFile(), "custom media file");
  RefuseOther(path, document);
  Object report{{"document", "Document", document.path}, {"file", "Custom media file", path}};
  const CustomFile former = ReadCustomFile(path);
  const bool saved = !changes.empty();
  if (saved) RefuseForeign(path, former);
  RefuseUnknown(path, former, changes);
  AddFile(saved ? ChangeCustomFile(path, changes) : former, former.ignored, saved, content, report);
  return {report};
}

constexpr Option kOptions[] = {
    {"DOC", "", "The document", true},
    {"--set-name", "M=NAME", "Set the display name of medium M; none removes it", false,
     Times::kMany},
    {"--set-profile", "M=FILE", "Set the ICC profile of medium M; none removes it", false,
     Times::kMany},
    {"--add-profile", "FILE", "Add an ICC profile to the list", false, Times::kMany},
    {"--remove", "M", "Remove what is set for medium M", false, Times::kMany},
};

}  // namespace

const Command kMediaCommand = {
    "media",
    "Show or change the custom media file that a document names",
    "The file lies in OutputDrivers. A change writes it anew, and lines that are no entries go;\n"
    "removals come before all else. A profile can't be taken off the list.",
    "qdf media plot36.qdf\n"
    "  qdf media plot36.qdf --set-name Glossy=Silk --add-profile silk.icc",
    kOptions,
    Media,
};
