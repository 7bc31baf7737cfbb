#include "tool/why.h"

#include <algorithm>

#include "tool/enumerate.h"

namespace {

using Names = std::vector<std::string>;

constexpr std::size_t kMost = 4;  // of several that are told one by one

std::string UpperFirst(std::string text) {
  text[0] = static_cast<char>(text[0] & ~('a' ^ 'A'));
  return text;
}

// The path of its element, from behind the section that all of the tree have in common.
std::string TellBriefly(const check::Origin& node) {
  if (node.path.empty()) return "an unknown element";
  const std::size_t section = node.path.find('/', 1) + 1;
  return node.path.substr(node.path.find('/', section) + 1);
}

std::string TellNode(const check::Origin& node) {
  const check::Position& at = node.position;
  return TellBriefly(node) + " (line " + std::to_string(at.line) + ", column " +
         std::to_string(at.column) + ')';
}

class Teller {
 public:
  explicit Teller(const Explanation& facts) : facts_(facts) {}

  std::string Text() const {
    if (facts_.standing.empty()) return InkAlone() + TellChanges();
    return Verdict() + TellNodes() + TellListed() + TellHidden() + TellLacks() + TellFound() +
           TellChanges();
  }

 private:
  bool IsWhole() const { return facts_.at == facts_.levels.size(); }

  // As in: media 3 "Glossy" or 4 "Matte".
  std::string Options(std::size_t level, const std::vector<int>& ids,
                      const std::string& joint) const {
    const Level& at = facts_.levels[level];
    Names names;
    for (const int id : ids) names.push_back(NameChoice(facts_.known[level].at(id)));
    return InSentence(ids.size() > 1 && joint == "and" ? at.listLabel : at.label) + ' ' +
           Enumerate(names, joint, kMost);
  }

  // The choice that fails.
  std::string Failing() const { return Tell(facts_.levels[facts_.at], facts_.choices[facts_.at]); }

  // All choices before the level in question.
  std::string Before() const {
    std::string text;
    for (std::size_t i = 0; i < facts_.at; ++i) {
      text += (i > 0 ? ", " : "") + Tell(facts_.levels[i], facts_.choices[i]);
    }
    return text;
  }

  std::string InkAlone() const {
    return UpperFirst(Tell(facts_.levels[0], facts_.choices[0])) +
           " is offered, but no Ink element of the tree holds it, so no media follow.";
  }

  std::string Verdict() const {
    if (IsWhole()) return "The combination gives an answer.";
    const bool isFirst = facts_.at == 0;
    if (facts_.answers) {
      return UpperFirst(Options(facts_.at, facts_.standing.front().options, "and")) +
             (isFirst ? " may be chosen." : " may follow " + Before() + '.');
    }
    const std::string behind = isFirst ? "." : " for " + Before() + '.';
    return facts_.IsUnlisted()
               ? UpperFirst(Failing()) + " isn't listed" + behind
               : "No " + InSentence(facts_.levels[facts_.at].listLabel) + " are listed" + behind;
  }

  std::string TellNodes() const {
    if (facts_.at == 0) return "";
    Names names;
    for (const StandingNode& node : facts_.standing) names.push_back(TellNode(node.origin));
    if (IsWhole()) {
      const std::string first = " It is found in " + names.front();
      names.erase(names.begin());
      return first + (names.empty()
                          ? "."
                          : "; " + Enumerate(names, "and", kMost) + ", which would fit too, " +
                                (names.size() == 1 ? "is" : "are") + " never asked.");
    }
    const std::string these = facts_.at == 1 ? "that choice" : "these choices";
    if (names.size() == 1) return " One node stands for " + these + ", " + names.front() + '.';
    return ' ' + std::to_string(names.size()) + " nodes stand for " + these + ", " +
           Enumerate(names, "and", kMost) + "; the first one decides what is listed.";
  }

  // A standing node, with its place if that hasn't been told.
  std::string TellAgain(std::size_t node) const {
    const check::Origin& origin = facts_.standing[node].origin;
    return node < kMost ? TellBriefly(origin) : TellNode(origin);
  }

  // What the deciding node has instead.
  std::string TellListed() const {
    if (facts_.answers) return "";
    const StandingNode& node = facts_.standing.front();
    const std::string who = facts_.at == 0 ? " The tree" : " It";
    if (node.isEmpty) return who + " has nothing below it.";
    if (node.options.empty()) return who + " holds only ids that no list has.";
    return who + " holds only " + Options(facts_.at, node.options, "and") + '.';
  }

  std::string TellHidden() const {
    std::vector<int> ids;
    for (const Explanation::Hidden& each : facts_.hidden) ids.push_back(each.id);
    if (!facts_.IsUnlisted()) {
      if (ids.empty()) return "";
      return " Later nodes also hold " + Options(facts_.at, ids, "and") + ", which " +
             (ids.size() == 1 ? "is" : "are") + " never listed.";
    }
    const auto found = std::find(ids.begin(), ids.end(), facts_.choices[facts_.at].id);
    if (found == ids.end()) {
      return facts_.standing.size() == 1 ? "" : " No other holds " + Failing() + '.';
    }
    const std::size_t node = facts_.hidden[static_cast<std::size_t>(found - ids.begin())].node;
    return ' ' + UpperFirst(Failing()) + " stands in " + TellAgain(node) +
           ", which comes too late.";
  }

