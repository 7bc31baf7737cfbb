// Findings as a SARIF log, the form in which editors and CI systems take them.

#include <algorithm>

#include "tool/check/layout.h"
#include "tool/utf8.h"

namespace check {

namespace {

constexpr const char* kSchema = "https://json.schemastore.org/sarif-2.1.0.json";

Field Member(const char* key, Value value) { return {key, nullptr, std::move(value)}; }

Object TextObject(const std::string& text) { return {Member("text", text)}; }

// A path as a URI, or as a relative reference when the path is relative.
std::string UriOf(const std::string& path) {
  constexpr const char* kDigits = "0123456789ABCDEF";
  constexpr std::string_view kPlain = "-._~/";
  std::string uri = path.front() == '/' ? "file://" : "";
  for (const char c : path) {
    const bool letter = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
    if (letter || (c >= '0' && c <= '9') || kPlain.find(c) != std::string_view::npos) {
      uri += c;
    } else {
      const auto byte = static_cast<unsigned char>(c);
      uri += {'%', kDigits[byte >> 4U], kDigits[byte & 15U]};
    }
  }
  return uri;
}

// The column of a place in UTF-16 code units: a character of four bytes takes two.
int Utf16Column(const Source& source, Position position) {
  const std::string_view before =
      source.Line(position.line).substr(0, static_cast<std::size_t>(position.column) - 1);
  int units = position.column - static_cast<int>(before.size());
  // What reads the file takes the byte order mark off.
  constexpr std::string_view kMark = "\xEF\xBB\xBF";
  const bool isMarked = position.line == 1 && before.substr(0, kMark.size()) == kMark;
  for (const char c : isMarked ? before.substr(kMark.size()) : before) {
    if (!ContinuesCharacter(c)) units += static_cast<unsigned char>(c) >= 0xF0U ? 2 : 1;
  }
  return units;
}

Object RegionOf(const Source& source, const Finding& finding) {
  const Position end = source.PositionOf(finding.place.begin + finding.place.length);
  return {Member("startLine", finding.position.line),
          Member("startColumn", Utf16Column(source, finding.position)), Member("endLine", end.line),
          Member("endColumn", Utf16Column(source, end))};
}

Object LocationOf(const Examined& document, const Finding& finding) {
  Object physical{Member("artifactLocation", Object{Member("uri", UriOf(document.path))})};
  if (finding.placed) {
    physical.Add(Member("region", RegionOf(document.examination.source, finding)));
  }
  Object location{Member("physicalLocation", physical)};
  if (!finding.path.empty()) {
    location.Add(Member("logicalLocations", List{Object{Member("fullyQualifiedName", finding.path),
                                                        Member("kind", "element")}}));
  }
  return location;
}

Object ResultOf(const Examined& document, const Finding& finding) {
  return {Member("ruleId", finding.rule->name),
          Member("ruleIndex", static_cast<int>(finding.rule->code)),
          Member("level", NameOf(finding.rule->severity)),
          Member("message", TextObject(finding.message + "; hint: " + finding.hint)),
          Member("locations", List{LocationOf(document, finding)})};
}

List AllRules() {
  List rules;
  for (const Rule& rule : Rules()) {
    rules.emplace_back(
        Object{Member("id", rule.name), Member("shortDescription", TextObject(rule.meaning)),
               Member("defaultConfiguration", Object{Member("level", NameOf(rule.severity))})});
  }
  return rules;
}

}  // namespace

Object SarifOf(const std::vector<Examined>& documents) {
  List results;
  for (const Examined& document : documents) {
    for (const Finding& finding : document.examination.findings) {
      results.emplace_back(ResultOf(document, finding));
    }
  }
  const Object driver{Member("name", "qdf"), Member("version", QDF_VERSION),
                      Member("rules", AllRules())};
  const Object run{Member("tool", Object{Member("driver", driver)}),
                   Member("columnKind", "utf16CodeUnits"), Member("results", std::move(results))};
  return {Member("$schema", kSchema), Member("version", "2.1.0"), Member("runs", List{run})};
}

}  // namespace check
