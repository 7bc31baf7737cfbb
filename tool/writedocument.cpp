#include "tool/writedocument.h"

#include "tool/compare/losses.h"
#include "tool/driverfile.h"
#include "tool/failure.h"
#include "tool/files.h"

void WriteDocument(const Document& document, const std::string& path, Object& report) {
  if (path.empty()) throw Failure(kWrongUsage, "the name of the file to write is empty");
  RefuseDriverFile(path, document.content->GetTranslationTable(), "translation table");
  RefuseDriverFile(path, document.content->GetCustomMediaFile(), "custom media file");
  const WrittenForm written = MakeWrittenForm(*document.content, path);
  List losses = LossRows(Comparison(*document.content, *written.document));
  SaveWhole(path, written.bytes);
  report.Add({"written", "Written", path});
  report.Add({"losses", "No longer held", std::move(losses)});
}
