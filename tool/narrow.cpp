// qdf narrow: what the choices made so far leave open for a print job.

#include <algorithm>
#include <optional>

#include "qdf/core/documentmembers.h"
#include "qdf/query/treewalk.h"
#include "qdf/support/text.h"
#include "tool/cascade.h"
#include "tool/command.h"
#include "tool/load.h"
#include "tool/ripresolutions.h"
#include "tool/why.h"

namespace {

using Levels = std::span<const Level>;

struct Step {
  const Level* level;
  Choice choice;
  bool offered;
};

std::string Tell(std::span<const Step> steps) {
  std::string text;
  for (const Step& step : steps)
    text += (text.empty() ? "" : ", ") + Tell(*step.level, step.choice);
  return text;
}

bool IsGiven(const Level& level, const Arguments& arguments) {
  return level.option != nullptr && arguments.Has(level.option);
}

bool AnyGiven(Levels levels, const Arguments& arguments) {
  return std::any_of(levels.begin(), levels.end(),
                     [&](const Level& level) { return IsGiven(level, arguments); });
}

// A choice stands on those above it, unless defaults take their place.
void RefuseGaps(Levels levels, const Arguments& arguments) {
  for (std::size_t i = 1; i < levels.size(); ++i) {
    if (IsGiven(levels[i], arguments) && !IsGiven(levels[i - 1], arguments)) {
      throw Failure(kWrongUsage, std::string(levels[i].option) + " needs " + levels[i - 1].option +
                                     " as well, or --defaults");
    }
  }
}

Field ChosenField(const Step& step, bool isDefault) {
  return {step.level->key, step.level->label,
          Object{{"id", "", step.choice.id},
                 {"displayName", "", step.choice.displayName},
                 {"internalName", nullptr, OrNull(step.choice.internalName)},
                 {"default", "default", isDefault}}};
}

// A walk down one of the two cascades. What was chosen and what is on offer then go into the
// report.
class Walk {
 public:
  Walk(const Document& document, Levels levels, const Arguments& arguments)
      : document_(document), levels_(levels), arguments_(arguments) {}

  // False when the walk stopped at a level that offers something to choose.
  bool Descend(Object& choice, Object& report) {
    for (const Level& level : levels_) {
      const Offer offer = level.offer(*document_.content, ids_);
      if (!Decide(level, offer, choice)) {
        report.Add({level.listKey, level.listLabel, offer.rows});
        return false;
      }
    }
    return true;
  }

  // The failure of a walk that led nowhere. It tells of the first level without an offer: what is
  // chosen below that may still stand in the tree, since an offer is that of one node alone.
  Failure NoAnswer() const { return deadEnd_ ? *deadEnd_ : Without("job"); }

  const std::vector<int>& IDs() const { return ids_; }
  std::vector<Choice> Choices() const {
    std::vector<Choice> choices;
    for (const Step& step : steps_) choices.push_back(step.choice);
    return choices;
  }
  bool EndsInOffered() const { return steps_.back().offered; }

 private:
  Failure Without(const std::string& missing) const {
    const std::string file = document_.path + ": ";
    if (steps_.empty()) return {kNoAnswer, file + "no " + missing};
    const std::span<const Step> above(steps_.data(), steps_.size() - 1);
    const Step& last = steps_.back();
    if (last.offered || above.empty()) {
      return {kNoAnswer, file + "no " + missing + " for " + Tell(steps_)};
    }
    return {kNoAnswer, file + Tell(*last.level, last.choice) + " isn't offered for " + Tell(above)};
  }

  // False when nothing tells which of the offered to take.
  bool Decide(const Level& level, const Offer& offer, Object& choice) {
    const bool isGiven = IsGiven(level, arguments_);
    if (offer.choices.empty() && !deadEnd_) deadEnd_ = Without(InSentence(level.listLabel));
    if (offer.choices.empty() && !isGiven) {
      const bool asked = levels_.data() == kJobLevels.data() || AnyGiven(levels_, arguments_);
      if (asked && !arguments_.Has("--why")) throw NoAnswer();
      return false;
    }
    if (!isGiven && (level.option == nullptr || !arguments_.Has("--defaults"))) return false;
    const Choice chosen = isGiven ? FindChoice(document_.path + ": " + InSentence(level.label),
                                               *arguments_.Find(level.option),
                                               level.all(*document_.content), offer.choices)
                                  : offer.choices[offer.defaultPosition];
    const auto place = std::find_if(offer.choices.begin(), offer.choices.end(),
                                    [&](const Choice& each) { return each.id == chosen.id; });
    steps_.push_back({&level, chosen, place != offer.choices.end()});
    ids_.push_back(chosen.id);
    const auto position = static_cast<std::size_t>(place - offer.choices.begin());
    choice.Add(
        ChosenField(steps_.back(), steps_.back().offered && position == offer.defaultPosition));
    return true;
  }

  const Document& document_;
  Levels levels_;
  const Arguments& arguments_;
  std::vector<Step> steps_;
  std::vector<int> ids_;
  std::optional<Failure> deadEnd_;
};

// What the library says of one combination of all five ids. It would look for the RIP resolution of
// each dither among all of them.
struct Details {
  Details(APMQDF& document, const std::vector<int>& id) {
    document.GetProfileList(id[0], id[1], id[2], id[3], id[4], profiles, defaultProfile);
    document.GetDitherList(id[0], id[1], id[2], id[3], id[4], dithers, defaultDither);
    document.GetOEMInfo(id[0], id[1], id[2], id[3], id[4], text);
    const DocumentMembers members(document);
    const CQDFNode* node = FindPath(members.ControlTreeRoot, {id[0], id[1], id[2], id[3], id[4]});
    ripResolutions_ = RipResolutionsOf(node, members.DitherResolutionList);
  }

