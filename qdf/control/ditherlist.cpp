#include "qdf/control/ditherlist.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <utility>

#include "qdf/control/levels.h"
#include "qdf/definition/resolutionvalue.h"
#include "qdf/support/foreach.h"
#include "qdf/support/hashindex.h"
#include "qdf/support/hashmix.h"
#include "qdf/support/numbers.h"
#include "qdf/support/ownership.h"
#include "qdf/support/text.h"
#include "qdf/support/uniqueids.h"

// The records of one colour mode. Only those can be equal to a new one, since each record names its
// owner. Of a new owner there are none yet.
class DitherListReader::OwnRecords {
 public:
  OwnRecords(CQDFNode& owner, DitherListReader& reader)
      : owner_(owner), reader_(reader), ids_(owner.IDs) {}

  // For an owner that may have been here before.
  void FindFormer() {
    for (int i = 0; i < reader_.records_.GetSize(); ++i) {
      if (At(i).OwnerNode == &owner_) Remember(i);
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
    DitherResolutionInfo& record = *reader_.AddRecord();
    SetField(record.Name, name);
    record.XResolution = x;
    record.YResolution = y;
    record.OwnerNode = &owner_;
    const int added = reader_.records_.GetSize() - 1;
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
    return *static_cast<const DitherResolutionInfo*>(reader_.records_.GetAt(index));
  }

  void Remember(int index) {
    const DitherResolutionInfo& record = At(index);
    index_.Add(Hash(FieldText(record.Name), record.XResolution, record.YResolution), index);
  }

  CQDFNode& owner_;
  DitherListReader& reader_;
  UniqueIDs ids_;
  HashIndex index_;
};

DitherListReader::DitherListReader(const AXMLTree& tree, AStringArray& ditherNameList,
                                   APtrArray& ditherResolutionList, DitherResolutionBlocks* blocks)
    : tree_(tree),
      names_(ditherNameList, NameCase::Exact),
      records_(ditherResolutionList),
      blocks_(blocks) {}

void DitherListReader::AddLeaves(CQDFNode& colorMode, const AXMLTreeNode& element) {
  CQDFNode* ditherNode = AddChildNode(colorMode);
  ditherNode->Default = -1;
  CQDFNode* ripResolutionNode = AddChildNode(colorMode);
  AXMLTreeNode ditherList;
  // Without a list the default dither is dropped.
  if (tree_.getChild("DitherList", element, ditherList) == 0) return;
  Read(*ditherNode, *ripResolutionNode, ditherList, tree_.attributeText(element, "DefaultDither"));
}

void DitherListReader::Read(CQDFNode& ditherNode, CQDFNode& ripResolutionNode,
                            const AXMLTreeNode& ditherList, std::string_view defaultDither) {
  InternDefaultStringExact(&ditherNode, names_, defaultDither);
  ReadTexts(ditherList);
  if (formerDitherNode_ != nullptr && list_ == formerList_) {
    RepeatFormer(ditherNode, ripResolutionNode);
    return;
  }
  OwnRecords records(ripResolutionNode, *this);
  AddDithers(ditherNode, records);
  std::swap(list_, formerList_);
  formerDitherNode_ = &ditherNode;
  formerRipResolutionNode_ = &ripResolutionNode;
}

void DitherListReader::ReadOnto(CQDFNode& ditherNode, CQDFNode& ripResolutionNode,
                                const AXMLTreeNode& ditherList, std::string_view defaultDither) {
  InternDefaultStringExact(&ditherNode, names_, defaultDither);
  ReadTexts(ditherList);
  OwnRecords records(ripResolutionNode, *this);
  records.FindFormer();
  AddDithers(ditherNode, records);
}

bool DitherListReader::List::operator==(const List& other) const {
  const auto same = [](const Dither& a, const Dither& b) {
    return std::strcmp(a.name, b.name) == 0 && std::strcmp(a.resolution, b.resolution) == 0;
  };
  return supportsAll == other.supportsAll &&
         std::equal(dithers.begin(), dithers.end(), other.dithers.begin(), other.dithers.end(),
                    same);
}

void DitherListReader::ReadTexts(const AXMLTreeNode& ditherList) {
  list_.supportsAll = ReadInt(tree_.attributeText(ditherList, "SupportAll")) > 0;
  list_.dithers.clear();
  ForEachChild(tree_, ditherList, "Dither", [&](const AXMLTreeNode& dither) {
    const char* name = tree_.attributeText(dither, "Name");
    if (*name == '\0') return;
    list_.dithers.push_back({name, tree_.attributeText(dither, "RipResolution")});
  });
}

void DitherListReader::AddDithers(CQDFNode& ditherNode, OwnRecords& records) {
  UniqueIDs ids(ditherNode.IDs);
  for (const Dither& dither : list_.dithers) {
    if (!list_.supportsAll) ids.Add(static_cast<std::uint32_t>(names_.Intern(dither.name)));
    double x = 0.0;
    double y = 0.0;
    ReadResolutionValue(dither.resolution, x, y);
    if (x > 0.0 && y > 0.0) records.Add(dither.name, x, y);
  }
}

// What the list before gave, with records of this list's own.
void DitherListReader::RepeatFormer(CQDFNode& ditherNode, CQDFNode& ripResolutionNode) {
  ditherNode.IDs.Copy(formerDitherNode_->IDs);
  for (const std::uint32_t id : formerRipResolutionNode_->IDs) {
    const void* former = records_.GetAt(static_cast<int>(id));
    DitherResolutionInfo& record = *AddRecord();
    record = *static_cast<const DitherResolutionInfo*>(former);
    record.OwnerNode = &ripResolutionNode;
    ripResolutionNode.IDs.Add(static_cast<std::uint32_t>(records_.GetSize() - 1));
  }
}

DitherResolutionInfo* DitherListReader::AddRecord() {
  if (blocks_ == nullptr) return AddOwned(records_, std::make_unique<DitherResolutionInfo>());
  DitherResolutionInfo* record = blocks_->Make();
  records_.Add(record);
  return record;
}

void ReadDitherList(CQDFNode* ditherNode, CQDFNode* ripResolutionNode, AXMLTree* tree,
                    AXMLTreeNode& ditherList, AStringArray& ditherNameList,
                    APtrArray& ditherResolutionList, AString defaultDither) {
  DitherListReader(*tree, ditherNameList, ditherResolutionList, nullptr)
      .ReadOnto(*ditherNode, *ripResolutionNode, ditherList, View(defaultDither));
}
