// qdf update: a document follows a new set of HP resources.

#include "qdf/hpimport/update.h"

#include <sys/stat.h>
#include <unistd.h>

#include <map>

#include "qdf/hpimport/updateddocument.h"
#include "qdf/support/outputdrivers.h"
#include "tool/command.h"
#include "tool/compare/changes.h"
#include "tool/files.h"
#include "tool/reportline.h"
#include "tool/resourcefaults.h"

namespace {

std::string PreviousPath(const std::string& target) {
  AString name;
  AFilePath(target.c_str()).getFileName(name);
  return static_cast<const char*>(InOutputDrivers(name));
}

Document LoadPrevious(const std::string& target, const std::string& path) {
  try {
    return LoadDocument(path);
  } catch (const Failure& failure) {
    const std::string line = std::string("no previous document: ") + failure.what();
    if (target == path) throw Failure(kNoAnswer, line);
    throw Failure(
        kNoAnswer,
        target + ": " + line + "; it is looked up in OutputDrivers of the working folder, see -C");
  }
}

// Media of a derived document that a loaded one doesn't have: there one id has one media.
void AddMediaFallenOut(APMQDF& derived, APMQDF& loaded, Object& report) {
  const DocumentList& media = kDocumentLists[kMedia];
  std::map<int, Object> held;
  for (const Value& row : media.rows(loaded)) {
    const Object& object = std::get<Object>(row.data);
    held.emplace(IDOf(object), object);
  }
  List rows;
  for (const Value& row : media.rows(derived)) {
    const Object& object = std::get<Object>(row.data);
    const auto found = held.find(IDOf(object));
    const bool isHeld = found != held.end();
    const auto isSame = [&](const char* key) {
      return *object.Find(key) == *found->second.Find(key);
    };
    if (isHeld && isSame("displayName") && isSame("internalName")) continue;
    const auto text = [](const Object& of, const char* key) { return LineText(*of.Find(key)); };
    rows.emplace_back(Object{{"id", "ID", IDOf(object)},
                             {"displayName", "Display name", *object.Find("displayName")},
                             {"internalName", "Internal name", *object.Find("internalName")},
                             {"reason", "Why",
                              isHeld ? "the id is held by " + text(found->second, "displayName") +
                                           " (" + text(found->second, "internalName") + ')'
                                     : "a document can't hold it"}});
  }
  report.Add({"fallenOut", rows.empty() ? nullptr : "Media that fell out", std::move(rows)});
}

struct FaultText {
  UpdateFault fault;
  const char* text;
};

constexpr FaultText kFaults[] = {
    {UpdateFault::TreeChanged, "a folder was moved while the resources were searched"},
    {UpdateFault::NoResource,
     "no resource file, as MEDIA/QUALITY/MEDIA_QUALITY.xml, stands in the folder"},
    {UpdateFault::NoReadableResource, "all that may be resources is unreadable"},
    {UpdateFault::NoInk, "the previous document has no ink"},
    {UpdateFault::NoMedia,
     "no resource has a display name, or no id is left, so there would be no media"},
    {UpdateFault::NoPrintMode,
     "no quality folder's name begins with premium, superbest, best, normal, fast or draft, so "
     "there would be no print mode"},
    {UpdateFault::NoColorMode,
     "no resource has a known ink layout, so there would be no colour mode"},
};

UpdatedDocument Derive(APMQDF& previous, const std::string& folder) {
  UpdatedDocument updated = DeriveUpdatedDocument(&previous, AFilePath(folder.c_str()));
  if (updated.document != nullptr) return updated;
  for (const FaultText& each : kFaults) {
    if (each.fault != updated.fault) continue;
    Object below;
    AddResourcesWithoutEffect(APtrArray(), updated.passedOver,
                              below);  // the line tells of the others
    throw Failure(kNoAnswer, folder + ": nothing can be derived: " + each.text, below);
  }
  throw std::bad_alloc();
}

// The file beside the document that keeps what stood in it.
class Backup {
 public:
  explicit Backup(const std::string& document) : path_(document + ".bak") {}

