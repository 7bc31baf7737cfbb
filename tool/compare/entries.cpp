#include "tool/compare/entries.h"

#include <unordered_map>

#include "tool/reportline.h"
#include "tool/reporttable.h"

namespace {

constexpr std::size_t kUnpaired = static_cast<std::size_t>(-1);

std::string TextOf(const Object& row, std::string_view key) {
  const Value* value = row.Find(key);
  const auto* text = value != nullptr ? std::get_if<std::string>(&value->data) : nullptr;
  return text != nullptr ? *text : std::string();
}

std::string InternalName(const Object& row) { return TextOf(row, "internalName"); }
std::string DisplayName(const Object& row) { return TextOf(row, "displayName"); }
// What a resolution is, whatever its name; empty for other entries.
std::string Numbers(const Object& row) {
  const Value* x = row.Find("xResolution");
  const Value* y = row.Find("yResolution");
  return x != nullptr && y != nullptr ? LineText(*x) + 'x' + LineText(*y) : std::string();
}

// A zero byte stands in no name.
std::string BothNames(const Object& row) { return InternalName(row) + '\0' + DisplayName(row); }

const Object& RowAt(const List& rows, std::size_t place) { return *AsObject(rows[place]); }

// For each row of `before` the place of its counterpart in `after`.
class Pairing {
 public:
  Pairing(const List& before, const List& after)
      : before_(before), after_(after), partner_(before.size(), kUnpaired) {
    taken_.resize(after.size(), false);
  }

  // Pairs what is left by a name; rows without that name stay.
  void By(std::string (*nameOf)(const Object& row)) {
    std::unordered_map<std::string, std::vector<std::size_t>> places;
    for (std::size_t i = after_.size(); i-- > 0;) {
      if (!taken_[i]) places[nameOf(RowAt(after_, i))].push_back(i);
    }
    for (std::size_t i = 0; i < before_.size(); ++i) {
      const std::string name = nameOf(RowAt(before_, i));
      if (partner_[i] != kUnpaired || name.empty()) continue;
      const auto found = places.find(name);
      if (found == places.end() || found->second.empty()) continue;
      partner_[i] = found->second.back();
      taken_[partner_[i]] = true;
      found->second.pop_back();
    }
  }

  const std::vector<std::size_t>& Partners() const { return partner_; }

 private:
  const List& before_;
  const List& after_;
  std::vector<std::size_t> partner_;
  std::vector<bool> taken_;
};

enum class Detail { kOneName, kBothNames, kWithID };

std::string NameOf(const Object& row, Detail detail) {
  const std::string internalName = InternalName(row);
  std::string name = DisplayName(row);
  if (name.empty()) {
    name = internalName;
  } else if (detail != Detail::kOneName && !internalName.empty()) {
    name += " (" + internalName + ')';
  }
  if (detail == Detail::kWithID)
    name += (name.empty() ? "id " : ", id ") + std::to_string(IDOf(row));
  return name;
}

// Names are as short as they can be without one for two. They are those of one document where it
// has the entry, and else of the other.
void NameEach(std::vector<EntryPair>& pairs, std::string EntryPair::*name,
              const Object* EntryPair::*side, const Object* EntryPair::*other) {
  std::unordered_map<std::string, int> uses;
  for (const Detail detail : {Detail::kOneName, Detail::kBothNames, Detail::kWithID}) {
    std::unordered_map<std::string, int> usesNow;
    for (EntryPair& pair : pairs) {
      const bool isNamed = !(pair.*name).empty() && uses[pair.*name] == 1;
      const Object& row = pair.*side != nullptr ? *(pair.*side) : *(pair.*other);
      if (!isNamed) pair.*name = NameOf(row, detail);
      ++usesNow[pair.*name];
    }
    uses = std::move(usesNow);
  }
}

std::string Names(const List& rows) {
  std::string names;
  for (const Value& row : rows) {
    if (!names.empty()) names += ", ";
    names += NameOf(*AsObject(row), Detail::kOneName);
  }
  return names;
}

// Parts are handed out by their places, so their order counts.
void CompareParts(const Field& field, const List& before, const List& after,
                  std::vector<FieldChange>& changes) {
  const std::vector<EntryPair> parts = PairEntries(before, after);
  bool inOrder = true;
  const Object* former = nullptr;
  for (const EntryPair& part : parts) {
    if (!part.IsInBoth()) continue;
    inOrder = inOrder && former < part.before;
    former = part.before;
  }
  if (!inOrder) changes.push_back({"", field.key, field.label, Names(before), Names(after)});
  for (const EntryPair& part : parts) {
    if (!part.IsInBoth()) {
      const auto name = [&](const Object* row) {
        return row != nullptr ? Value(part.name) : Value();
      };
      changes.push_back({"", field.key, field.label, name(part.before), name(part.after)});
    }
    for (const FieldChange& change : part.changes) {
      changes.push_back({part.name, change.key, change.label, change.before, change.after});
    }
  }
}

// A colorant's angle goes into a host setting as well, but only where it is written: a default
// angle that is written makes a difference of its own.
void CompareHostSetting(const Object& before, const Object& after,
                        std::vector<FieldChange>& changes) {
  constexpr const char* kKey = "setting5";
  const Value* one = before.Find(kKey);
  const Value* other = after.Find(kKey);
  if (one == nullptr || other == nullptr || *one == *other) return;
  if (!(*before.Find("angle") == *after.Find("angle"))) return;
  changes.push_back({"", kKey, "Angle as a setting", *one, *other});
}

}  // namespace

int IDOf(const Object& row) {
  const Value* value = row.Find("id");
  const auto* id = value != nullptr ? std::get_if<std::int64_t>(&value->data) : nullptr;
  return id != nullptr ? static_cast<int>(*id) : 0;
}

std::vector<EntryPair> PairEntries(const List& before, const List& after) {
  Pairing pairing(before, after);
  pairing.By(BothNames);
  pairing.By(InternalName);
  pairing.By(DisplayName);
  pairing.By(Numbers);
  std::vector<EntryPair> pairs(after.size());
  for (std::size_t i = 0; i < after.size(); ++i) pairs[i].after = &RowAt(after, i);
  for (std::size_t i = 0; i < before.size(); ++i) {
    const std::size_t partner = pairing.Partners()[i];
    if (partner == kUnpaired) {
      pairs.push_back({&RowAt(before, i)});
    } else {
      pairs[partner].before = &RowAt(before, i);
    }
  }
  NameEach(pairs, &EntryPair::name, &EntryPair::after, &EntryPair::before);
  NameEach(pairs, &EntryPair::formerName, &EntryPair::before, &EntryPair::after);
  for (EntryPair& pair : pairs) {
    if (pair.IsInBoth()) pair.changes = CompareFields(*pair.before, *pair.after);
  }
  return pairs;
}

std::vector<FieldChange> CompareFields(const Object& before, const Object& after) {
  std::vector<FieldChange> changes;
  for (const Field& field : before.fields) {
    const std::string_view key = field.key;
    const Value* other = after.Find(key);
    const bool isMeant = key != "id" && key != "unlocalizedName";
    const bool isSeen = isMeant && field.label != nullptr && other != nullptr;
    if (!isSeen || field.value == *other) continue;
    const List* parts = AsList(field.value);
    if (parts != nullptr && (AsRows(field.value) != nullptr || AsRows(*other) != nullptr)) {
      CompareParts(field, *parts, *AsList(*other), changes);
    } else {
      changes.push_back({"", field.key, field.label, field.value, *other});
    }
  }
  CompareHostSetting(before, after, changes);
  return changes;
}
