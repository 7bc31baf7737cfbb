#include "qdf/control/ditherlist.h"

#include <memory>

#include "qdf/control/levels.h"
#include "qdf/definition/resolutionvalue.h"
#include "qdf/support/hashindex.h"
#include "qdf/support/hashmix.h"
#include "qdf/support/numbers.h"
#include "qdf/support/ownership.h"
#include "qdf/support/text.h"
#include "qdf/support/uniqueids.h"

namespace {

// The records of one colour mode. Only those can be equal to a new one, since each record names its
// owner. Of a new owner there are none yet.
class OwnRecords {
 public:
  OwnRecords(CQDFNode* owner, APtrArray& records)
      : owner_(owner), records_(records), ids_(owner->IDs) {}

  // For an owner that may have been here before.
  void FindFormer() {
    for (int i = 0; i < records_.GetSize(); ++i) {
      if (At(i).OwnerNode == owner_) Remember(i);
    }
  }

  void Add(std::string_view name, double x, double y) {
    name = name.substr(0, sizeof DitherResolutionInfo::Name);
    const std::uint32_t hash = Hash(name, x, y);
    const auto same = [&](int i) { return Same(At(i), name, x, y); };
    if (const int former = index_.Find(hash, same); former >= 0) {
      ids_.Add(static_cast<std::uint32_t>(former));
      return;
    }
    auto record = std::make_unique<DitherResolutionInfo>();
    SetField(record->Name, name);
    record->XResolution = x;
    record->YResolution = y;
    record->OwnerNode = owner_;
    AddOwned(records_, std::move(record));
    const int added = records_.GetSize() - 1;
    index_.Add(hash, added);
    ids_.Add(static_cast<std::uint32_t>(added));
  }

 private:
  // Resolutions count as equal when their whole numbers are.
  static std::uint32_t Hash(std::string_view name, double x, double y) {
    const auto whole = [](double number) {
      return static_cast<std::uint32_t>(TruncateToInt(number));
    };
    const std::uint64_t hash = MixHash(MixHash(HashText(name)) ^ whole(x));
    return static_cast<std::uint32_t>(MixHash(hash ^ whole(y)));
  }

  static bool Same(const DitherResolutionInfo& record, std::string_view name, double x, double y) {
    return FieldText(record.Name) == name &&
           TruncateToInt(record.XResolution) == TruncateToInt(x) &&
           TruncateToInt(record.YResolution) == TruncateToInt(y);
  }

  const DitherResolutionInfo& At(int index) const {
    return *static_cast<const DitherResolutionInfo*>(records_.GetAt(index));
  }

  void Remember(int index) {
    const DitherResolutionInfo& record = At(index);
    index_.Add(Hash(FieldText(record.Name), record.XResolution, record.YResolution), index);
  }

  CQDFNode* owner_;
  APtrArray& records_;
  UniqueIDs ids_;
  HashIndex index_;
};

void ReadDitherList(CQDFNode* ditherNode, AXMLTree* tree, const AXMLTreeNode& ditherList,
                    NameTable& ditherNames, OwnRecords& records, std::string_view defaultDither) {
  InternDefaultStringExact(ditherNode, ditherNames, defaultDither);
  const bool supportsAll = ReadInt(tree->attributeText(ditherList, "SupportAll")) > 0;
  UniqueIDs dithers(ditherNode->IDs);
  ForEachChild(*tree, ditherList, "Dither", [&](const AXMLTreeNode& dither) {
    const char* name = tree->attributeText(dither, "Name");
    if (*name == '\0') return;
    if (!supportsAll) dithers.Add(static_cast<std::uint32_t>(ditherNames.Intern(name)));
    double x = 0.0;
    double y = 0.0;
    ReadResolutionValue(tree->attributeText(dither, "RipResolution"), x, y);
    if (x <= 0.0 || y <= 0.0) return;
    records.Add(name, x, y);
  });
}

}  // namespace

void ReadDitherList(CQDFNode* ditherNode, CQDFNode* ripResolutionNode, AXMLTree* tree,
                    AXMLTreeNode& ditherList, NameTable& ditherNames,
                    APtrArray& ditherResolutionList, std::string_view defaultDither) {
  OwnRecords records(ripResolutionNode, ditherResolutionList);
  ReadDitherList(ditherNode, tree, ditherList, ditherNames, records, defaultDither);
}

void ReadDitherList(CQDFNode* ditherNode, CQDFNode* ripResolutionNode, AXMLTree* tree,
                    AXMLTreeNode& ditherList, AStringArray& ditherNameList,
                    APtrArray& ditherResolutionList, AString defaultDither) {
  NameTable names(ditherNameList, NameCase::Exact);
  OwnRecords records(ripResolutionNode, ditherResolutionList);
  records.FindFormer();
  ReadDitherList(ditherNode, tree, ditherList, names, records, View(defaultDither));
}