  const std::string& Path() const { return path_; }

  // The content of the document, whose rights it gets. Throws a Failure when something else than a
  // file stands in its place, so that nothing is written through a link.
  void Save(const std::string& document, const std::string& bytes) {
    struct stat status {};
    if (lstat(path_.c_str(), &status) == 0) {
      if (!S_ISREG(status.st_mode)) {
        throw Failure(kNoAnswer, path_ + ": it is no regular file; see --no-backup");
      }
      former_ = ReadWhole(path_);
    }
    // From its first byte on nobody reads it who may not read the document.
    const mode_t mask = umask(S_IRWXG | S_IRWXO);
    SaveWhole(path_, bytes);
    umask(mask);
    saved_ = true;
    if (stat(document.c_str(), &status) == 0) chmod(path_.c_str(), status.st_mode & 07777U);
  }

  // For when the document stays as it was.
  void TakeBack() {
    if (!saved_) return;
    if (former_) {
      SaveWhole(path_, *former_);
    } else {
      unlink(path_.c_str());
    }
  }

 private:
  std::string path_;
  std::optional<std::string> former_;
  bool saved_ = false;
};

// Null when there is no file.
std::optional<std::string> ReadIfThere(const std::string& path) {
  return Exists(path) ? std::optional(ReadWhole(path)) : std::nullopt;
}

void Write(const std::string& target, const std::string& folder, const std::string& bytes,
           Backup& backup) {
  PMUpdateQDF(AFilePath(target.c_str()), AFilePath(folder.c_str()));
  if (ReadIfThere(target) == bytes) return;
  backup.TakeBack();
  throw Failure(kNoAnswer, target + ": it can't be saved: " + WhyNotSaved(target));
}

Answer Update(const Arguments& arguments) {
  const std::string target = DocumentPath(arguments.Get("DOC"));
  const std::string& folder = arguments.Get("RESOURCES");
  const std::string previousPath = PreviousPath(target);
  const Document previous = LoadPrevious(target, previousPath);
  RequireFolder(folder);
  const UpdatedDocument updated = Derive(*previous.content, folder);
  const WrittenForm written = MakeWrittenForm(*updated.document, target);
  Object changes;
  AddResourcesWithoutEffect(*updated.resources, updated.passedOver, changes);
  AddMediaFallenOut(*updated.document, *written.document, changes);
  AddChanges(Comparison(*previous.content, *written.document), Shown::kOverview, changes);

  const std::optional<std::string> former = ReadIfThere(target);
  const bool isSame = former == written.bytes;
  const bool writes = !isSame && !arguments.Has("--dry-run");
  Backup backup(target);
  const bool keeps = writes && former && !arguments.Has("--no-backup");
  if (keeps) backup.Save(target, *former);
  if (writes) Write(target, folder, written.bytes, backup);

  const char* state = isSame ? "up to date" : writes ? "written" : "would be written";
  Object report{
      {"document", "Document", target},
      {"previousDocument", "Previous document", previousPath},
      {"resources", "Resources", folder},
      {"state", "State", state},
      {"backup", keeps ? "Former file" : nullptr, keeps ? Value(backup.Path()) : Value()}};
  for (Field& field : changes.fields) report.Add(std::move(field));
  return {report};
}

constexpr Option kOptions[] = {
    {"DOC", "", "The document to write", true},
    {"RESOURCES", "", "The folder with the resources", true},
    {"--dry-run", "", "Tell what would change and write nothing"},
    {"--no-backup", "", "Don't keep the former file as DOC.bak"},
};

}  // namespace

const Command kUpdateCommand = {
    "update",
    "Derive a document anew from HP resources and tell what changes",
    "What resources don't hold comes from the previous document, which is the one in "
    "OutputDrivers\n"
    "with the file name of DOC, wherever DOC leads. What changed is told against it. A document\n"
    "that is up to date isn't written.",
    "qdf update plot36.qdf resources --dry-run\n"
    "  qdf update plot36.qdf resources",
    kOptions,
    Update,
};