  Value RipResolution(const AString& dither) const {
    return RipResolutionValue(ripResolutions_.Find(View(dither)));
  }

  bool Any() const {
    return !profiles.empty() || !dithers.empty() || defaultProfile.GetLength() > 0 ||
           defaultDither.GetLength() > 0 || text.GetLength() > 0;
  }

  std::vector<AString> profiles;
  std::vector<AString> dithers;
  AString defaultProfile;
  AString defaultDither;
  AString text;

 private:
  RipResolutions ripResolutions_;
};

Value TextOrNull(const AString& text) {
  return text.GetLength() > 0 ? Value(static_cast<const char*>(text)) : Value();
}

// A default that stands in its list is marked there; people see it by itself only otherwise.
const char* LabelUnlessIn(const std::vector<AString>& list, const AString& name,
                          const char* label) {
  const bool isListed = std::find(list.begin(), list.end(), name) != list.end();
  return isListed || name.GetLength() == 0 ? nullptr : label;
}

Object NameRow(const AString& name) { return {{"name", "Name", static_cast<const char*>(name)}}; }

void AddDetails(const Details& details, Object& report) {
  List profiles;
  for (const AString& name : details.profiles) {
    Object row = NameRow(name);
    row.Add({"default", "Default", name == details.defaultProfile});
    profiles.emplace_back(std::move(row));
  }
  List dithers;
  for (const AString& name : details.dithers) {
    Object row = NameRow(name);
    row.Add({"ripResolution", "RIP resolution", details.RipResolution(name)});
    row.Add({"default", "Default", name == details.defaultDither});
    dithers.emplace_back(std::move(row));
  }
  const AString& profile = details.defaultProfile;
  const AString& dither = details.defaultDither;
  report.Add({"printerSpecificText", "Printer specific text", TextOrNull(details.text)});
  report.Add({"defaultProfile", LabelUnlessIn(details.profiles, profile, "Default profile"),
              TextOrNull(profile)});
  report.Add({"defaultDither", LabelUnlessIn(details.dithers, dither, "Default dither"),
              TextOrNull(dither)});
  report.Add({"defaultRipResolution",
              LabelUnlessIn(details.dithers, dither, "Default RIP resolution"),
              details.RipResolution(dither)});
  report.Add({"profiles", "Profiles", std::move(profiles)});
  report.Add({"dithers", "Dithers", std::move(dithers)});
}

void WalkJob(const Document& document, const Arguments& arguments, Object& choice, Object& report) {
  Walk walk(document, kJobLevels, arguments);
  if (!walk.Descend(choice, report)) return;
  const Details details(*document.content, walk.IDs());
  if (!details.Any() && !walk.EndsInOffered()) throw walk.NoAnswer();
  AddDetails(details, report);
}

void WalkWhy(const Document& document, check::Origins& origins, Levels levels,
             const Arguments& arguments, Object& choice, Object& report) {
  Walk walk(document, levels, arguments);
  Object offers;
  walk.Descend(choice, offers);
  const std::vector<Choice> choices = walk.Choices();
  report.Add(TellWhy(Explain(*document.content, origins, levels, choices)));
}

Answer Narrow(const Arguments& arguments) {
  const bool job = AnyGiven(kJobLevels, arguments);
  const bool mediaSource = AnyGiven(kMediaSourceLevels, arguments);
  if (!arguments.Has("--defaults")) {
    RefuseGaps(kJobLevels, arguments);
    RefuseGaps(kMediaSourceLevels, arguments);
  }
  const Document document = LoadDocument(arguments.Get("DOC"));
  Object choice;
  Object offers;
  if (arguments.Has("--why")) {
    check::Origins origins(document.path);
    const auto walk = [&](Levels levels) {
      WalkWhy(document, origins, levels, arguments, choice, offers);
    };
    if (job || !mediaSource) walk(kJobLevels);
    if (mediaSource || !job) walk(kMediaSourceLevels);
  } else {
    if (job || !mediaSource) WalkJob(document, arguments, choice, offers);
    if (mediaSource || !job) Walk(document, kMediaSourceLevels, arguments).Descend(choice, offers);
  }
  Object report{{"document", nullptr, document.path}, {"choice", "Choice", choice}};
  for (Field& field : offers.fields) report.Add(std::move(field));
  return {report};
}

constexpr Option kOptions[] = {
    {"DOC", "", "The document", true},
    {"--ink", "X", "The ink"},
    {"--media", "X", "The medium"},
    {"--print-mode", "X", "The print mode"},
    {"--resolution", "X", "The resolution"},
    {"--color-mode", "X", "The colour mode"},
    {"--source", "X", "The media source"},
    {"--size", "X", "The media size"},
    {"--defaults", "", "Take the default wherever no choice is given"},
    {"--why", "", "Tell instead why the choice gives an answer or none, and which would"},
};

}  // namespace

const Command kNarrowCommand = {
    "narrow",
    "Narrow a print job step by step",
    "Shows what may follow the choices made so far: an ink, then a medium and so on down to a\n"
    "colour mode, and below that the profiles and dithers; or a media source, then a size, and\n"
    "below that the margins. X is an id, a display name or an internal name. --why names the "
    "nodes\n"
    "of the tree by their elements, with the lines and columns at which these stand.",
    "qdf narrow plot36.qdf --ink 1 --media Glossy\n"
    "  qdf narrow plot36.qdf --defaults\n"
    "  qdf narrow plot36.qdf --source 1 --size A4 --why",
    kOptions,
    Narrow,
};
