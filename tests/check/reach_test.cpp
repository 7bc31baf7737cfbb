// What the examination says about reach, against a search for every choice of ids there is.

#include <gtest/gtest.h>

#include <random>
#include <set>

#include "qdf/core/documentmembers.h"
#include "qdf/query/treewalk.h"
#include "tests/documents.h"
#include "tests/files.h"
#include "tool/check/examine.h"

namespace {

constexpr int kIDs = 3;
constexpr const char* kElements[] = {"Ink", "Media", "PrintMode", "Resolution", "ColorMode"};
constexpr std::size_t kDepth = std::size(kElements);

using Paths = std::set<std::string>;

// Up to three nodes under each, with one to three ids.
std::string RandomTree(std::mt19937& random, std::size_t depth) {
  std::string nodes;
  for (auto left = 1 + random() % (depth < 3 ? 3 : 2); left > 0; --left) {
    std::string ids;
    for (int id = 1; id <= kIDs; ++id) {
      if (random() % 2 == 0) ids += (ids.empty() ? "" : ",") + std::to_string(id);
    }
    nodes += (nodes.empty() ? "" : ";") + (ids.empty() ? "2" : ids);
    if (depth + 1 < kDepth) nodes += RandomTree(random, depth + 1);
  }
  return "[" + nodes + "]";
}

// All that can be learnt by searching.
class Searches {
 public:
  explicit Searches(CQDFNode& root) : root_(root) {
    Name(root, "/QDF_Info/Control_Definition", 0);
    Search({});
    AddUnreached(root, 0, unreached);
  }

  Paths unreached;  // the topmost of those that no search finds
  Paths shadowed;   // of the others, those with an id that leads no search to or through them
  Paths hidden;     // those with an id that can be reached and isn't listed

 private:
  void Name(CQDFNode& node, const std::string& path, std::size_t depth) {
    paths_[&node] = path;
    if (depth == kDepth) return;
    const int count = node.Children.GetSize();
    for (int i = 0; i < count; ++i) {
      const std::string number = count > 1 ? "[" + std::to_string(i + 1) + "]" : "";
      Name(*ChildAt(node, i), path + "/" + kElements[depth] + number, depth + 1);
    }
  }

  void Search(std::vector<int> ids) {
    const CQDFNode* found = Find(root_, ids);
    if (found == nullptr) return;
    found_.insert(found);
    if (ids.size() == kDepth) return;
    ADWordArray listed = MergedChildIDs(*found);
    if (!ids.empty()) AddHidden(root_, ids, 0, listed);
    for (int id = 1; id <= kIDs; ++id) {
      ids.push_back(id);
      Search(ids);
      ids.pop_back();
    }
  }

  // As the queries do: the first path whose nodes hold the ids.
  const CQDFNode* Find(CQDFNode& node, const std::vector<int>& ids, std::size_t depth = 0) {
    if (depth == ids.size()) return &node;
    const CQDFNode* found = nullptr;
    for (int i = 0; found == nullptr && i < node.Children.GetSize(); ++i) {
      CQDFNode& child = *ChildAt(node, i);
      const auto id = static_cast<std::uint32_t>(ids[depth]);
      if (IsIDInArray(id, child) != 0) found = Find(child, ids, depth + 1);
      if (found != nullptr) leading_.insert({&child, id});
    }
    return found;
  }

  // The nodes behind all that match the ids, each with an id that isn't listed.
  void AddHidden(CQDFNode& node, const std::vector<int>& ids, std::size_t depth,
                 ADWordArray& listed) {
    for (int i = 0; i < node.Children.GetSize(); ++i) {
      CQDFNode& child = *ChildAt(node, i);
      if (depth < ids.size()) {
        const auto id = static_cast<std::uint32_t>(ids[depth]);
        if (IsIDInArray(id, child) != 0) AddHidden(child, ids, depth + 1, listed);
      } else {
        for (const std::uint32_t id : child.IDs) {
          if (IsIDInArray(id, listed) == 0) hidden.insert(paths_[&child]);
        }
      }
    }
  }

  // Answers whether a search finds the node or one below it.
  bool AddUnreached(CQDFNode& node, std::size_t depth, Paths& paths) {
    Paths below;
    bool reached = found_.count(&node) > 0;
    for (int i = 0; depth < kDepth && i < node.Children.GetSize(); ++i) {
      reached = AddUnreached(*ChildAt(node, i), depth + 1, below) || reached;
    }
    const auto leads = [&](std::uint32_t id) { return leading_.count({&node, id}) > 0; };
    if (reached && !std::all_of(node.IDs.begin(), node.IDs.end(), leads)) {
      shadowed.insert(paths_[&node]);
    }
    if (reached) paths.merge(below);
    if (!reached) paths.insert(paths_[&node]);
    return reached;
  }

  CQDFNode& root_;
  std::map<const CQDFNode*, std::string> paths_;
  std::set<const CQDFNode*> found_;
  std::set<std::pair<const CQDFNode*, std::uint32_t>> leading_;
};

Paths PathsWith(check::Code code, const std::vector<check::Finding>& findings) {
  Paths paths;
  for (const check::Finding& finding : findings) {
    if (finding.rule->code == code) paths.insert(finding.path);
  }
  return paths;
}

TEST(Reach, IsWhatSearchesForAllIDsFind) {
  const TempFolder folder;
  std::size_t unreached = 0;
  std::size_t hidden = 0;
  std::size_t shadowed = 0;
  for (unsigned int seed = 0; seed < 60; ++seed) {
    std::mt19937 random(seed);
    const std::string tree = RandomTree(random, 0);
    DocumentText text{.ColorModeList = ColorModes("1;2;3"), .Control = Control(tree)};
    text.InkList = text.MediaList = text.PrintModeList = text.ResolutionList = Entries("1;2;3");
    const std::string path = folder.Write("tree.qdf", text.Text());
    const std::unique_ptr<APMQDF> document = LoadFile(path);
    ASSERT_NE(document, nullptr);
    const Searches searches(DocumentMembers(*document).ControlTreeRoot);
    const std::vector<check::Finding> findings = check::Examine(path).findings;
    EXPECT_EQ(PathsWith(check::Code::kNeverReached, findings), searches.unreached) << tree;
    EXPECT_EQ(PathsWith(check::Code::kOptionHidden, findings), searches.hidden) << tree;
    EXPECT_EQ(PathsWith(check::Code::kIDsShadowed, findings), searches.shadowed) << tree;
    unreached += searches.unreached.size();
    hidden += searches.hidden.size();
    shadowed += searches.shadowed.size();
  }
  EXPECT_GT(unreached, 20U);
  EXPECT_GT(hidden, 20U);
  EXPECT_GT(shadowed, 20U);
}

}  // namespace
