#include "tool/explanation.h"

#include <algorithm>
#include <unordered_set>

#include "qdf/core/documentmembers.h"
#include "qdf/query/treewalk.h"

namespace {

class Explainer {
 public:
  Explainer(APMQDF& document, check::Origins& origins, Explanation& result)
      : result_(result), origins_(origins) {
    for (const Level& level : result.levels) {
      auto& known = result.known.emplace_back();
      for (Choice& choice : level.all(document)) {
        if (result.known.size() == 1) first_.push_back(choice.id);
        known.emplace(choice.id, std::move(choice));
      }
    }
    const DocumentMembers members(document);
    const CQDFNode& root = result.IsJob() ? members.ControlTreeRoot : members.MediaSourceTreeRoot;
    Decide(root);
    Stand(root, members);
    FindHidden();
    if (!result.answers) FindChanges();
  }

 private:
  struct Place {
    const CQDFNode* node;
    const check::ElementNode* element;  // null when the file has changed meanwhile
  };

  std::size_t ChoiceCount() const { return result_.choices.size(); }

  // All inks are listed, whatever the tree holds. Of the nodes with margins only the first counts.
  std::vector<int> Options(const CQDFNode& node, std::size_t level) const {
    if (result_.IsJob() && level == 0) return first_;
    std::vector<int> options;
    if (level == result_.levels.size()) return options;
    const bool isFirstOnly = result_.levels[level].option == nullptr;
    const bool hasFirst = isFirstOnly && node.Children.GetSize() > 0;
    for (const std::uint32_t id : hasFirst ? ChildAt(node, 0)->IDs : MergedChildIDs(node)) {
      const int option = static_cast<int>(id);
      if (result_.known[level].count(option) != 0) options.push_back(option);
    }
    return options;
  }

  bool LeadsOn(const CQDFNode& last) const {
    return ChoiceCount() == result_.levels.size() || !Options(last, ChoiceCount()).empty();
  }

  // While each choice is listed, the first node for it under the one before is the first of all.
  void Decide(const CQDFNode& root) {
    deciding_.push_back(&root);
    for (const Choice& choice : result_.choices) {
      const CQDFNode* next = FindChildWithID(*deciding_.back(), choice.id);
      if (next == nullptr) break;
      deciding_.push_back(next);
    }
    result_.at = deciding_.size() - 1;
    const bool isInkAlone = result_.IsJob() && result_.at == 0 && result_.IsUnlisted();
    if (isInkAlone) result_.at = 1;
    result_.answers = !isInkAlone && !result_.IsUnlisted() && LeadsOn(*deciding_.back());
  }

  void Stand(const CQDFNode& root, const DocumentMembers& members) {
    const auto& elements = result_.IsJob() ? origins_.Control() : origins_.Sources();
    std::vector<Place> places{{&root, &elements}};
    for (std::size_t level = 0; level <= ChoiceCount(); ++level) {
      if (level == result_.at) {
        for (const Place& place : places) {
          const bool isEmpty = place.node->Children.GetSize() == 0;
          result_.standing.push_back(
              {origins_.Of(place.element), Options(*place.node, level), isEmpty});
        }
        const bool isWhole = result_.IsJob() && level == result_.levels.size();
        if (isWhole) FindLacks(places, members);
      }
      if (level < ChoiceCount()) places = Below(places, level);
    }
    if (!places.empty()) result_.found = origins_.Of(places.front().element);
  }

  void FindLacks(const std::vector<Place>& places, const DocumentMembers& members) {
    const struct {
      const char* what;
      const AStringArray& names;
    } leaves[] = {{"profile", members.ICCProfileList}, {"dither", members.DitherNameList}};
    for (int leaf = 0; leaf < 2; ++leaf) {
      const AStringArray& names = leaves[leaf].names;
      std::unordered_set<std::string> told;
      for (std::size_t i = 0; i < places.size(); ++i) {
        const CQDFNode& node = *places[i].node;
        if (node.Children.GetSize() <= leaf) continue;
        for (const std::uint32_t id : ChildAt(node, leaf)->IDs) {
          const int index = static_cast<int>(id);
          if (index < 0 || index >= names.GetSize()) continue;
          std::string name = static_cast<const char*>(names.ElementAt(index));
          if (told.insert(name).second && i > 0) {
            result_.lacks.push_back({leaves[leaf].what, std::move(name), i});
          }
        }
      }
    }
  }

  std::vector<Place> Below(const std::vector<Place>& places, std::size_t level) const {
    const auto id = static_cast<std::uint32_t>(result_.choices[level].id);
    std::vector<Place> below;
    for (const Place& place : places) {
      std::size_t at = 0;
      for (int i = 0; i < place.node->Children.GetSize(); ++i) {
        CQDFNode* child = ChildAt(*place.node, i);
        if (child->IDs.GetSize() == 0) continue;
        const check::ElementNode* element = ElementAt(place.element, at++);
        if (IsIDInArray(id, *child) != 0) below.push_back({child, element});
      }
    }
    return below;
  }

  static const check::ElementNode* ElementAt(const check::ElementNode* parent, std::size_t index) {
    const bool isThere = parent != nullptr && index < parent->children.size();
    return isThere ? &parent->children[index] : nullptr;
  }

  void FindHidden() {
    std::unordered_set<int> told;
    for (std::size_t i = 0; i < result_.standing.size(); ++i) {
      for (const int id : result_.standing[i].options) {
        if (told.insert(id).second && i > 0) result_.hidden.push_back({id, i});
      }
    }
  }

  // On the level that fails or before it; what stands behind it can't help.
  void FindChanges() {
    const std::size_t levels = std::min(deciding_.size(), ChoiceCount());
    for (std::size_t level = 0; level < levels; ++level) {
      std::unordered_set<int> told{result_.choices[level].id};
      const CQDFNode& node = *deciding_[level];
      for (int i = 0; i < node.Children.GetSize(); ++i) {
        const CQDFNode& child = *ChildAt(node, i);
        const bool answers = AnswersBehind(child, level);
        for (const std::uint32_t each : child.IDs) {
          const int id = static_cast<int>(each);
          const bool isFirst = told.insert(id).second;
          if (!answers || !isFirst || result_.known[level].count(id) == 0) continue;
          result_.changes.push_back({level, id});
        }
      }
    }
  }

  // Whether the choices behind that of a level lead on from a node of that level.
  bool AnswersBehind(const CQDFNode& start, std::size_t level) const {
    const CQDFNode* node = &start;
    for (std::size_t i = level + 1; i < ChoiceCount() && node != nullptr; ++i) {
      node = FindChildWithID(*node, result_.choices[i].id);
    }
    return node != nullptr && LeadsOn(*node);
  }

  Explanation& result_;
  check::Origins& origins_;
  std::vector<int> first_;                 // the ids of the first level's list
  std::vector<const CQDFNode*> deciding_;  // for so many choices, from none on
};

}  // namespace

Explanation Explain(APMQDF& document, check::Origins& origins, std::span<const Level> levels,
                    std::span<const Choice> choices) {
  Explanation explanation;
  explanation.levels = levels;
  explanation.choices = choices;
  const Explainer explainer(document, origins, explanation);
  return explanation;
}
