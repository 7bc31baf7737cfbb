// Entries of the lists that no element of the two sections uses.

#include <span>
#include <unordered_set>

#include "tool/check/rules.h"

namespace check {

namespace {

using IDs = std::unordered_set<std::uint32_t>;

class UseRules {
 public:
  UseRules(const Lists& lists, Findings& findings) : lists_(lists), findings_(findings) {}

  // The first of the kinds is that of the nodes, the others are those of the levels below.
  void Gather(const std::vector<ElementNode>& nodes, std::span<const ListKind> kinds) {
    if (kinds.empty()) return;
    IDs& used = used_[kinds.front()];
    for (const ElementNode& node : nodes) {
      used.insert(node.ids.begin(), node.ids.end());
      Gather(node.children, kinds.subspan(1));
    }
  }

  void Tell(ListKind kind) {
    for (const KeptEntry& entry : lists_[kind].entries) {
      const IDs& used = used_[kind];
      if (used.find(static_cast<std::uint32_t>(entry.id)) != used.end()) continue;
      const std::string noun = FormOf(kind).entry;
      findings_.Add(Code::kEntryUnused, entry.element,
                    "no combination uses the " + noun + ' ' + std::to_string(entry.id) +
                        (entry.name.empty() ? "" : " (" + Quote(entry.name) + ')'),
                    "name its ID where it can be chosen, or take it out");
    }
  }

 private:
  const Lists& lists_;
  Findings& findings_;
  std::array<IDs, kListKinds> used_;
};

}  // namespace

void CheckUse(const Kept& kept, Findings& findings) {
  constexpr ListKind kControl[] = {kInks, kMedia, kPrintModes, kResolutions, kColorModes};
  constexpr ListKind kSources[] = {kMediaSources, kMediaSizes, kMargins};
  UseRules rules(kept.lists, findings);
  // Where a whole section is missing or empty, that has been told.
  if (!kept.control.children.empty()) {
    rules.Gather(kept.control.children, kControl);
    for (const ListKind kind : kControl) rules.Tell(kind);
  }
  if (!kept.sources.children.empty()) {
    rules.Gather(kept.sources.children, kSources);
    for (const ListKind kind : kSources) rules.Tell(kind);
  }
}

}  // namespace check
