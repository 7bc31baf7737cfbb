#include "qdf/support/afilepath.h"

#include <sys/stat.h>

#include <string>
#include <string_view>

#include "qdf/support/splitpath.h"
#include "qdf/support/text.h"

namespace {

std::string_view WithoutTrailingSlashes(std::string_view path) {
  while (path.size() > 1 && path.back() == '/') path.remove_suffix(1);
  return path;
}

}  // namespace

AFilePath& AFilePath::operator+=(const char* component) {
  std::string_view added(OrEmpty(component));
  if (added.empty()) return *this;
  while (!added.empty() && added.front() == '/') added.remove_prefix(1);
  std::string joined(WithoutTrailingSlashes(View(path_)));
  if (!joined.empty() && joined.back() != '/') joined += '/';
  joined += added;
  path_ = joined.c_str();
  return *this;
}

AFilePath& AFilePath::operator+=(const AString& component) {
  return *this += static_cast<const char*>(component);
}

int AFilePath::exists() const {
  struct stat status {};
  return stat(path_, &status) == 0 ? 1 : 0;
}

int AFilePath::isDirectory() const {
  struct stat status {};
  return stat(path_, &status) == 0 && S_ISDIR(status.st_mode) ? 1 : 0;
}

void AFilePath::getFileName(AString& name) const {
  name = std::string(SplitLast(View(path_)).last).c_str();
}
