#include "qdf/hpimport/resourcename.h"

#include "qdf/support/text.h"

namespace {

constexpr std::string_view kExtension = ".xml";

// Cuts the last component off the path and answers it.
std::string_view TakeLast(std::string_view& path) {
  while (!path.empty() && path.back() == '/') path.remove_suffix(1);
  const std::size_t slash = path.rfind('/');
  const std::size_t begin = slash == std::string_view::npos ? 0 : slash + 1;
  const std::string_view last = path.substr(begin);
  path = path.substr(0, begin);
  return last;
}

bool IsTitleOf(std::string_view title, std::string_view media, std::string_view quality) {
  return title.size() == media.size() + 1 + quality.size() && title[media.size()] == '_' &&
         EqualNoCase(title.substr(0, media.size()), media) &&
         EqualNoCase(title.substr(media.size() + 1), quality);
}

}  // namespace

bool IsResourcePath(std::string_view path, ResourceName& name) {
  const std::string_view file = TakeLast(path);
  const std::string_view quality = TakeLast(path);
  const std::string_view media = TakeLast(path);
  if (media.empty() || file.size() < kExtension.size()) return false;
  const std::string_view title = file.substr(0, file.size() - kExtension.size());
  if (!EqualNoCase(file.substr(title.size()), kExtension)) return false;
  if (!IsTitleOf(title, media, quality)) return false;
  name = {media, quality, file};
  return true;
}
