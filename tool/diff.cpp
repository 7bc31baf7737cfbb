// qdf diff: two documents compared by what they mean.

#include "qdf/support/filebytes.h"
#include "tool/command.h"
#include "tool/compare/changes.h"
#include "tool/load.h"

namespace {

constexpr const char* Tell(Difference difference) {
  switch (difference) {
    case Difference::kNone:
      return "equal in meaning";
    case Difference::kIDs:
      return "equal in meaning, but some ids differ";
    case Difference::kMeaning:
      return "different";
    case Difference::kUnknown:
      break;
  }
  return "not known";
}

bool HaveSameBytes(const Document& first, const Document& second) {
  FileBytes a;
  FileBytes b;
  return ReadFileBytes(first.path.c_str(), a) == nullptr &&
         ReadFileBytes(second.path.c_str(), b) == nullptr && a.Text() == b.Text();
}

Answer Diff(const Arguments& arguments) {
  const Document first = LoadDocument(arguments.Get("A"));
  const Document second = LoadDocument(arguments.Get("B"));
  Object changes;
  Difference difference =
      AddChanges(Comparison(*first.content, *second.content), Shown::kChanges, changes);
  if (difference == Difference::kUnknown && HaveSameBytes(first, second)) {
    difference = Difference::kNone;
  }
  const bool isKnown = difference != Difference::kUnknown;
  const bool isEqual = difference == Difference::kNone || difference == Difference::kIDs;
  Object report{{"first", "First", first.path},
                {"second", "Second", second.path},
                {"equal", "Result", isKnown ? Value(isEqual) : Value(), Tell(difference)}};
  for (Field& field : changes.fields) report.Add(std::move(field));
  if (!isKnown) return {report, kWrongUsage};
  return {report, isEqual ? kAnswered : kDifferent};
}

constexpr Option kOptions[] = {
    {"A", "", "The document as it was", true},
    {"B", "", "The document as it is", true},
};

}  // namespace

const Command kDiffCommand = {
    "diff",
    "Compare two documents by what they mean",
    "Entries are compared by internal name, or else by display name, and combinations by their\n"
    "entries. Neither ids nor the order of entries count, unless another one is preselected by\n"
    "it, but ids that differ are told. The order of profiles and dithers counts. The exit code\n"
    "is 0 when the documents mean the same, 1 when they don't, 2 when they can't be compared.",
    "qdf diff old/plot36.qdf plot36.qdf",
    kOptions,
    Diff,
    kWrongUsage,
};
