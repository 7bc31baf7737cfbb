#include "tool/compare/comparison.h"

#include <algorithm>
#include <limits>

namespace {

constexpr int kMostPaths = 500'000;
constexpr int kRoot = -1;

std::vector<FieldChange> CompareHeaders(APMQDF& before, APMQDF& after) {
  Object former;
  Object now;
  AddHeader(before, former);
  AddHeader(after, now);
  return CompareFields(former, now);
}

// What one of the two documents knows of the entries.
std::vector<KnownEntries> Known(const std::vector<ListComparison>& lists,
                                const Object* EntryPair::*side, List ListComparison::*rows) {
  std::vector<KnownEntries> known;
  for (const ListComparison& list : lists) {
    KnownEntries entries{{}, {}, &list.names};
    for (const Value& row : list.*rows) {
      entries.order.emplace(IDOf(std::get<Object>(row.data)),
                            static_cast<int>(entries.order.size()));
    }
    for (std::size_t i = 0; i < list.entries.size(); ++i) {
      const Object* row = list.entries[i].*side;
      if (row != nullptr) entries.places.emplace(IDOf(*row), static_cast<int>(i));
    }
    known.push_back(std::move(entries));
  }
  return known;
}

// Goes through the children of a path in the order of their entries.
class Children {
 public:
  explicit Children(const PathNode* path) {
    if (path != nullptr) left_ = path->children;
  }

  int NextEntry() const {
    return left_.empty() ? std::numeric_limits<int>::max() : left_.front().entry;
  }

  // Null when the next one has another entry.
  const PathNode* Take(int entry) {
    if (left_.empty() || left_.front().entry != entry) return nullptr;
    const PathNode* child = left_.data();
    left_ = left_.subspan(1);
    return child;
  }

  bool IsEmpty() const { return left_.empty(); }

 private:
  std::span<const PathNode> left_;
};

PathPair Pair(int entry, const PathNode* before, const PathNode* after) {
  PathPair pair{entry, before, after};
  Children former(before);
  Children now(after);
  while (!former.IsEmpty() || !now.IsEmpty()) {
    const int next = std::min(former.NextEntry(), now.NextEntry());
    pair.children.push_back(Pair(next, former.Take(next), now.Take(next)));
  }
  return pair;
}

}  // namespace

Comparison::Comparison(APMQDF& before, APMQDF& after) : header(CompareHeaders(before, after)) {
  for (const DocumentList& list : kDocumentLists) {
    lists.push_back({&list, list.rows(before), list.rows(after), {}, {}, {}});
    ListComparison& compared = lists.back();
    compared.entries = PairEntries(compared.before, compared.after);
    for (const EntryPair& entry : compared.entries) {
      compared.names.push_back(entry.name);
      compared.formerNames.push_back(entry.formerName);
    }
  }
  for (const PathKind& kind : kPathKinds) paths.push_back({&kind, {}, {}, {}});
  for (PathComparison& each : paths) ComparePaths(before, after, each);
}

void Comparison::ComparePaths(APMQDF& before, APMQDF& after, PathComparison& comparison) {
  const PathKind& kind = *comparison.kind;
  const bool read =
      ReadPaths(before, kind, Known(lists, &EntryPair::before, &ListComparison::before), kMostPaths,
                comparison.before) &&
      ReadPaths(after, kind, Known(lists, &EntryPair::after, &ListComparison::after), kMostPaths,
                comparison.after);
  if (read) comparison.root = Pair(kRoot, &comparison.before, &comparison.after);
}
