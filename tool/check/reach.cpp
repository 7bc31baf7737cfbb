// Which elements of Control_Definition a search can reach, and which options are listed.
//
// A search for some ids goes depth-first and takes the first path that is complete. So for given
// ids of the upper levels several nodes may match, and the first of them answers what follows,
// while the others are tried only for ids that lie deeper. Here the matching nodes for all ids are
// found level by level; ids that lead to the same nodes are followed once.

#include <algorithm>
#include <map>
#include <unordered_map>
#include <unordered_set>

#include "qdf/support/idset.h"
#include "tool/check/idsets.h"
#include "tool/check/rules.h"
#include "tool/enumerate.h"

namespace check {

namespace {

// Sets of ids that overlap on purpose may lead to more combinations of nodes than anybody can wait
// for. Real documents need some thousand steps.
constexpr std::size_t kMostSteps = 2'000'000;

class ReachRules {
 public:
  ReachRules(const Lists& lists, Findings& findings) : lists_(lists), findings_(findings) {}

  void Run(const ElementNode& control) {
    Follow(0, {&control});
    for (const auto& [node, option] : hidden_) TellHidden(*node, option);
    if (steps_ <= kMostSteps) {
      TellUnreached(control.children);
    } else {
      findings_.Add(Code::kReachUnfinished, control.element,
                    "the sets of ids below overlap in so many ways that not all of them were "
                    "tried: some elements may never be reached without a word about them here",
                    "let the elements of a level share fewer ids");
    }
  }

 private:
  using Nodes = std::vector<const ElementNode*>;  // in the order of a search
  using NodeSet = std::unordered_set<const ElementNode*>;

  struct HiddenOption {
    std::uint32_t id;
    std::size_t others;                 // hidden ids of the same element
    std::vector<std::uint32_t> chosen;  // the ids of the levels above
    const ElementNode* answers;
  };

  // Who answers for an id that a node holds.
  struct Shadow {
    const ElementNode* by;
    std::uint32_t id;
  };

  // What became of the ids of a node.
  struct Fate {
    IDSet useful;  // those for which it, or an element under it, ever answers
    std::unordered_map<std::uint32_t, const ElementNode*> answeredBy;  // by others at some time
  };

  // False when too many ids were looked at.
  bool Count(const ElementNode& node) {
    steps_ += static_cast<std::size_t>(node.ids.GetSize());
    return steps_ <= kMostSteps;
  }

  // `matching` are the nodes that match the chosen ids; goes through all ids of the level below.
  // Answers which of the nodes have an element under them that answers for some.
  const NodeSet& Follow(std::size_t level, const Nodes& matching) {
    const auto [followed, isNew] = followed_.try_emplace(matching);
    NodeSet& leading = followed->second;
    if (steps_ > kMostSteps || !isNew) return leading;
    FindHidden(level, matching);
    std::vector<std::uint32_t> ids;
    std::unordered_map<std::uint32_t, Nodes> holders;
    for (const ElementNode* node : matching) {
      for (const ElementNode& child : node->children) {
        if (!Count(child)) return leading;
        parents_[&child] = node;
        for (const std::uint32_t id : child.ids) {
          Nodes& nodes = holders[id];
          if (nodes.empty()) ids.push_back(id);
          nodes.push_back(&child);
        }
      }
    }
    for (const std::uint32_t id : ids) {
      chosen_[level] = id;
      Choose(level, id, holders[id], leading);
    }
    return leading;
  }

  // `nodes` hold the id.
  void Choose(std::size_t level, std::uint32_t id, const Nodes& nodes, NodeSet& leading) {
    const ElementNode* first = nodes.front();
    answering_.insert(first);
    const NodeSet none;
    const bool isLast = level + 1 == kControlLevels.size();
    const NodeSet& below = isLast ? none : Follow(level + 1, nodes);
    for (const ElementNode* node : nodes) {
      shadow_.emplace(node, Shadow{first, id});
      Fate& fate = fates_[node];
      if (node == first || below.find(node) != below.end()) {
        fate.useful.Add(id);
        leading.insert(parents_[node]);
      } else {
        fate.answeredBy.emplace(id, first);
      }
    }
  }

