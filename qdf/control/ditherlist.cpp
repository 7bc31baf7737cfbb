#include "qdf/control/ditherlist.h"

#include <memory>

#include "qdf/definition/resolutionvalue.h"
#include "qdf/support/hashindex.h"
#include "qdf/support/numbers.h"
#include "qdf/support/ownership.h"
#include "qdf/support/text.h"
#include "qdf/support/uniqueids.h"

namespace {

// The records of one colour mode. Only those can be equal to a new one, since each record names its
// owner, and the owner's IDs tell which they are.
class OwnRecords {
 public:
  OwnRecords(CQDFNode* owner, APtrArray& records)
      : owner_(owner), records_(records), ids_(owner->IDs) {
    for (const std::uint32_t id : owner->IDs) {
      if (id < static_cast<std::uint32_t>(records.GetSize())) Remember(static_cast<int>(id));
    }
  }

  void Add(std::string_view name, double x, double y) {
    DitherResolutionInfo record{};
    SetField(record.Name, name);
    record.XResolution = x;
    record.YResolution = y;
    record.OwnerNode = owner_;
    if (index_.Find(Hash(record), [&](int i) { return Same(At(i), record); }) >= 0) return;
    const int added = Append(record);
    Remember(added);
    ids_.Add(static_cast<std::uint32_t>(added));
  }

 private:
  static std::uint32_t Hash(const DitherResolutionInfo& record) {
    const auto x = static_cast<std::uint32_t>(TruncateToInt(record.XResolution));
    const auto y = static_cast<std::uint32_t>(TruncateToInt(record.YResolution));
    constexpr std::uint32_t kFactor = 31;
    return (HashText(FieldText(record.Name)) * kFactor + x) * kFactor + y;
  }

  static bool Same(const DitherResolutionInfo& a, const DitherResolutionInfo& b) {
    return FieldText(a.Name) == FieldText(b.Name) &&
           TruncateToInt(a.XResolution) == TruncateToInt(b.XResolution) &&
           TruncateToInt(a.YResolution) == TruncateToInt(b.YResolution) &&
           a.OwnerNode == b.OwnerNode;
  }

  const DitherResolutionInfo& At(int index) const {
    return *static_cast<const DitherResolutionInfo*>(records_.GetAt(index));
  }

  void Remember(int index) { index_.Add(Hash(At(index)), index); }

  int Append(const DitherResolutionInfo& record) {
    AddOwned(records_, std::make_unique<DitherResolutionInfo>(record));
    return records_.GetSize() - 1;
  }

  CQDFNode* owner_;
  APtrArray& records_;
  UniqueIDs ids_;
  HashIndex index_;
};

}  // namespace

void ReadDitherList(CQDFNode* ditherNode, CQDFNode* ripResolutionNode, AXMLTree* tree,
                    AXMLTreeNode& ditherList, NameTable& ditherNames,
                    APtrArray& ditherResolutionList, AString defaultDither) {
  InternDefaultStringExact(ditherNode, ditherNames, std::move(defaultDither));
  const bool supportsAll = ReadInt(tree->attributeText(ditherList, "SupportAll")) > 0;
  UniqueIDs dithers(ditherNode->IDs);
  OwnRecords records(ripResolutionNode, ditherResolutionList);
  AXMLTreeNode dither;
  for (int i = 0; tree->getChild(i, ditherList, dither) != 0; ++i) {
    if (!tree->isNamed(dither, "Dither")) continue;
    const AString name = tree->getAttribute(dither, "Name");
    if (name.GetLength() == 0) continue;
    if (!supportsAll) dithers.Add(static_cast<std::uint32_t>(ditherNames.Intern(name)));
    double x = 0.0;
    double y = 0.0;
    ReadResolutionValue(tree->attributeText(dither, "RipResolution"), x, y);
    if (x <= 0.0 || y <= 0.0) continue;
    records.Add(static_cast<const char*>(name), x, y);
  }
}

void ReadDitherList(CQDFNode* ditherNode, CQDFNode* ripResolutionNode, AXMLTree* tree,
                    AXMLTreeNode& ditherList, AStringArray& ditherNameList,
                    APtrArray& ditherResolutionList, AString defaultDither) {
  NameTable names(ditherNameList, NameCase::Exact);
  ReadDitherList(ditherNode, ripResolutionNode, tree, ditherList, names, ditherResolutionList,
                 std::move(defaultDither));
}
