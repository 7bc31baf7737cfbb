#include "tool/driverfile.h"

#include "qdf/support/outputdrivers.h"
#include "qdf/support/text.h"
#include "tool/failure.h"
#include "tool/files.h"
#include "tool/printable.h"

namespace {

bool IsBare(std::string_view name) {
  return name.find('/') == std::string_view::npos && name != "." && name != "..";
}

}  // namespace

std::string DriverFilePath(const Document& document, const AString& name, const char* what) {
  if (name.GetLength() == 0) {
    throw Failure(kNoAnswer, document.path + ": it names no " + what);
  }
  if (!IsBare(View(name))) {
    throw Failure(kNoAnswer, document.path + ": the name of its " + what + ", " +
                                 Quoted(View(name)) + ", is no bare file name");
  }
  return static_cast<const char*>(InOutputDrivers(name));
}

void RefuseDriverFile(const std::string& path, const AString& name, const char* what) {
  if (name.GetLength() == 0) return;
  if (!IsSameFile(path, static_cast<const char*>(InOutputDrivers(name)))) return;
  throw Failure(kNoAnswer, path + ": this is the document's " + what);
}