  // Only the first matching node lists what follows.
  void FindHidden(std::size_t level, const Nodes& matching) {
    if (matching.size() < 2) return;
    std::unordered_set<std::uint32_t> listed;
    for (const ElementNode& child : matching.front()->children) {
      if (!Count(child)) return;
      listed.insert(child.ids.begin(), child.ids.end());
    }
    for (auto node = matching.begin() + 1; node != matching.end(); ++node) {
      for (const ElementNode& child : (*node)->children) {
        if (!Count(child)) return;
        const auto isHidden = [&](std::uint32_t each) { return listed.find(each) == listed.end(); };
        const auto id = std::find_if(child.ids.begin(), child.ids.end(), isHidden);
        if (id == child.ids.end()) continue;
        const auto others = std::count_if(id + 1, child.ids.end(), isHidden);
        hidden_.try_emplace(
            &child, HiddenOption{*id,
                                 static_cast<std::size_t>(others),
                                 {chosen_.begin(), chosen_.begin() + static_cast<int>(level)},
                                 matching.front()});
      }
    }
  }

  std::string Describe(std::size_t level, std::uint32_t id) const {
    const ListKind kind = kControlLevels[level].list;
    return check::Describe(kind, lists_[kind], static_cast<int>(id));
  }

  void TellHidden(const ElementNode& node, const HiddenOption& option) {
    const std::size_t level = option.chosen.size();
    std::string chosen;
    for (std::size_t i = 0; i < level; ++i) {
      if (i > 0) chosen += ", ";
      chosen += Describe(i, option.chosen[i]);
    }
    const std::string above = kControlLevels[level - 1].element;
    const bool isAlone = option.others == 0;
    const std::string more =
        isAlone ? "" : " and " + check::Count(option.others, "other") + " of this ID";
    findings_.Add(Code::kOptionHidden, node.element, node.element.Find("ID").ValuePlace(),
                  Describe(level, option.id) + more + " can be reached here for " + chosen +
                      ", but " + (isAlone ? "is" : "are") + " never listed: the " + above + " on " +
                      findings_.LineOf(option.answers->element) + " answers what follows",
                  std::string(isAlone ? "add it" : "add them") + " to that " + above +
                      ", or take " + Describe(level - 1, option.chosen.back()) + " out of its ID");
  }

  bool IsReached(const ElementNode& node) const {
    return answering_.find(&node) != answering_.end() ||
           std::any_of(node.children.begin(), node.children.end(),
                       [this](const ElementNode& child) { return IsReached(child); });
  }

  void TellUnreached(const std::vector<ElementNode>& nodes, std::size_t level = 0) {
    for (const ElementNode& node : nodes) {
      if (IsReached(node)) {
        TellShadowedIDs(node, level);
        TellUnreached(node.children, level + 1);
      } else {
        TellShadowed(node, level, shadow_.find(&node)->second);
      }
    }
  }

  void TellShadowed(const ElementNode& node, std::size_t level, const Shadow& shadow) {
    const std::string name = node.element.Name();
    findings_.Add(Code::kNeverReached, node.element,
                  "no choice of ids leads to this " + name + ": the " + name + " on " +
                      findings_.LineOf(shadow.by->element) + " answers first for " +
                      Describe(level, shadow.id),
                  "merge the two, or take ids out of the first");
  }

  void TellShadowedIDs(const ElementNode& node, std::size_t level) {
    const Fate& fate = fates_[&node];
    std::vector<std::string> answered;
    const ElementNode* by = nullptr;
    for (const std::uint32_t id : node.ids) {
      const auto other = fate.answeredBy.find(id);
      if (fate.useful.Holds(id) || other == fate.answeredBy.end()) continue;
      if (by == nullptr) by = other->second;
      answered.push_back(Describe(level, id));
    }
    if (by == nullptr) return;
    const std::string name = node.element.Name();
    findings_.Add(Code::kIDsShadowed, node.element, node.element.Find("ID").ValuePlace(),
                  "nothing under this " + name + " is ever found for " +
                      Enumerate(answered, "and", 4) + ": others answer first, such as the " + name +
                      " on " + findings_.LineOf(by->element),
                  "take the ids out of one of the two");
  }

  const Lists& lists_;
  Findings& findings_;
  std::size_t steps_ = 0;
  std::array<std::uint32_t, kControlLevels.size()> chosen_{};
  std::map<Nodes, NodeSet> followed_;
  std::unordered_map<const ElementNode*, const ElementNode*> parents_;
  std::unordered_map<const ElementNode*, Fate> fates_;
  NodeSet answering_;
  std::unordered_map<const ElementNode*, Shadow> shadow_;
  std::unordered_map<const ElementNode*, HiddenOption> hidden_;
};

}  // namespace

void CheckReach(const ElementNode& control, const Lists& lists, Findings& findings) {
  if (control.element) ReachRules(lists, findings).Run(control);
}

}  // namespace check
