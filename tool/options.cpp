// qdf options: the colour options in an archive, and what differs between two.

#include <deque>

#include "qdf/definition/colorarchive.h"
#include "qdf/support/text.h"
#include "tool/command.h"
#include "tool/files.h"
#include "tool/optionfields.h"
#include "tool/reportline.h"

namespace {

using Records = std::deque<ANewColorOpt>;  // which are never copied

// Whether the next group is a record: every writer of them has written these tags. To the library a
// group may lack any, so that a file of zeros would be made of records.
bool PassRecord(AArchive& archive) {
  constexpr unsigned char kTags = 13;
  bool hasAll = true;
  archive.TagStart();
  for (unsigned char tag = 0; tag < kTags; ++tag) hasAll = archive.GetTag(tag) != 0 && hasAll;
  archive.TagEnd();
  return hasAll;
}

Records ReadRecords(const std::string& file) {
  ReadWhole(file);
  const AFilePath path(file.c_str());
  AArchive archive(path, AArchive::Direction::Reading);
  AArchive ahead(path, AArchive::Direction::Reading);
  Records records;
  while (archive.AtEnd() == 0) {
    const std::string whole = std::to_string(records.size());
    const bool isRecord = PassRecord(ahead);
    archive >> records.emplace_back();
    if (!isRecord || archive.IsDamaged() != 0) {
      const std::string line = file + ": damaged, or no archive of colour options; whole records: ";
      throw Failure(kNoAnswer, line + whole);
    }
  }
  return records;
}

Object ShowRecords(const std::string& file) {
  List rows;
  int number = 0;
  for (const ANewColorOpt& record : ReadRecords(file)) {
    rows.emplace_back(MakeOptionRow(++number, record));
  }
  return {{"file", "File", file}, {"records", "Colour options", std::move(rows)}};
}

void AddDifferences(int number, const ANewColorOpt& first, const ANewColorOpt& second, List& rows) {
  for (OptionDifference& each : CompareOptions(first, second)) {
    rows.emplace_back(Object{{"record", "Record", number},
                             {"colorant", "Colorant", FieldText(first.Colorant.DisplayName)},
                             {"field", "Field", each.key, std::move(each.label)},
                             {"point", nullptr, each.point},
                             {"first", "First", std::move(each.first)},
                             {"second", "Second", std::move(each.second)},
                             {"rasteriseAgain", "Rasterise again", each.requiresRip}});
  }
}

void AddSurplus(const Records& records, std::size_t from, const char* where, List& rows) {
  for (std::size_t i = from; i < records.size(); ++i) {
    rows.emplace_back(Object{{"record", "Record", static_cast<int>(i) + 1},
                             {"colorant", "Colorant", FieldText(records[i].Colorant.DisplayName)},
                             {"in", "Only in", where}});
  }
}

Object CompareFiles(const std::string& firstFile, const std::string& secondFile) {
  const Records first = ReadRecords(firstFile);
  const Records second = ReadRecords(secondFile);
  const std::size_t both = std::min(first.size(), second.size());
  List again;
  List differences;
  for (std::size_t i = 0; i < both; ++i) {
    const int number = static_cast<int>(i) + 1;
    AddDifferences(number, first[i], second[i], differences);
    if (first[i].ColorOptionRequireReRip(second[i]) != 0) again.emplace_back(number);
  }
  List surplus;
  AddSurplus(first, both, "the first", surplus);
  AddSurplus(second, both, "the second", surplus);
  Object report{{"first", "First", firstFile},
                {"second", "Second", secondFile},
                {"compared", "Records compared", static_cast<int>(both)},
                {"rasteriseAgain", "Rasterise again for", again, LineText(again)},
                {"differences", "Differences", std::move(differences)}};
  report.Add({"surplus", surplus.empty() ? nullptr : "Records without a counterpart", surplus});
  return report;
}

Answer Options(const Arguments& arguments) {
  const std::string& file = arguments.Get("FILE");
  const std::string* other = arguments.Find("OTHER");
  return {other != nullptr ? CompareFiles(file, *other) : ShowRecords(file)};
}

constexpr Option kOptions[] = {
    {"FILE", "", "The archive", true},
    {"OTHER", "", "A second archive, to be compared with the first record by record"},
};

}  // namespace

const Command kOptionsCommand = {
    "options",
    "Show the colour options in an archive, or compare two",
    "S0 to S10 and C5 are settings that the library keeps for hosts; points of the curve count\n"
    "from 0. Of two archives each field that differs is told, and whether the difference alone\n"
    "means that a job has to be rasterised again; the records of which that holds stand above.",
    "qdf options colours.opt\n"
    "  qdf options colours.opt changed.opt",
    kOptions,
    Options,
};
