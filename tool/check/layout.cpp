#include "tool/check/layout.h"

#include <algorithm>

#include "tool/printable.h"

namespace check {

namespace {

constexpr Severity kSeverities[] = {Severity::kError, Severity::kWarning, Severity::kNote};

// "12 | " and a stretch of the line around the place, with a caret below it.
std::string ContextOf(const Source& source, const Finding& finding) {
  constexpr std::size_t kBefore = 60;
  constexpr std::size_t kWidth = 100;
  const std::string_view line = source.Line(finding.position.line);
  const auto column = static_cast<std::size_t>(finding.position.column) - 1;
  const std::size_t at = std::min(column, line.size());
  const std::size_t begin = at > kBefore ? at - kBefore : 0;
  const auto show = [&](std::size_t from, std::size_t length) {
    std::string text(line.substr(from, length));
    std::replace(text.begin(), text.end(), '\t', ' ');
    return MakePrintable(text);
  };
  const std::size_t shown = std::min(line.size() - begin, kWidth);
  const Printable before = show(begin, at - begin);
  const Printable marked = show(at, std::min(finding.place.length, begin + shown - at));
  const std::string number = std::to_string(finding.position.line);
  const std::string cut = begin > 0 ? "..." : "";
  std::string text = ' ' + number + " | " + cut + show(begin, shown).text;
  if (begin + shown < line.size()) text += "...";
  text += '\n' + std::string(number.size() + 1, ' ') + " | " +
          std::string(cut.size() + static_cast<std::size_t>(before.columns), ' ') + '^';
  if (marked.columns > 1) text += std::string(static_cast<std::size_t>(marked.columns) - 1, '~');
  return text + '\n';
}

std::string LinesOf(const Examined& document, const Finding& finding, bool context) {
  std::string text = document.path;
  if (finding.placed) {
    text +=
        ':' + std::to_string(finding.position.line) + ':' + std::to_string(finding.position.column);
  }
  text += std::string(": ") + NameOf(finding.rule->severity) + ": " + finding.message + " [" +
          finding.rule->name + ']';
  text = MakePrintable(text).text + '\n';
  if (context && finding.placed) text += ContextOf(document.examination.source, finding);
  return text + "  hint: " + MakePrintable(finding.hint).text + '\n';
}

std::string SummaryOf(const Examined& document) {
  std::string counts;
  for (const Severity severity : kSeverities) {
    const std::size_t count = CountOf(document, severity);
    if (count == 0) continue;
    counts += (counts.empty() ? "" : ", ") + Count(count, NameOf(severity));
  }
  return MakePrintable(document.path).text + ": " + (counts.empty() ? "no findings" : counts) +
         '\n';
}

Object ObjectOf(const Examined& document, const Finding& finding) {
  const auto orNull = [&](int number) { return finding.placed ? Value(number) : Value(); };
  return {{"document", nullptr, document.path},
          {"code", nullptr, finding.rule->name},
          {"severity", nullptr, NameOf(finding.rule->severity)},
          {"line", nullptr, orNull(finding.position.line)},
          {"column", nullptr, orNull(finding.position.column)},
          {"length", nullptr, orNull(static_cast<int>(finding.place.length))},
          {"path", nullptr, finding.path.empty() ? Value() : Value(finding.path)},
          {"message", nullptr, finding.message},
          {"hint", nullptr, finding.hint}};
}

}  // namespace

std::size_t CountOf(const Examined& document, Severity severity) {
  std::size_t count = 0;
  for (const Finding& finding : document.examination.findings) {
    if (finding.rule->severity == severity) ++count;
  }
  return count;
}

std::string TextOf(const std::vector<Examined>& documents, bool context) {
  std::string text;
  for (const Examined& document : documents) {
    for (const Finding& finding : document.examination.findings) {
      text += LinesOf(document, finding, context);
    }
    text += SummaryOf(document);
  }
  return text;
}

Object JsonOf(const std::vector<Examined>& documents) {
  List summaries;
  List findings;
  for (const Examined& document : documents) {
    const auto number = [&](Severity severity) {
      return static_cast<int>(CountOf(document, severity));
    };
    summaries.emplace_back(Object{{"document", nullptr, document.path},
                                  {"errors", nullptr, number(Severity::kError)},
                                  {"warnings", nullptr, number(Severity::kWarning)},
                                  {"notes", nullptr, number(Severity::kNote)}});
    for (const Finding& finding : document.examination.findings) {
      findings.emplace_back(ObjectOf(document, finding));
    }
  }
  return {{"documents", nullptr, std::move(summaries)}, {"findings", nullptr, std::move(findings)}};
}

}  // namespace check
