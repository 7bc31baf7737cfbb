// qdf check: what the library refuses, drops, changes, hides or never uses of documents.

#include <algorithm>
#include <filesystem>
#include <set>

#include "qdf/support/text.h"
#include "tool/check/layout.h"
#include "tool/command.h"
#include "tool/load.h"
#include "tool/printable.h"
#include "tool/suggest.h"

namespace {

namespace fs = std::filesystem;

using Documents = std::vector<check::Examined>;

enum class Format { kText, kJson, kSarif };

struct FormatName {
  const char* name;
  Format format;
};

constexpr FormatName kFormats[] = {
    {"text", Format::kText}, {"json", Format::kJson}, {"sarif", Format::kSarif}};

Format FindFormat(const std::string& name) {
  std::vector<std::string> names;
  for (const FormatName& each : kFormats) {
    if (name == each.name) return each.format;
    names.emplace_back(each.name);
  }
  throw UnknownWord("format", name, names);
}

Format ChooseFormat(const Arguments& arguments) {
  const bool isJson = arguments.Has("--json");
  const std::string* name = arguments.Find("--format");
  if (name == nullptr) return isJson ? Format::kJson : Format::kText;
  const Format format = FindFormat(*name);
  if (!isJson || format == Format::kJson) return format;
  throw Failure(kWrongUsage, "--json contradicts --format " + *name);
}

Failure UnknownCode(const std::string& code) {
  constexpr std::size_t kNearest = 3;
  std::vector<std::string> names;
  for (const check::Rule& rule : check::Rules()) names.emplace_back(rule.name);
  std::stable_sort(names.begin(), names.end(), [&](const std::string& a, const std::string& b) {
    return DistanceTo(a, code).second < DistanceTo(b, code).second;
  });
  std::string line = "there is no code " + Quoted(code) + "; the nearest are";
  for (std::size_t i = 0; i < kNearest; ++i) line += (i > 0 ? ", " : " ") + names[i];
  return {kWrongUsage, line};
}

std::vector<const check::Rule*> ChooseIgnored(const std::vector<std::string>& codes) {
  std::vector<const check::Rule*> ignored;
  for (const std::string& code : codes) {
    ignored.push_back(check::FindRule(code));
    if (ignored.back() == nullptr) throw UnknownCode(code);
  }
  return ignored;
}

bool HasDocumentName(const fs::path& path) {
  return EqualNoCase(path.extension().native(), ".qdf");
}

// The documents of a folder by their names, ignoring case; the error says why there may be more.
std::vector<std::string> DocumentsIn(const std::string& folder, std::error_code& error) {
  std::vector<std::string> paths;
  for (fs::directory_iterator at(folder, error); !error && at != fs::directory_iterator();
       at.increment(error)) {
    std::error_code ignored;
    if (HasDocumentName(at->path()) && !fs::is_directory(at->path(), ignored)) {
      paths.push_back(at->path().native());
    }
  }
  const auto upper = [](std::string text) {
    std::transform(text.begin(), text.end(), text.begin(), UpperChar);
    return text;
  };
  std::sort(paths.begin(), paths.end(), [&](const std::string& a, const std::string& b) {
    return std::pair(upper(a), a) < std::pair(upper(b), b);
  });
  return paths;
}

// Each file once, however often and by whatever path it is given.
class Examiner {
 public:
  explicit Examiner(const check::Choice& choice) : choice_(choice) {}

  void TakeFile(const std::string& path) {
    std::error_code error;
    const fs::path real = fs::weakly_canonical(path, error);
    if (!taken_.insert(error ? path : real.native()).second) return;
    documents_.push_back({path, check::Examine(path, choice_)});
  }

  void TakeFolder(const std::string& folder) {
    std::error_code error;
    const std::vector<std::string> paths = DocumentsIn(folder, error);
    for (const std::string& path : paths) TakeFile(path);
    if (!error && !paths.empty()) return;
    documents_.push_back(
        {folder,
         check::Unreadable(error ? "this folder can't be read" : "no *.qdf is in this folder",
                           "correct the path, or give the documents themselves")});
  }

  Documents Take() { return std::move(documents_); }

 private:
  const check::Choice& choice_;
  std::set<std::string> taken_;
  Documents documents_;
};

Documents ExamineAll(const Arguments& arguments) {
  const check::Choice choice{arguments.Has("--write-loss"), arguments.Has("--host")};
  const std::vector<const check::Rule*> ignored = ChooseIgnored(arguments.All("--ignore"));
  Examiner examiner(choice);
  for (const std::string& name : arguments.All("DOC")) {
    if (name.empty()) throw Failure(kWrongUsage, "the name of a document is empty");
    std::error_code error;
    if (fs::is_directory(name, error)) {
      examiner.TakeFolder(name);
    } else {
      examiner.TakeFile(DocumentPath(name));
    }
  }
  Documents documents = examiner.Take();
  const auto isIgnored = [&](const check::Finding& finding) {
    return std::find(ignored.begin(), ignored.end(), finding.rule) != ignored.end();
  };
  for (check::Examined& document : documents) {
    auto& findings = document.examination.findings;
    findings.erase(std::remove_if(findings.begin(), findings.end(), isIgnored), findings.end());
  }
  return documents;
}

ExitCode CodeFor(const Documents& documents, bool warningsCount) {
  for (const check::Examined& document : documents) {
    if (CountOf(document, check::Severity::kError) > 0) return kNoAnswer;
    if (warningsCount && CountOf(document, check::Severity::kWarning) > 0) return kNoAnswer;
  }
  return kAnswered;
}

std::string LayOut(const Documents& documents, Format format, bool onTerminal) {
  if (format == Format::kText) return TextOf(documents, onTerminal);
  return RenderJson(format == Format::kSarif ? SarifOf(documents) : JsonOf(documents));
}

Answer Check(const Arguments& arguments) {
  const Format format = ChooseFormat(arguments);
  Documents documents = ExamineAll(arguments);
  const ExitCode code = CodeFor(documents, arguments.Has("--werror"));
  if (arguments.Has("--json")) return {JsonOf(documents), code};
  return {{}, code, {}, [format, documents = std::move(documents)](bool onTerminal) {
            return LayOut(documents, format, onTerminal);
          }};
}

constexpr Option kOptions[] = {
    {"DOC", "", "Documents, and folders whose *.qdf are meant", true, Times::kMany},
    {"--ignore", "CODE", "Leave out the findings of this code", false, Times::kMany},
    {"--werror", "", "Let a warning count as an error for the exit code"},
    {"--write-loss", "", "Also tell what a write or an update of a document loses"},
    {"--host", "", "Also look for the files that a document names"},
    {"--format", "FORMAT", "Print text, json or sarif"},
};

}  // namespace

const Command kCheckCommand = {
    "check",
    "Tell what the library refuses, drops, hides or never uses of documents",
    "An error: the document is refused. A warning: something written is lost or can never be\n"
    "chosen. A note: odd, but harmless. docs/checks.md shows each code with an example. The exit\n"
    "code is 1 when there is an error.",
    "qdf check OutputDrivers --werror --ignore entry-unused",
    kOptions,
    Check,
};
