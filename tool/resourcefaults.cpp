#include "tool/resourcefaults.h"

#include <set>
#include <string>
#include <string_view>

#include "qdf/hpimport/derivecolormodes.h"
#include "qdf/hpimport/derivelists.h"
#include "qdf/hpimport/recordkeys.h"
#include "qdf/support/foreach.h"
#include "tool/load.h"
#include "tool/printable.h"

namespace {

// What resources give together. A resource needn't give the names itself by which it is found.
class Given {
 public:
  explicit Given(const APtrArray& resources) {
    ForEachRecord<HPResourceInfo>(resources, [&](const HPResourceInfo& resource) {
      if (resource.DisplayNames.GetSize() > 0) media_.insert(FieldPart(resource.MediaName));
      if (IsKnownQuality(resource.QualityName)) {
        printModes_.insert(FieldPart(resource.PrintQuality));
      }
    });
  }

  // Empty for a resource that has an effect.
  std::string FaultOf(const HPResourceInfo& resource) const {
    if (!media_.contains(FieldPart(resource.MediaName))) return "it has no display name";
    if (!printModes_.contains(FieldPart(resource.PrintQuality))) {
      return "its quality folder's name begins with no known quality";
    }
    if (IsKnownInkLayout(resource.InputFormat)) return {};
    const std::string layout(static_cast<const char*>(resource.InputFormat));
    return layout.empty() ? "it has no ink layout"
                          : "its ink layout, " + Quoted(layout) + ", isn't known";
  }

 private:
  std::set<std::string_view> media_;
  std::set<std::string_view> printModes_;
};

// Where it stands below some folder of the tree.
std::string PlaceOf(const HPResourceInfo& resource) {
  std::string place;
  for (const AString* part : {&resource.MediaName, &resource.QualityName, &resource.FileName}) {
    if (!place.empty()) place += '/';
    place += static_cast<const char*>(*part);
  }
  return place;
}

Object Row(const std::string& place, const std::string& reason) {
  return {{"place", "File or folder", place}, {"reason", "Why", reason}};
}

Object Row(const PassedOver& passed) {
  const auto* path = static_cast<const char*>(passed.path);
  if (passed.isFolder) return Row(path, "it can't be searched");
  return Row(PlaceOf(path, passed.fault), static_cast<const char*>(passed.fault.Reason));
}

}  // namespace

void AddResourcesWithoutEffect(const APtrArray& resources,
                               const std::vector<PassedOver>& passedOver, Object& report) {
  List rows;
  for (const PassedOver& passed : passedOver) rows.emplace_back(Row(passed));
  const Given given(resources);
  ForEachRecord<HPResourceInfo>(resources, [&](const HPResourceInfo& resource) {
    const std::string fault = given.FaultOf(resource);
    if (!fault.empty()) rows.emplace_back(Row(PlaceOf(resource), fault));
  });
  report.Add(
      {"withoutEffect", rows.empty() ? nullptr : "Resources without effect", std::move(rows)});
}
