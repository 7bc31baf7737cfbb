#include "qdf/hpimport/resourcename.h"

#include "qdf/support/splitpath.h"
#include "qdf/support/text.h"

namespace {

constexpr std::string_view kExtension = ".xml";

bool IsTitleOf(std::string_view title, std::string_view media, std::string_view quality) {
  return title.size() == media.size() + 1 + quality.size() && title[media.size()] == '_' &&
         EqualNoCase(title.substr(0, media.size()), media) &&
         EqualNoCase(title.substr(media.size() + 1), quality);
}

}  // namespace

std::optional<ResourceName> FindResourceName(std::string_view path) {
  const auto [qualityPath, file] = SplitLast(path);
  const auto [mediaPath, quality] = SplitLast(qualityPath);
  const std::string_view media = SplitLast(mediaPath).last;
  if (media.empty() || file.size() < kExtension.size()) return std::nullopt;
  const std::string_view title = file.substr(0, file.size() - kExtension.size());
  if (!EqualNoCase(file.substr(title.size()), kExtension)) return std::nullopt;
  if (!IsTitleOf(title, media, quality)) return std::nullopt;
  return ResourceName{media, quality, file};
}