  // As in: profiles "a.icc" and "b.icc".
  std::string Lacking(const std::string& what, std::size_t node) const {
    Names names;
    for (const Explanation::Lack& lack : facts_.lacks) {
      if (lack.what == what && lack.node == node) names.push_back('"' + lack.name + '"');
    }
    if (names.empty()) return "";
    return what + (names.size() > 1 ? "s " : " ") + Enumerate(names, "and", kMost);
  }

  std::string TellLacks() const {
    std::string text;
    for (std::size_t i = 1; i < facts_.standing.size(); ++i) {
      Names kinds;
      for (const char* what : {"profile", "dither"}) {
        const std::string names = Lacking(what, i);
        if (!names.empty()) kinds.push_back(names);
      }
      if (kinds.empty()) continue;
      text.append(" The first one lacks ").append(Enumerate(kinds, "and", kMost));
      text.append(" of ").append(TellAgain(i)).append(".");
    }
    return text;
  }

  // The profiles and the like of a job are found by a search that goes back.
  std::string TellFound() const {
    const bool isAsked = facts_.IsJob() && facts_.choices.size() == facts_.levels.size();
    if (!isAsked || !facts_.IsUnlisted() || !facts_.found) return "";
    return " A host that gives all ids at once still gets the profiles and dithers of " +
           TellNode(*facts_.found) + '.';
  }

  std::string TellChanges() const {
    if (facts_.answers || facts_.choices.empty()) return "";
    if (facts_.changes.empty()) return " No change of one choice alone gives an answer.";
    std::string text;
    for (std::size_t level = 0; level <= facts_.at; ++level) {
      std::vector<int> ids;
      for (const Explanation::Change& change : facts_.changes) {
        if (change.level == level) ids.push_back(change.id);
      }
      if (ids.empty()) continue;
      text += (text.empty() ? "" : ", or ") + Options(level, ids, "or") + " instead of " +
              std::to_string(facts_.choices[level].id);
    }
    return ' ' + UpperFirst(text) + " would give an answer.";
  }

  const Explanation& facts_;
};

Object OptionRow(const Explanation& facts, std::size_t level, int id) {
  const Choice& choice = facts.known[level].at(id);
  return {{"id", nullptr, id},
          {"displayName", nullptr, choice.displayName},
          {"internalName", nullptr, OrNull(choice.internalName)}};
}

void AddNode(const check::Origin& node, Object& row) {
  const bool isKnown = !node.path.empty();
  row.Add({"path", nullptr, isKnown ? Value(node.path) : Value()});
  row.Add({"line", nullptr, isKnown ? Value(node.position.line) : Value()});
  row.Add({"column", nullptr, isKnown ? Value(node.position.column) : Value()});
}

Value FoundNode(const Explanation& facts) {
  if (!facts.found) return {};
  Object row;
  AddNode(*facts.found, row);
  return row;
}

List NodeRows(const Explanation& facts) {
  List rows;
  for (const StandingNode& node : facts.standing) {
    List options;
    for (const int id : node.options) options.emplace_back(OptionRow(facts, facts.at, id));
    Object row;
    AddNode(node.origin, row);
    row.Add({"options", nullptr, std::move(options)});
    rows.emplace_back(std::move(row));
  }
  return rows;
}

List HiddenRows(const Explanation& facts) {
  List rows;
  for (const Explanation::Hidden& hidden : facts.hidden) {
    Object row = OptionRow(facts, facts.at, hidden.id);
    AddNode(facts.standing[hidden.node].origin, row);
    rows.emplace_back(std::move(row));
  }
  return rows;
}

List LackRows(const Explanation& facts) {
  List rows;
  for (const Explanation::Lack& lack : facts.lacks) {
    Object row{{"what", nullptr, lack.what}, {"name", nullptr, lack.name}};
    AddNode(facts.standing[lack.node].origin, row);
    rows.emplace_back(std::move(row));
  }
  return rows;
}

List ChangeRows(const Explanation& facts) {
  List rows;
  for (const Explanation::Change& change : facts.changes) {
    Object row = OptionRow(facts, change.level, change.id);
    row.Add({"level", nullptr, facts.levels[change.level].key});
    rows.emplace_back(std::move(row));
  }
  return rows;
}

}  // namespace

Field TellWhy(const Explanation& facts) {
  const std::string text = Teller(facts).Text();
  const bool isWhole = facts.at == facts.levels.size();
  return {facts.IsJob() ? "job" : "mediaSource", "",
          Object{{"answers", nullptr, facts.answers},
                 {"level", nullptr, isWhole ? Value() : Value(facts.levels[facts.at].key)},
                 {"nodes", nullptr, NodeRows(facts)},
                 {"hidden", nullptr, HiddenRows(facts)},
                 {"lacks", nullptr, LackRows(facts)},
                 {"found", nullptr, FoundNode(facts)},
                 {"changes", nullptr, ChangeRows(facts)},
                 {"text", nullptr, text}},
          text};
}
