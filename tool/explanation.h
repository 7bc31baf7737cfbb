#pragma once

// What stands in the trees of a document about a choice in one of the two cascades, and so why it
// gives an answer or none.

#include <optional>
#include <span>
#include <string>
#include <unordered_map>
#include <vector>

#include "tool/cascade.h"
#include "tool/check/origins.h"

// A node that stands for the first choices.
struct StandingNode {
  check::Origin origin;
  std::vector<int> options;  // what it holds for the next level, of what the document's list has
  bool isEmpty;              // has nothing below it
};

struct Explanation {
  std::span<const Level> levels;
  std::span<const Choice> choices;
  std::vector<std::unordered_map<int, Choice>> known;  // for each level its list, by id

  bool answers = false;  // each choice is listed behind those before it, and something follows
  std::size_t at = 0;    // the level that fails, or else the one that follows, or the end
  // For the choices before that level, in the order of a search. The first decides what is listed.
  // None for an ink that the tree doesn't hold: all inks of the list are listed all the same.
  std::vector<StandingNode> standing;

  // An option of that level that only nodes behind the first hold.
  struct Hidden {
    int id;
    std::size_t node;  // the first of these
  };
  std::vector<Hidden> hidden;

  // Of a whole combination: a profile or dither that only nodes behind the first hold.
  struct Lack {
    const char* what;
    std::string name;
    std::size_t node;  // the first of these
  };
  std::vector<Lack> lacks;

  // The first node for all of the choices, whether they are listed or not.
  std::optional<check::Origin> found;

  // One choice in place of another, so that there is an answer.
  struct Change {
    std::size_t level;
    int id;
  };
  std::vector<Change> changes;

  bool IsUnlisted() const { return at < choices.size(); }
  bool IsJob() const { return levels.data() == kJobLevels.data(); }
};

// For choices on the first of the levels. Points into both. The origins are those of the document's
// file.
Explanation Explain(APMQDF& document, check::Origins& origins, std::span<const Level> levels,
                    std::span<const Choice> choices);
