// What the examination says about reach, against a search for every choice of ids there is.

#include <gtest/gtest.h>

#include <random>
#include <set>

#include "tests/documents.h"
#include "tests/files.h"
#include "tool/check/examine.h"
#include "tool/check/origins.h"

namespace {

constexpr std::uint32_t kIDs = 3;
constexpr std::size_t kDepth = 5;

using Node = check::ElementNode;
using Nodes = std::set<const Node*>;
using Paths = std::set<std::string>;

// Up to three nodes under each, with one to three ids.
std::string RandomTree(std::mt19937& random, std::size_t depth) {
  std::string nodes;
  for (auto left = 1 + random() % (depth < 3 ? 3 : 2); left > 0; --left) {
    const char* const ids[] = {"1", "2", "3", "2", "1,2", "1,3", "2,3", "1,2,3"};
    nodes += (nodes.empty() ? "" : ";") + std::string(ids[random() % std::size(ids)]);
    if (depth + 1 < kDepth) nodes += RandomTree(random, depth + 1);
  }
  return "[" + nodes + "]";
}

bool Holds(const ADWordArray& ids, std::uint32_t id) {
  return std::find(ids.begin(), ids.end(), id) != ids.end();
}

// All that can be learnt by searching.
class Searches {
 public:
  explicit Searches(const Node& root) : root_(root) {
    Search({});
    AddUnreached(root, unreached);
  }

  Nodes unreached;  // the topmost of those that no search finds
  Nodes shadowed;   // of the others, those with an id that leads no search to or through them
  Nodes hidden;     // those with an id that can be reached and isn't listed

 private:
  void Search(std::vector<std::uint32_t> ids) {
    const Node* found = Find(root_, ids);
    if (found == nullptr) return;
    found_.insert(found);
    if (ids.size() == kDepth) return;
    if (!ids.empty()) AddHidden(root_, ids, 0, *found);
    ids.push_back(0);
    while (ids.back()++ < kIDs) Search(ids);
  }

  // As the queries do: the first path whose nodes hold the ids.
  const Node* Find(const Node& node, const std::vector<std::uint32_t>& ids, std::size_t depth = 0) {
    if (depth == ids.size()) return &node;
    for (const Node& child : node.children) {
      const Node* found = Holds(child.ids, ids[depth]) ? Find(child, ids, depth + 1) : nullptr;
      if (found != nullptr) leading_.insert({&child, ids[depth]});
      if (found != nullptr) return found;
    }
    return nullptr;
  }

  // The nodes behind all that match the ids, each with an id that the one that answers doesn't
  // list.
  void AddHidden(const Node& node, const std::vector<std::uint32_t>& ids, std::size_t depth,
                 const Node& answers) {
    for (const Node& child : node.children) {
      if (depth < ids.size()) {
        if (Holds(child.ids, ids[depth])) AddHidden(child, ids, depth + 1, answers);
        continue;
      }
      for (const std::uint32_t id : child.ids) {
        const auto lists = [&](const Node& each) { return Holds(each.ids, id); };
        const auto& listed = answers.children;
        if (std::none_of(listed.begin(), listed.end(), lists)) hidden.insert(&child);
      }
    }
  }

  // Answers whether a search finds the node or one below it.
  bool AddUnreached(const Node& node, Nodes& nodes) {
    Nodes below;
    bool reached = found_.contains(&node);
    for (const Node& child : node.children) reached = AddUnreached(child, below) || reached;
    const auto leads = [&](std::uint32_t id) { return leading_.contains({&node, id}); };
    const bool lead = std::all_of(node.ids.begin(), node.ids.end(), leads);
    if (reached && !lead) shadowed.insert(&node);
    if (reached) nodes.merge(below);
    if (!reached) nodes.insert(&node);
    return reached;
  }

  const Node& root_;
  Nodes found_;
  std::set<std::pair<const Node*, std::uint32_t>> leading_;
};

TEST(Reach, IsWhatSearchesForAllIDsFind) {
  const std::pair<check::Code, Nodes Searches::*> rows[] = {
      {check::Code::kNeverReached, &Searches::unreached},
      {check::Code::kOptionHidden, &Searches::hidden},
      {check::Code::kIDsShadowed, &Searches::shadowed}};
  std::size_t counts[std::size(rows)] = {};
  const TempFolder folder;
  for (unsigned int seed = 0; seed < 60; ++seed) {
    std::mt19937 random(seed);
    const std::string tree = RandomTree(random, 0);
    DocumentText text{.ColorModeList = ColorModes("1;2;3"), .Control = Control(tree)};
    text.InkList = text.MediaList = text.PrintModeList = text.ResolutionList = Entries("1;2;3");
    const std::string path = folder.Write("tree.qdf", text.Text());
    check::Origins origins(path);
    const Searches searches(origins.Control());
    const std::vector<check::Finding> findings = check::Examine(path).findings;
    for (std::size_t i = 0; i < std::size(rows); ++i) {
      Paths found;
      Paths wanted;
      for (const check::Finding& finding : findings) {
        if (finding.rule->code == rows[i].first) found.insert(finding.path);
      }
      for (const Node* node : searches.*rows[i].second) wanted.insert(origins.Of(node).path);
      EXPECT_EQ(found, wanted) << check::RuleOf(rows[i].first).name << " in " << tree;
      counts[i] += wanted.size();
    }
  }
  for (const std::size_t count : counts) EXPECT_GT(count, 20U);
}

}  // namespace
