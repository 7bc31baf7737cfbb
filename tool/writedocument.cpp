#include "tool/writedocument.h"

#include "tool/compare/losses.h"
#include "tool/files.h"

void WriteDocument(const Document& document, const std::string& path, Object& report) {
  const WrittenForm written = MakeWrittenForm(*document.content, path);
  List losses = LossRows(Comparison(*document.content, *written.document));
  SaveWhole(path, written.bytes);
  report.Add({"written", "Written", path});
  report.Add({"losses", "No longer held", std::move(losses)});
}
