#pragma once

// What may be combined in a document, as a tree of paths: each option once on its level, whatever
// nodes name it, and by the place of its entry instead of its id. Two documents whose entries are
// paired have comparable trees.

#include <memory>
#include <span>
#include <string>
#include <unordered_map>
#include <vector>

#include "qdf/core/apmqdf.h"
#include "tool/lists.h"
#include "tool/report.h"

// A setting that belongs to a path, from the root to any level: what is preselected behind it, or
// what a whole combination says; all as queries hand it out.
struct Trait {
  const char* key;
  const char* label;
};

struct PathLevel {
  const char* key;
  const char* label;
  ListPlace list;
};

struct PathKind {
  const char* key;
  const char* label;
  std::span<const PathLevel> levels;
  // Those of a path of no options first, then of one option, and so on.
  std::span<const std::span<const Trait>> traits;
  bool isJob;  // the control tree rather than the media source tree
};

// Of jobs, and of media sources.
extern const std::span<const PathKind> kPathKinds;

// In the order of the kind's traits for the level. Paths that end in one node share them.
using Traits = std::vector<Value>;

struct PathNode {
  int entry = -1;  // -1 at the root
  std::shared_ptr<const Traits> traits;
  std::vector<PathNode> children;  // by rising entry
};

// How the entries of the document's lists are known in a comparison.
struct KnownEntries {
  std::unordered_map<int, int> places;              // by id
  std::unordered_map<int, int> order;               // by id: the place in the document's own list
  const std::vector<std::string>* names = nullptr;  // by place
};

// What queries find: of several nodes for the same options the first that leads on decides.
// Documents can combine more than can be looked at: beyond `most` paths the answer is false.
bool ReadPaths(APMQDF& document, const PathKind& kind, const std::vector<KnownEntries>& entries,
               int most, PathNode& root);
